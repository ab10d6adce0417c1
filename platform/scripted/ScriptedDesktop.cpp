#include "platform/scripted/ScriptedDesktop.h"

#include "platform/CodePage.h"
#include "platform/ProgramEnd.h"
#include "platform/User.h"
#include "platform/windows/WindowTable.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace platform {

namespace {

// A main loop that turns this often without any input left to come will not end by itself.
constexpr int maxIdlePumps = 10000;

template <class Answer> std::optional<Answer> TakeFirst(std::deque<Answer>& answers)
{
    if (answers.empty())
        return std::nullopt;
    Answer answer = std::move(answers.front());
    answers.pop_front();
    return answer;
}

} // namespace

ScriptedDesktop::ScriptedDesktop()
{
    InstallDesktop(this);
}

ScriptedDesktop::~ScriptedDesktop()
{
    for (size_t left = dialogScripts.size(); left > 0; --left)
        problems.Report("a dialog that was expected never opened");
    for (size_t left = menuAnswers.size(); left > 0; --left)
        problems.Report("a menu that was expected never opened");
    for (size_t left = fileAnswers.size(); left > 0; --left)
        problems.Report("a file chooser that was expected never opened");
    if (problems.Any())
        std::abort();
    DiscardWindows();
    InstallDesktop(nullptr);
}

void ScriptedDesktop::OnDialog(DialogScript script)
{
    dialogScripts.push_back(std::move(script));
}

void ScriptedDesktop::AnswerMenu(uint32_t id, std::optional<POINT> pointerAfter)
{
    menuAnswers.push_back({ id, pointerAfter });
}

void ScriptedDesktop::AnswerFileDialog(std::string nativePath)
{
    fileAnswers.push_back(std::move(nativePath));
}

void ScriptedDesktop::CancelFileDialog()
{
    fileAnswers.push_back(std::nullopt);
}

Window* ScriptedDesktop::MainWindow() const
{
    return topLevelWindows.empty() ? nullptr : topLevelWindows.front();
}

Window* ScriptedDesktop::Focus() const
{
    return IsWindow(focus) ? focus : nullptr;
}

const Surface& ScriptedDesktop::Screen() const
{
    static const Surface none;
    const Window* window = MainWindow();
    return window ? window->surface : none;
}

uint32_t ScriptedDesktop::Pixel(int x, int y) const
{
    const Surface& screen = Screen();
    const bool inside = x >= 0 && y >= 0 && x < screen.width && y < screen.height;
    return inside ? screen.At(x, y) : 0;
}

void ScriptedDesktop::DebugOutput(std::string_view text)
{
    debugMessages.push_back({ Utf8FromCodePage(text), std::string(text) });
}

void ScriptedDesktop::WindowOpened(Window& window)
{
    if (window.kind != WindowKind::Dialog) {
        topLevelWindows.push_back(&window);
        return;
    }
    dialogTitles.push_back(Utf8FromCodePage(window.text));
    openDialogs.push_back({ &window, TakeFirst(dialogScripts).value_or(nullptr) });
}

void ScriptedDesktop::WindowClosed(Window& window)
{
    std::erase(topLevelWindows, &window);
    std::erase_if(openDialogs, [&](const OpenDialog& dialog) { return dialog.window == &window; });
}

std::optional<POINT> ScriptedDesktop::PointerIn(const Window& window)
{
    const auto at = FreePointer();
    if (!at || &window != MainWindow())
        return std::nullopt;
    const POINT onDisplay { window.place.left + at->x, window.place.top + at->y };
    const bool covered = std::any_of(topLevelWindows.begin() + 1, topLevelWindows.end(), [&](const Window* other) {
        const RECT& place = other->place;
        return other->visible && onDisplay.x >= place.left && onDisplay.y >= place.top && onDisplay.x < place.right
            && onDisplay.y < place.bottom;
    });
    return covered ? std::nullopt : at;
}

bool ScriptedDesktop::Pump(bool)
{
    if (openDialogs.empty() && !HasInput()) {
        CountIdlePump();
        return false;
    }
    if (!openDialogs.empty()) {
        WorkDialog();
    } else {
        idlePumps = 0;
        LetNextInputIn(MainWindow());
    }
    return true;
}

void ScriptedDesktop::WorkDialog()
{
    Window* dialog = openDialogs.back().window;
    if (const DialogScript script = std::exchange(openDialogs.back().script, nullptr)) {
        DialogDriver driver(problems, dialog);
        script(driver);
        return;
    }
    problems.Report("the dialog \"" + Utf8FromCodePage(dialog->text) + "\" was left open");
    EndDialog(dialog, 0);
}

// Nobody will press anything any more: a main loop is told to end, so that the test does not run for ever.
void ScriptedDesktop::CountIdlePump()
{
    if (++idlePumps != maxIdlePumps)
        return;
    problems.Report("the program waits, but no input is left");
    PostQuitMessage(-1);
}

int ScriptedDesktop::ShowMessageBox(Window* owner, std::string_view text, std::string_view caption)
{
    messageBoxes.push_back({ Utf8FromCodePage(text), Utf8FromCodePage(caption), owner });
    return IDOK;
}

uint32_t ScriptedDesktop::ShowMenu(Window&, const Menu& menu, POINT at)
{
    menus.push_back({ menu.items, at });
    const auto answer = TakeFirst(menuAnswers);
    if (!answer) {
        problems.Report("a menu opened without an answer");
        return 0;
    }
    if (answer->pointer)
        PointTo(*answer->pointer);
    for (const MenuItem& item : menu.items)
        if (item.id == answer->id)
            return item.id;
    if (answer->id != 0)
        problems.Report("the menu has no item " + std::to_string(answer->id));
    return 0;
}

std::optional<std::string> ScriptedDesktop::ChooseFile(const FileRequest& request)
{
    fileDialogs.push_back(request);
    const auto answer = TakeFirst(fileAnswers);
    if (!answer)
        problems.Report("a file chooser opened without an answer");
    return answer.value_or(std::nullopt);
}

} // namespace platform
