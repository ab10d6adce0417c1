#include "tests/platform/windows/WindowProgram.h"

#include "platform/Desktop.h"
#include "platform/Gdi.h"

#include <map>

namespace {

using enum platform::ControlKind;

constexpr platform::DialogControl controls[] = {
    { Label, -1, "R&D <b>", 5, 6, 30, 8 },
    { .kind = Edit, .id = NameField, .text = "", .x = 40, .y = 4, .width = 50, .height = 14 },
    { .kind = Edit, .id = AgeField, .text = "", .x = 40, .y = 20, .width = 50, .height = 14, .digitsOnly = true },
    { .kind = Edit, .id = SizeField, .text = "9", .x = 40, .y = 36, .width = 50, .height = 14, .displayOnly = true },
    { .kind = DropDown, .id = SortedList, .text = "", .x = 5, .y = 52, .width = 40, .height = 30, .sorted = true },
    { DropDown, PlainList, "", 50, 52, 41, 30 },
    { CheckBox, LoudBox, "大聲", 5, 70, 40, 10 },
    { PushButton, DoneButton, "確定", 50, 70, 40, 14 },
};
constexpr platform::DialogTemplate dialogs[] = {
    { "SETTINGS", "設定", 100, 90, true, controls },
    { "BARE", "空白", 60, 20, false, {} },
};
constexpr platform::MenuItemTemplate items[] = { { 11, "紅" }, { 12, "綠 & 藍" } };
constexpr platform::MenuTemplate menus[] = { { "COLOURS", items } };

const std::map<UINT, std::string> messageNames = {
    { WM_CREATE, "create" },
    { WM_DESTROY, "destroy" },
    { WM_CLOSE, "close" },
    { WM_ERASEBKGND, "erase" },
    { WM_WINDOWPOSCHANGED, "placed" },
    { WM_KEYDOWN, "key" },
    { WM_INITDIALOG, "init" },
    { WM_COMMAND, "command" },
    { WM_MOUSEMOVE, "move" },
    { WM_LBUTTONDOWN, "press" },
    { WM_LBUTTONUP, "release" },
    { WM_LBUTTONDBLCLK, "double" },
    { WM_RBUTTONDOWN, "right" },
};

} // namespace

const platform::Module testResources { .dialogs = dialogs, .menus = menus, .icons = {} };

WindowProgram::WindowProgram()
{
    running = this;
}

HWND WindowProgram::OpenWindow(UINT classStyle)
{
    WNDCLASSEXA windowClass;
    windowClass.style = classStyle;
    windowClass.lpfnWndProc = WindowProcedure;
    windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    windowClass.lpszClassName = "Test";
    RegisterClassExA(&windowClass);
    const SIZE frame = platform::InstalledDesktop()->FrameSize({});
    const int side = frame.cx / 2;
    HWND window = CreateWindowExA(0, "TEST", "window", WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 50 - side,
        60 - (frame.cy - side), 200 + frame.cx, 100 + frame.cy, nullptr, nullptr, &testResources, nullptr);
    UpdateWindow(window);
    log.clear();
    return window;
}

Log WindowProgram::TakeLog()
{
    return std::exchange(log, {});
}

Log WindowProgram::Settled()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        DispatchMessageA(&message);
    }
    std::erase_if(log, [](const auto& note) { return note.ends_with("placed") || note.ends_with("erase"); });
    return TakeLog();
}

INT_PTR WindowProgram::RunDialog(const char* name, HWND owner)
{
    return DialogBoxParamA(&testResources, name, owner, DialogProcedure, 0);
}

void WindowProgram::Note(const std::string& receiver, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto name = messageNames.find(message);
    std::string note = receiver + (name == messageNames.end() ? std::to_string(message) : name->second);
    const auto bits = static_cast<uintptr_t>(lParam);
    if (message >= WM_MOUSEMOVE && message <= WM_RBUTTONDBLCLK) {
        for (const WORD coordinate : { LOWORD(bits), HIWORD(bits) })
            note.append(" ").append(std::to_string(static_cast<int16_t>(coordinate)));
        note.append(" ").append(std::to_string(wParam));
    } else if (message == WM_COMMAND || message == WM_KEYDOWN) {
        note.append(" ").append(std::to_string(wParam));
    }
    if (message == WM_KEYDOWN && GetKeyState(VK_CONTROL) < 0)
        note += " ctrl";
    log.push_back(note);
}

LRESULT WindowProgram::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    running->Note("", message, wParam, lParam);
    if (message == WM_CREATE)
        CreateWindowExA(0, "Button", "go", WS_CHILD | WS_VISIBLE, 0, 0, 20, 10, window, ControlId(7), nullptr, nullptr);
    const LRESULT answer = running->onWindowMessage ? running->onWindowMessage(window, message) : 0;
    return answer != 0 ? answer : DefWindowProcA(window, message, wParam, lParam);
}

INT_PTR WindowProgram::DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    running->Note("dialog ", message, wParam, lParam);
    if (running->onDialogMessage)
        running->onDialogMessage(dialog, message, wParam);
    return 0;
}
