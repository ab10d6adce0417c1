#pragma once

#include "platform/Window.h"

namespace platform {

// A control's own answer to the messages that programs send it: the lists of drop-downs, the ticks of check boxes.
LRESULT SendToControl(Window& control, UINT message, WPARAM wParam, LPARAM lParam);

} // namespace platform
