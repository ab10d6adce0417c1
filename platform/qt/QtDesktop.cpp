#include "platform/qt/QtDesktop.h"

#include "platform/ProgramEnd.h"
#include "platform/User.h"
#include "platform/qt/CanvasWidget.h"
#include "platform/qt/ControlWidgets.h"
#include "platform/qt/DialogWidget.h"
#include "platform/qt/QtText.h"
#include "platform/qt/Questions.h"

#include <QApplication>
#include <QCursor>
#include <QLibraryInfo>
#include <QScreen>
#include <QSettings>
#include <QTranslator>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace platform {
namespace {

constexpr int longestRoundMs = 50;

QtMessageHandler toolkitsOwnHandler = nullptr;

// The toolkit tries whatever displays there may be in its own way and says what was wrong with each, then aborts.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type != QtFatalMsg)
        return toolkitsOwnHandler(type, context, message);
    std::fputs("tobrik: no display can be reached, so the editor cannot open its window\n", stderr);
    std::_Exit(EXIT_SUCCESS);
}

std::unique_ptr<QApplication> MakeApplication(int& argc, char** argv)
{
    // A canvas pixel covers a whole number of display pixels.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::RoundPreferFloor);
    // The toolkit's own dialogs behave the same on every desktop.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setApplicationName(QStringLiteral("tobrik"));
    toolkitsOwnHandler = qInstallMessageHandler(EndWithoutDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(toolkitsOwnHandler);
    // The file chooser would leave its last folders and its columns in a settings file; nothing can be written here.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
    // The user's locale must not reach the numbers in files.
    std::setlocale(LC_NUMERIC, "C");
    QGuiApplication::setDesktopFileName(QStringLiteral("tobrik"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setFont(DialogFont());
    return application;
}

} // namespace

struct QtDesktop::Parts {
    std::string programName;
    char* arguments[2] = { programName.data(), nullptr };
    int argumentCount = 1;
    std::unique_ptr<QApplication> application;
    QTranslator translator;
    DesktopState state;
    int pumpDepth = 0;

    explicit Parts(std::string name)
        : programName(std::move(name))
        , application(MakeApplication(argumentCount, arguments))
    {
        // The file chooser speaks the editor's language where the translation is installed.
        if (translator.load(QStringLiteral("qtbase_zh_TW"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(&translator);
    }

    CanvasWidget* CanvasOf(const Window& window) const
    {
        return dynamic_cast<CanvasWidget*>(state.widgets.WidgetOf(&window));
    }

    void Open(Window& window);
    void Flush(const QWidgetList& windows);
};

// A child that comes before its parent's widget is made together with it.
void QtDesktop::Parts::Open(Window& window)
{
    if (state.widgets.WidgetOf(&window))
        return;
    QWidget* parent = state.widgets.WidgetOf(window.parent);
    if (window.kind == WindowKind::TopLevel) {
        auto* canvas = new CanvasWidget(window, state);
        state.widgets.Bind(window, *canvas);
        for (const auto& child : window.children)
            MakeControl(*child, *canvas, state);
        canvas->Mirror();
    } else if (window.kind == WindowKind::Dialog) {
        auto* dialog = new DialogWidget(window, parent, state);
        state.widgets.Bind(window, *dialog);
        for (const auto& child : window.children)
            MakeControl(*child, *dialog, state);
        dialog->WatchKeys();
        dialog->Mirror();
    } else if (parent) {
        MakeControl(window, *parent, state);
    }
}

void QtDesktop::Parts::Flush(const QWidgetList& windows)
{
    for (QWidget* window : windows) {
        if (auto* canvas = dynamic_cast<CanvasWidget*>(window))
            canvas->Flush();
    }
}

QtDesktop::QtDesktop(std::string programName)
    : parts(std::make_unique<Parts>(std::move(programName)))
{
}

QtDesktop::~QtDesktop()
{
    DiscardWindows();
    parts->state.widgets.DeleteAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void QtDesktop::Sleep(uint32_t milliseconds)
{
    parts->Flush(QApplication::topLevelWidgets());
    Desktop::Sleep(milliseconds);
}

void QtDesktop::WindowOpened(Window& window)
{
    parts->Open(window);
}

void QtDesktop::WindowChanged(Window& window)
{
    QWidget* widget = parts->state.widgets.WidgetOf(&window);
    if (auto* canvas = dynamic_cast<CanvasWidget*>(widget))
        canvas->Mirror();
    else if (auto* dialog = dynamic_cast<DialogWidget*>(widget))
        dialog->Mirror();
    else if (widget)
        MirrorControl(*widget, window);
}

// The widget may be in the middle of an event: it goes when the outermost Pump has come back from all of them.
void QtDesktop::WindowClosed(Window& window)
{
    QWidget* widget = parts->state.widgets.WidgetOf(&window);
    parts->state.reports.Forget(window);
    parts->state.widgets.Release(window);
    if (!widget)
        return;
    widget->hide();
    widget->deleteLater();
}

void QtDesktop::SurfaceDrawn(Window& window)
{
    if (CanvasWidget* canvas = parts->CanvasOf(window))
        canvas->OnDrawn();
}

void QtDesktop::FocusChanged(Window& window)
{
    QWidget* widget = parts->state.widgets.WidgetOf(&window);
    if (!widget)
        return;
    // Window managers lose the keyboard when a box and the dialog under it go at the same moment.
    widget->activateWindow();
    widget->setFocus();
}

SIZE QtDesktop::FrameSize(const Window& window)
{
    const QWidget* widget = parts->state.widgets.WidgetOf(&window);
    if (!widget)
        return {};
    const QSize frame = widget->frameGeometry().size() - widget->geometry().size();
    return { frame.width(), frame.height() };
}

SIZE QtDesktop::DisplaySize()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return {};
    return { screen->geometry().width(), screen->geometry().height() };
}

bool QtDesktop::IsKeyDown(int virtualKey)
{
    if (virtualKey == VK_SHIFT)
        return parts->state.modifiers.testFlag(Qt::ShiftModifier);
    return virtualKey == VK_CONTROL && parts->state.modifiers.testFlag(Qt::ControlModifier);
}

std::optional<POINT> QtDesktop::PointerIn(const Window& window)
{
    const QWidget* widget = parts->state.widgets.WidgetOf(&window);
    const QPoint pointer = QCursor::pos();
    if (!widget || QApplication::widgetAt(pointer) != widget || QGuiApplication::mouseButtons() != Qt::NoButton)
        return std::nullopt;
    const QPoint at = widget->mapFromGlobal(pointer);
    return POINT { at.x(), at.y() };
}

bool QtDesktop::Pump(bool wait)
{
    ++parts->pumpDepth;
    if (wait && parts->state.reports.Empty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    else // one round of the toolkit's may serve its own affairs and leave the user's for the next
        QCoreApplication::processEvents(QEventLoop::AllEvents, longestRoundMs);
    const bool told = parts->state.reports.TellNext();
    --parts->pumpDepth;
    if (parts->pumpDepth == 0)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return told;
}

int QtDesktop::ShowMessageBox(Window* owner, std::string_view text, std::string_view caption)
{
    return AskMessageBox(parts->state.widgets.WidgetOf(owner), TextFromCodePage(text), TextFromCodePage(caption));
}

uint32_t QtDesktop::ShowMenu(Window& owner, const Menu& menu, POINT at)
{
    return AskMenu(parts->state.widgets.WidgetOf(&owner), menu, { at.x, at.y });
}

std::optional<std::string> QtDesktop::ChooseFile(const FileRequest& request)
{
    return AskFile(parts->state.widgets.WidgetOf(request.owner), request);
}

} // namespace platform
