#pragma once

#include "platform/Window.h"

#include <optional>

// The one queue of the program's messages. A message word carries what its message says: ids, handles, points.
namespace platform {

bool HasMessages(); // beside a quit request
std::optional<MSG> TakeMessage();
bool HasQuitRequest();
// The exit code of a quit request, which is then no longer pending.
std::optional<int> TakeQuitRequest();

// Drops what is queued for a window that goes and for its controls.
void DropMessagesOf(const Window& root);
// Drops everything, a quit request included.
void ClearMessages();

} // namespace platform
