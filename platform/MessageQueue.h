#pragma once

#include "platform/Window.h"

// The one queue of the program's messages. A message word carries what its message says: ids, handles, points.
namespace platform {

// Drops what is queued for a window that goes and for its controls.
void DropMessagesOf(const Window& root);
// Drops everything, a quit request included.
void ClearMessages();

// Sends WM_ERASEBKGND to a window that is visible and waits for its erase.
void DeliverErase(Window& window);

} // namespace platform
