#pragma once

#include "platform/Window.h"
#include "platform/scripted/Problems.h"

#include <string>
#include <string_view>
#include <vector>

namespace platform {

// The designer's hands in one open dialog; controls are named by id, texts are UTF-8. Working a control that is not
// there, of another kind or disabled is a problem of the desktop and does nothing else.
class DialogDriver {
public:
    DialogDriver(Problems& desktopsProblems, HWND openDialog);

    HWND Handle() const { return dialog; }
    bool IsOpen() const; // false as soon as it is ended
    std::string Title() const;
    std::string Text(int id) const; // of any control; a drop-down's is that of its field
    std::string Bytes(int id) const; // the same, in code page 950
    std::vector<std::string> Items(int id) const;
    int Selection(int id) const; // -1: none
    bool IsChecked(int id) const;
    std::string Value(int id) const; // the text, of a check box "on" or "off"

    // Replaces the text as typing does: digits-only fields drop what is no digit, a drop-down loses its selection,
    // what code page 950 cannot spell becomes "?".
    void SetText(int id, std::string_view text);
    void Select(int id, int index);
    void Check(int id, bool on);
    // Makes a control show the value: chooses the entry with that text where a list has it, ticks a check box ("on") or
    // not, types anything else. A field that only shows is left as it is.
    void Enter(int id, const std::string& value);
    void Press(int id);
    void Key(int virtualKey); // VK_ESCAPE or VK_RETURN
    void CloseBox(); // a problem where the dialog has none
    void Move(int x, int y); // of the client area, on the display

private:
    HWND Control(int id) const;
    HWND ControlFor(WindowKind kind, int id) const;

    Problems& problems;
    HWND dialog;
};

} // namespace platform
