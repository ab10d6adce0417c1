#include "platform/DesktopEvents.h"

#include "platform/User.h"
#include "platform/windows/InputState.h"
#include "platform/windows/WindowPlacement.h"
#include "platform/windows/WindowTable.h"

#include <algorithm>

namespace platform {

namespace {

bool TakesInputAsRoot(const Window& window, WindowKind kind)
{
    return IsWindow(&window) && window.kind == kind && TakesInput(window);
}

bool Holds(const RECT& rectangle, POINT at)
{
    return at.x >= rectangle.left && at.y >= rectangle.top && at.x < rectangle.right && at.y < rectangle.bottom;
}

// Without a capture the mouse belongs to the window or button that it points to.
bool TakesMouse(const Window& window, POINT at)
{
    if (const Window* capture = CapturedWindow())
        return &RootOf(*capture) == &window;
    const RECT& place = window.place;
    if (!Holds({ 0, 0, place.right - place.left, place.bottom - place.top }, at))
        return false;
    return std::none_of(window.children.begin(), window.children.end(),
        [at](const auto& child) { return child->visible && Holds(child->place, at); });
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

bool IsNoDigit(char byte)
{
    return byte < '0' || byte > '9';
}

void SendCommand(Window& window, int id, HWND control)
{
    SendMessageA(&window, WM_COMMAND, static_cast<WPARAM>(id) & 0xFFFF, reinterpret_cast<LPARAM>(control));
}

} // namespace

bool PostMouse(Window& window, UINT message, POINT at, WPARAM keys)
{
    if (!TakesInputAsRoot(window, WindowKind::TopLevel) || !TakesMouse(window, at))
        return false;
    if (!window.wantsDoubleClicks)
        message = WithoutDoubleClicks(message);
    return PostMessageA(&window, message, keys, MousePoint(at)) == TRUE;
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

void EditTyped(Window& control, std::string_view text)
{
    if (!IsWindow(&control) || !TakesInput(control))
        return;
    if (control.kind == WindowKind::DropDown)
        control.selection = -1;
    else if (control.kind != WindowKind::Edit)
        return;
    control.text = text;
    if (control.digitsOnly && std::erase_if(control.text, IsNoDigit) > 0)
        ShowChange(control);
}

void ItemSelected(Window& dropDown, int index)
{
    if (!IsWindow(&dropDown) || !TakesInput(dropDown) || dropDown.kind != WindowKind::DropDown)
        return;
    if (index < 0 || static_cast<size_t>(index) >= dropDown.items.size())
        return;
    dropDown.selection = index;
    dropDown.text = dropDown.items[static_cast<size_t>(index)];
}

} // namespace platform
