#pragma once

#include "platform/Window.h"

namespace platform {

// Sends WM_ERASEBKGND to a window that is visible and waits for its erase.
void DeliverErase(Window& window);
// The same for every window.
void DeliverErases();

} // namespace platform
