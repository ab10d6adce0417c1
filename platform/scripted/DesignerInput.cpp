#include "platform/scripted/DesignerInput.h"

#include "platform/DesktopEvents.h"
#include "platform/Kernel.h"
#include "platform/User.h"

#include <string>
#include <utility>

namespace platform {

void DesignerInput::Queue(std::function<void(Window&)> act, WPARAM keys)
{
    input.push_back({ std::move(act), keys });
}

void DesignerInput::QueueMouse(UINT message, int x, int y, WPARAM keys)
{
    const auto act = [this, message, x, y](Window& window) {
        if (message != WM_MOUSEMOVE && message != WM_RBUTTONDOWN)
            leftButtonHeld = message != WM_LBUTTONUP;
        pointer = POINT { x, y };
        const WPARAM buttons = (leftButtonHeld ? MK_LBUTTON : 0) | (message == WM_RBUTTONDOWN ? MK_RBUTTON : 0);
        PostMouse(window, message, { x, y }, buttons | keysHeld);
    };
    Queue(act, keys);
}

void DesignerInput::Press(int x, int y, WPARAM keys)
{
    QueueMouse(WM_LBUTTONDOWN, x, y, keys);
}

void DesignerInput::MoveTo(int x, int y, WPARAM keys)
{
    QueueMouse(WM_MOUSEMOVE, x, y, keys);
}

void DesignerInput::Release(int x, int y, WPARAM keys)
{
    QueueMouse(WM_LBUTTONUP, x, y, keys);
}

void DesignerInput::Click(int x, int y, WPARAM keys)
{
    Press(x, y, keys);
    Release(x, y, keys);
}

void DesignerInput::PressAgain(int x, int y, WPARAM keys)
{
    QueueMouse(WM_LBUTTONDBLCLK, x, y, keys);
}

void DesignerInput::DoubleClick(int x, int y, WPARAM keys)
{
    Click(x, y, keys);
    PressAgain(x, y, keys);
    Release(x, y, keys);
}

void DesignerInput::Drag(POINT from, POINT to, WPARAM keys)
{
    Press(from.x, from.y, keys);
    MoveTo(to.x, to.y, keys);
    Release(to.x, to.y, keys);
}

void DesignerInput::RightPress(int x, int y, WPARAM keys)
{
    QueueMouse(WM_RBUTTONDOWN, x, y, keys);
}

void DesignerInput::Key(int virtualKey, WPARAM keys)
{
    Queue([virtualKey](Window& window) { PostKeyDown(window, virtualKey); }, keys);
}

void DesignerInput::ClickButton(int id)
{
    Queue([this, id](Window& window) {
        Window* button = GetDlgItem(&window, id);
        pointer.reset(); // it lies on the button
        if (button && button->visible)
            ButtonClicked(*button);
        else
            problems.Report("the main window has no button " + std::to_string(id));
    });
}

void DesignerInput::CloseBox()
{
    Queue([](Window& window) { CloseBoxClicked(window); });
}

void DesignerInput::MoveWindowTo(int x, int y)
{
    Queue([x, y](Window& window) { WindowMoved(window, x, y); });
}

void DesignerInput::Do(std::function<void()> step)
{
    Queue([step = std::move(step)](Window&) { step(); });
}

void DesignerInput::LetNextInputIn(Window* mainWindow)
{
    const Input next = std::move(input.front());
    input.pop_front();
    keysHeld = next.keys;
    if (mainWindow)
        next.act(*mainWindow);
    else
        problems.Report("input without a main window");
}

bool DesignerInput::HoldsKey(int virtualKey) const
{
    return (virtualKey == VK_SHIFT && (keysHeld & MK_SHIFT) != 0)
        || (virtualKey == VK_CONTROL && (keysHeld & MK_CONTROL) != 0);
}

void DesignerInput::PlayInput()
{
    while (true) {
        const bool hadInput = HasInput();
        MSG message;
        if (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) {
                PostQuitMessage(static_cast<int>(message.wParam));
                return;
            }
            DispatchMessageA(&message);
        } else if (!hadInput) {
            return;
        } else {
            Sleep(1);
        }
    }
}

} // namespace platform
