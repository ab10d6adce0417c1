#include "platform/DesktopEvents.h"

#include "platform/InputState.h"
#include "platform/User.h"
#include "platform/WindowPlacement.h"
#include "platform/WindowTable.h"

#include <algorithm>

namespace platform {

namespace {

bool TakesInputAsRoot(const Window& window, WindowKind kind)
{
    return IsWindow(&window) && window.kind == kind && TakesInput(window);
}

// Without a capture the mouse belongs to the window that it points into.
bool TakesMouse(const Window& window, POINT at)
{
    if (const Window* capture = CapturedWindow())
        return &RootOf(*capture) == &window;
    const RECT& place = window.place;
    return at.x >= 0 && at.y >= 0 && at.x < place.right - place.left && at.y < place.bottom - place.top;
}

UINT WithoutDoubleClicks(UINT message)
{
    if (message == WM_LBUTTONDBLCLK)
        return WM_LBUTTONDOWN;
    return message == WM_RBUTTONDBLCLK ? WM_RBUTTONDOWN : message;
}

LPARAM MousePoint(POINT at)
{
    const auto limited = [](int coordinate) { return std::clamp(coordinate, -0x8000, 0x7FFF); };
    return MAKELPARAM(limited(at.x), limited(at.y));
}

void SendCommand(Window& window, int id, HWND control)
{
    SendMessageA(&window, WM_COMMAND, static_cast<WPARAM>(id) & 0xFFFF, reinterpret_cast<LPARAM>(control));
}

} // namespace

void PostMouse(Window& window, UINT message, POINT at, WPARAM keys)
{
    if (!TakesInputAsRoot(window, WindowKind::TopLevel) || !TakesMouse(window, at))
        return;
    if (!window.wantsDoubleClicks)
        message = WithoutDoubleClicks(message);
    PostMessageA(&window, message, keys, MousePoint(at));
}

void PostKeyDown(Window& window, int virtualKey)
{
    if (TakesInputAsRoot(window, WindowKind::TopLevel))
        PostMessageA(&window, WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 1);
}

void ButtonClicked(Window& button)
{
    if (!IsWindow(&button) || !button.parent || !TakesInput(button))
        return;
    if (button.kind == WindowKind::PushButton || button.kind == WindowKind::CheckBox)
        SendCommand(*button.parent, button.id, &button);
}

void CloseBoxClicked(Window& window)
{
    if (IsWindow(&window) && window.closeBox && TakesInput(window))
        SendMessageA(&window, WM_CLOSE, 0, 0);
}

void WindowMoved(Window& window, int x, int y)
{
    if (!IsWindow(&window) || (window.place.left == x && window.place.top == y))
        return;
    PlaceClient(window, x, y, window.place.right - window.place.left, window.place.bottom - window.place.top);
    SendMessageA(&window, WM_WINDOWPOSCHANGED, 0, 0);
}

void DialogKey(Window& dialog, int command)
{
    if (TakesInputAsRoot(dialog, WindowKind::Dialog))
        SendCommand(dialog, command, GetDlgItem(&dialog, command));
}

} // namespace platform
