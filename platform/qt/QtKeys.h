#pragma once

#include "platform/Types.h"

#include <Qt>

class QKeyEvent;

namespace platform {

// 0 for a key that has no virtual key here.
int VirtualKeyOf(const QKeyEvent& event);
// The MK_ flags of a mouse message.
WPARAM MouseKeysOf(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);

} // namespace platform
