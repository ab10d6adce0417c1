#pragma once

#include "platform/Window.h"

namespace platform {

// Ends a top-level window or a dialog with everything that belongs to it: its dialogs first, then it receives
// WM_DESTROY, then it is forgotten.
void DestroyWindow(Window& window);

// The window is gone, with its controls, its capture and focus and the messages still queued for it; the desktop is
// told where it has been given the window.
void ForgetWindow(Window& root);

} // namespace platform
