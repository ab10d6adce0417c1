#include "tests/platform/qt/QtProgram.h"

#include "platform/CodePage.h"
#include "platform/ProgramEnd.h"
#include "platform/Resources.h"
#include "platform/qt/QtDesktop.h"

#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QWindow>

#include <map>
#include <memory>
#include <utility>

namespace {

using enum platform::ControlKind;

constexpr platform::DialogControl controls[] = {
    { Label, -1, "R&D <b>", 5, 6, 30, 8 },
    { Edit, NameField, "", 40, 4, 50, 14 },
    { .kind = Edit, .id = AgeField, .text = "", .x = 40, .y = 20, .width = 50, .height = 14, .digitsOnly = true },
    { .kind = Edit, .id = TownField, .text = "", .x = 40, .y = 36, .width = 50, .height = 14, .displayOnly = true },
    { DropDown, ColourList, "", 5, 52, 41, 30 },
    { CheckBox, LoudBox, "大聲", 5, 70, 40, 10 },
    { PushButton, DoneButton, "確定", 50, 70, 40, 14 },
};
constexpr platform::DialogTemplate dialogs[] = { { "PERSON", "人", 100, 90, false, controls } };
constexpr platform::MenuItemTemplate items[] = { { 11, "紅" }, { 12, "綠 & 藍" } };
constexpr platform::MenuTemplate menus[] = { { "COLOURS", items } };

Steps stepsToCome;

bool IsQuestionOpen()
{
    const QWidget* popup = QApplication::activePopupWidget();
    const QWidget* question = popup ? popup : QApplication::activeModalWidget();
    return question && question->windowHandle() && question->windowHandle()->isExposed();
}

// The real desktop with a designer who makes the next step when the program has dealt with everything and waits.
class WorkedDesktop final : public platform::QtDesktop {
public:
    using QtDesktop::QtDesktop;
    bool Pump(bool wait) override
    {
        if (QtDesktop::Pump(false))
            return true;
        if (!wait || stepsToCome.empty() || !IsQuestionOpen())
            return wait && QtDesktop::Pump(true);
        const auto step = stepsToCome.front();
        stepsToCome.erase(stepsToCome.begin());
        step();
        return true;
    }
};

// The application object exists while tests run, and not while they are listed.
class DesktopEnvironment final : public testing::Environment {
public:
    void SetUp() override
    {
        const QByteArray folder = settings.path().toUtf8();
        const std::pair<const char*, const char*> surroundings[]
            = { { "QT_QPA_PLATFORM", "offscreen" }, { "QT_QPA_PLATFORMTHEME", "" }, { "QT_STYLE_OVERRIDE", "Fusion" },
                  { "QT_SCALE_FACTOR", "1" }, { "LANG", "C.UTF-8" }, { "XDG_CONFIG_HOME", folder.constData() } };
        for (const auto& [variable, value] : surroundings)
            qputenv(variable, value);
        desktop = std::make_unique<WorkedDesktop>("platform_qt_tests");
        platform::InstallDesktop(desktop.get());
    }
    void TearDown() override
    {
        desktop.reset();
        platform::InstallDesktop(nullptr);
    }

private:
    const QTemporaryDir settings;
    std::unique_ptr<platform::QtDesktop> desktop;
};

testing::Environment* const environment = testing::AddGlobalTestEnvironment(new DesktopEnvironment);

const std::map<UINT, std::string> mouseMessages = { { WM_LBUTTONDOWN, "press" }, { WM_LBUTTONDBLCLK, "double" },
    { WM_LBUTTONUP, "release" }, { WM_MOUSEMOVE, "move" } };

std::string Noted(UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto coordinate = [](WORD word) { return std::to_string(static_cast<int16_t>(word)) + " "; };
    const auto point = static_cast<uintptr_t>(lParam);
    if (const auto mouse = mouseMessages.find(message); mouse != mouseMessages.end())
        return mouse->second + " " + coordinate(LOWORD(point)) + coordinate(HIWORD(point)) + std::to_string(wParam);
    if (message == WM_KEYDOWN)
        return "key " + std::to_string(wParam) + (GetKeyState(VK_CONTROL) < 0 ? " ctrl" : "");
    if (message == WM_COMMAND)
        return "command " + std::to_string(LOWORD(wParam));
    return message == WM_CLOSE ? "close" : "";
}

} // namespace

const platform::Module personResources { .dialogs = dialogs, .menus = menus, .icons = {} };

QtProgram::QtProgram()
{
    running = this;
    WNDCLASSEXA windowClass;
    windowClass.style = CS_DBLCLKS;
    windowClass.lpfnWndProc = WindowProcedure;
    windowClass.lpszClassName = "Test";
    RegisterClassExA(&windowClass);
    window = CreateWindowExA(0, "Test", "window", WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 50, 60, 200, 100, nullptr,
        nullptr, &personResources, nullptr);
    TakeLog();
}

QtProgram::~QtProgram()
{
    EXPECT_TRUE(std::exchange(stepsToCome, {}).empty());
    platform::DiscardWindows();
    running = nullptr;
}

Log QtProgram::TakeLog()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageA(&message);
    return std::exchange(log, {});
}

void QtProgram::WhileModal(const Steps& steps)
{
    stepsToCome.insert(stepsToCome.end(), steps.begin(), steps.end());
}

void QtProgram::WorkInDialog(Steps steps)
{
    steps.push_back([this] { QTest::mouseClick(&InDialog<QPushButton>(), Qt::LeftButton); });
    WhileModal(steps);
    EXPECT_EQ(DialogBoxParamA(&personResources, "Person", window, DialogProcedure, 0), 42);
}

QWidget& QtProgram::Canvas() const
{
    return *QApplication::topLevelAt(window->place.left, window->place.top);
}

LRESULT QtProgram::WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_CREATE) {
        CreateWindowExA(0, "BUTTON", "go", WS_CHILD | WS_VISIBLE, 0, 0, 60, 20, window, ControlId(7), nullptr, nullptr);
        return 0;
    }
    if (const std::string note = Noted(message, wParam, lParam); !note.empty())
        running->log.push_back(note);
    if (running->onMessage)
        running->onMessage(message);
    return DefWindowProcA(window, message, wParam, lParam);
}

INT_PTR QtProgram::DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM)
{
    running->dialog = dialog;
    if (message == WM_INITDIALOG) {
        SetWindowTextA(GetDlgItem(dialog, NameField), "Ann");
        for (const char* colour : { "red", "green", "blue" })
            SendMessageA(GetDlgItem(dialog, ColourList), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(colour));
        SendMessageA(GetDlgItem(dialog, ColourList), CB_SETCURSEL, 0, 0);
    }
    if (message == WM_COMMAND)
        running->log.push_back("dialog command " + std::to_string(LOWORD(wParam)));
    if (message == WM_COMMAND && wParam == DoneButton)
        EndDialog(dialog, 42);
    return 0;
}

std::string QtProgram::TextOf(int id) const
{
    char text[260];
    GetWindowTextA(GetDlgItem(dialog, id), text, sizeof text);
    return platform::Utf8FromCodePage(text);
}
