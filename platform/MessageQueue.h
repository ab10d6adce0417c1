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

// A control's own answer to the messages that programs send it.
LRESULT SendToControl(Window& control, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace platform
