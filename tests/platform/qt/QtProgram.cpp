#include "tests/platform/qt/QtProgram.h"

#include "platform/ProgramEnd.h"
#include "platform/qt/QtDesktop.h"

#include <QApplication>
#include <QCursor>
#include <QPushButton>
#include <QTemporaryDir>
#include <QWindow>

#include <memory>
#include <utility>

namespace {

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

} // namespace

void WhileModal(const Steps& steps)
{
    stepsToCome.insert(stepsToCome.end(), steps.begin(), steps.end());
}

void EndProgram()
{
    EXPECT_TRUE(std::exchange(stepsToCome, {}).empty());
    QCursor::setPos(700, 500);
    platform::DiscardWindows();
}

QWidget& Canvas()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && widget->windowTitle() == QStringLiteral("window"))
            return *widget;
    std::abort();
}

QtProgram::QtProgram()
{
    window = OpenWindow(CS_DBLCLKS);
    Settled();
    onDialogMessage = [this](HWND open, UINT message, WPARAM wParam) {
        dialog = open;
        if (message == WM_INITDIALOG) {
            SetWindowTextA(GetDlgItem(dialog, NameField), "Ann");
            for (const char* colour : { "red", "green", "blue" })
                SendMessageA(GetDlgItem(dialog, PlainList), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(colour));
            SendMessageA(GetDlgItem(dialog, PlainList), CB_SETCURSEL, 0, 0);
        }
        if (message == WM_COMMAND && wParam == DoneButton)
            EndDialog(dialog, 42);
    };
}

void QtProgram::WorkInDialog(Steps steps)
{
    steps.insert(steps.begin(), [this] { TakeLog(); });
    steps.push_back([this] { QTest::mouseClick(&InDialog<QPushButton>(), Qt::LeftButton); });
    WhileModal(steps);
    EXPECT_EQ(RunDialog("Settings", window), 42);
}
