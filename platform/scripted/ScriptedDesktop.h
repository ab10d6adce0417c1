#pragma once

#include "platform/Desktop.h"
#include "platform/Menu.h"
#include "platform/scripted/DesignerInput.h"
#include "platform/scripted/DialogDriver.h"
#include "platform/windows/InputState.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct ShownMessage {
    std::string text; // UTF-8
    std::string caption; // UTF-8
    Window* owner = nullptr; // may be gone by now: compare it, but do not look into it
};

struct ShownMenu {
    std::vector<MenuItem> items;
    POINT at {}; // on the display
};

struct DebugMessage {
    std::string text; // UTF-8
    std::string bytes; // code page 950
};

// A desktop in memory, worked by a test that plays the designer. It is the installed desktop for as long as it lives;
// with it go all windows, classes and messages.
//
// While a dialog is open the designer's input stands still and the dialog's own script acts. Answers to dialogs, menus
// and file choosers are given in advance, in the order of their questions.
//
// What a designer would be stuck with (a dialog left open, a menu or file chooser without an answer, a press on a
// missing button) is a problem: the question is cancelled (a dialog ends with 0), the problem is written to stderr, and
// the process is aborted when the desktop goes, unless the test has taken it with TakeProblems. Answers that were never
// asked for are problems too.
class ScriptedDesktop final : public Desktop, public DesignerInput {
public:
    ScriptedDesktop();
    ~ScriptedDesktop() override;

    // What the program finds; before the window in question is made.
    void SetFrameSize(SIZE size) { frameSize = size; } // 6 by 32
    void SetDisplaySize(SIZE size) { displaySize = size; } // 1920 by 1080
    // The clock stands still except for the program's Sleep and these.
    void SetClock(uint32_t milliseconds) { clock = milliseconds; }
    void Advance(uint32_t milliseconds) { clock += milliseconds; }

    // Answers. A file name is native, from the chooser's folder when relative; a menu answered with 0 is dismissed.
    void OnDialog(std::function<void(DialogDriver&)> script);
    void AnswerMenu(uint32_t id, std::optional<POINT> pointer = {}); // which then lies there
    void AnswerFileDialog(std::string nativePath);
    void CancelFileDialog();

    // What came of it.
    Window* MainWindow() const; // the first top-level window that is open, or null
    uint32_t Pixel(int x, int y) const; // of the main window's client area, 0x00RRGGBB
    const Surface& Screen() const; // the main window's client area; empty without one
    int TimesDrawn() const { return timesDrawn; } // how often a drawing context was given back
    Window* Focus() const; // null when it went with its window
    Window* Capture() const { return CapturedWindow(); }
    const std::vector<ShownMessage>& MessageBoxes() const { return messageBoxes; }
    const std::vector<ShownMenu>& Menus() const { return menus; }
    const std::vector<FileRequest>& FileDialogs() const { return fileDialogs; }
    const std::vector<std::string>& Dialogs() const { return dialogTitles; } // UTF-8, as they opened
    const std::vector<DebugMessage>& DebugMessages() const { return debugMessages; }

    std::vector<std::string> TakeProblems() { return problems.Take(); }

    uint32_t TickCount() override { return clock; }
    void Sleep(uint32_t milliseconds) override { clock += milliseconds; }
    void DebugOutput(std::string_view text) override;
    void WindowOpened(Window& window) override;
    void WindowChanged(Window&) override { }
    void WindowClosed(Window& window) override;
    void SurfaceDrawn(Window&) override { ++timesDrawn; }
    void FocusChanged(Window& window) override { focus = &window; }
    SIZE FrameSize(const Window&) override { return frameSize; }
    SIZE DisplaySize() override { return displaySize; }
    bool IsKeyDown(int virtualKey) override { return HoldsKey(virtualKey); }
    std::optional<POINT> PointerIn(const Window& window) override;
    bool Pump(bool wait) override;
    int ShowMessageBox(Window* owner, std::string_view text, std::string_view caption) override;
    uint32_t ShowMenu(Window& owner, const Menu& menu, POINT at) override;
    std::optional<std::string> ChooseFile(const FileRequest& request) override;

private:
    using DialogScript = std::function<void(DialogDriver&)>;
    struct MenuAnswer {
        uint32_t id = 0;
        std::optional<POINT> pointer;
    };
    struct OpenDialog {
        Window* window = nullptr;
        DialogScript script; // empty once it has run
    };

    void WorkDialog();
    void CountIdlePump();

    SIZE frameSize { 6, 32 };
    SIZE displaySize { 1920, 1080 };
    uint32_t clock = 0;
    int idlePumps = 0;

    std::deque<DialogScript> dialogScripts;
    std::deque<MenuAnswer> menuAnswers;
    std::deque<std::optional<std::string>> fileAnswers;

    std::vector<Window*> topLevelWindows;
    std::vector<OpenDialog> openDialogs; // innermost last
    Window* focus = nullptr;
    int timesDrawn = 0;
    std::vector<ShownMessage> messageBoxes;
    std::vector<ShownMenu> menus;
    std::vector<FileRequest> fileDialogs;
    std::vector<std::string> dialogTitles;
    std::vector<DebugMessage> debugMessages;
};

} // namespace platform
