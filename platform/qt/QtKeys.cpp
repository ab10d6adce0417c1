#include "platform/qt/QtKeys.h"

#include "platform/User.h"

#include <QKeyEvent>

namespace platform {

int VirtualKeyOf(const QKeyEvent& event)
{
    const int key = event.key();
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return key; // the same codes
    switch (key) {
    case Qt::Key_Escape:
        return VK_ESCAPE;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return VK_RETURN;
    case Qt::Key_PageUp:
        return VK_PRIOR;
    case Qt::Key_PageDown:
        return VK_NEXT;
    case Qt::Key_Left:
        return VK_LEFT;
    case Qt::Key_Up:
        return VK_UP;
    case Qt::Key_Right:
        return VK_RIGHT;
    case Qt::Key_Down:
        return VK_DOWN;
    case Qt::Key_Delete:
        return VK_DELETE;
    default:
        return 0;
    }
}

WPARAM MouseKeysOf(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    WPARAM keys = 0;
    if (buttons & Qt::LeftButton)
        keys |= MK_LBUTTON;
    if (buttons & Qt::RightButton)
        keys |= MK_RBUTTON;
    if (modifiers & Qt::ShiftModifier)
        keys |= MK_SHIFT;
    if (modifiers & Qt::ControlModifier)
        keys |= MK_CONTROL;
    return keys;
}

} // namespace platform
