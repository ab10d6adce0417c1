#pragma once

#include "platform/Window.h"

// Who has the keyboard and the mouse.
namespace platform {

// The window that takes all mouse input, or null.
Window* CapturedWindow();
// Ends focus and capture of a window that goes, and of its controls.
void ForgetInputOf(const Window& root);

} // namespace platform
