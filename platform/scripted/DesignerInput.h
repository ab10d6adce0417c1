#pragma once

#include "platform/Window.h"
#include "platform/scripted/Problems.h"

#include <deque>
#include <functional>
#include <optional>

namespace platform {

// The designer's hands on the main window: points are client pixels, `keys` MK_SHIFT or MK_CONTROL held meanwhile (and,
// for GetKeyState, until the next piece of input). Whether the left button is held is kept track of; the right one
// never stays down.
//
// The input is queued: one piece is let in when the program asks for a message and none is queued, so that a piece
// meets the program as its predecessor has left it.
class DesignerInput {
public:
    DesignerInput(const DesignerInput&) = delete;
    DesignerInput& operator=(const DesignerInput&) = delete;

    void Press(int x, int y, WPARAM keys = 0);
    void MoveTo(int x, int y, WPARAM keys = 0);
    void Release(int x, int y, WPARAM keys = 0);
    void Click(int x, int y, WPARAM keys = 0); // Press and Release; two of them are not a double click
    void PressAgain(int x, int y, WPARAM keys = 0); // the second press of a double click
    void DoubleClick(int x, int y, WPARAM keys = 0); // Click, PressAgain, Release
    void Drag(POINT from, POINT to, WPARAM keys = 0); // Press, MoveTo, Release
    void RightPress(int x, int y, WPARAM keys = 0);
    void Key(int virtualKey, WPARAM keys = 0);
    void ClickButton(int id);
    void CloseBox();
    void MoveWindowTo(int x, int y); // of the client area, on the display
    // Moves the pointer at once, as happens while a question is open: the main window hears of it when it closes.
    void PointTo(POINT at) { pointer = at; }
    // Runs `step` between two pieces of input, for a look at how things stand.
    void Do(std::function<void()> step);

    // Takes and dispatches messages until the input is used up, as a main loop does, without its idle step. A quit
    // request stops it and stays pending.
    void PlayInput();
    bool HasInput() const { return !input.empty(); }

protected:
    DesignerInput() = default;
    ~DesignerInput() = default;

    // Lets one piece in; null: there is no main window.
    void LetNextInputIn(Window* mainWindow);
    bool HoldsKey(int virtualKey) const;
    // Client pixels of the main window; nothing when it is elsewhere or the left button is held.
    std::optional<POINT> FreePointer() const { return leftButtonHeld ? std::nullopt : pointer; }

    Problems problems;

private:
    struct Input {
        std::function<void(Window&)> act; // on the main window
        WPARAM keys = 0;
    };

    void Queue(std::function<void(Window&)> act, WPARAM keys = 0);
    void QueueMouse(UINT message, int x, int y, WPARAM keys);

    std::deque<Input> input;
    WPARAM keysHeld = 0;
    bool leftButtonHeld = false;
    std::optional<POINT> pointer;
};

} // namespace platform
