#include "platform/qt/CanvasWidget.h"

#include "platform/DesktopEvents.h"
#include "platform/Resources.h"
#include "platform/User.h"
#include "platform/qt/QtKeys.h"
#include "platform/qt/QtText.h"

#include <QCloseEvent>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace platform {
namespace {

QImage PictureOf(const Surface& surface)
{
    QImage picture(surface.width, surface.height, QImage::Format_RGB32);
    for (int y = 0; y < surface.height; ++y) {
        const auto first = surface.pixels.begin() + static_cast<ptrdiff_t>(y) * surface.width;
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        std::transform(first, first + surface.width, line, [](uint32_t pixel) { return 0xFF000000 | pixel; });
    }
    return picture;
}

void AddPicture(QIcon& icon, const Icon* picture)
{
    if (!picture || picture->size <= 0)
        return;
    const auto* bytes = reinterpret_cast<const uchar*>(picture->pixels.data());
    const QImage image(bytes, picture->size, picture->size, QImage::Format_ARGB32);
    icon.addPixmap(QPixmap::fromImage(image.copy()));
}

} // namespace

CanvasWidget::CanvasWidget(Window& window, DesktopState& shared)
    : QWidget(nullptr, FrameFlags(window, Qt::Window))
    , record(window)
    , state(shared)
    , place(window, *this, shared)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    // Letter keys are commands here and must not end in an input method.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    QIcon icon;
    AddPicture(icon, record.largeIcon);
    AddPicture(icon, record.smallIcon);
    setWindowIcon(icon);
}

void CanvasWidget::Mirror()
{
    setWindowTitle(TextFromCodePage(record.text));
    place.Mirror();
    setVisible(record.visible);
}

void CanvasWidget::OnDrawn()
{
    drawn = true;
    update();
}

void CanvasWidget::Flush()
{
    if (drawn)
        repaint();
    drawn = false;
}

void CanvasWidget::paintEvent(QPaintEvent* /*event*/)
{
    if (!IsShown())
        return;
    drawn = false;
    QPainter painter(this);
    painter.drawImage(0, 0, PictureOf(record.surface));
}

void CanvasWidget::mousePressEvent(QMouseEvent* event)
{
    ReportButton(*event, WM_LBUTTONDOWN, WM_RBUTTONDOWN);
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event)
{
    ReportButton(*event, WM_LBUTTONUP, WM_RBUTTONUP);
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event)
{
    ReportMouse(event->position().toPoint(), event->modifiers(), event->buttons(), WM_MOUSEMOVE);
}

// The window under the pointer has become this one, which need not have been the pointer's doing.
void CanvasWidget::enterEvent(QEnterEvent* event)
{
    // The event itself knows neither keys nor buttons.
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        ReportMouse(event->position().toPoint(), QGuiApplication::keyboardModifiers(), Qt::NoButton, WM_MOUSEMOVE);
}

// The second press of a double click, for which there is no press event of its own.
void CanvasWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    ReportButton(*event, WM_LBUTTONDBLCLK, WM_RBUTTONDBLCLK);
}

void CanvasWidget::keyPressEvent(QKeyEvent* event)
{
    const int virtualKey = VirtualKeyOf(*event);
    const auto modifiers = event->modifiers();
    // With Alt alone a key belongs to the window's menus.
    const bool forMenus = (modifiers & Qt::AltModifier) && !(modifiers & Qt::ControlModifier);
    if (virtualKey == 0 || forMenus || !IsShown())
        return event->ignore();
    state.reports.Add(record, [this, virtualKey, modifiers] {
        state.modifiers = modifiers;
        PostKeyDown(record, virtualKey);
        return true;
    });
}

void CanvasWidget::moveEvent(QMoveEvent* /*event*/)
{
    place.OnMoved();
}

void CanvasWidget::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (!IsShown() || !record.closeBox)
        return;
    state.reports.Add(record, [this] {
        CloseBoxClicked(record);
        return true;
    });
}

bool CanvasWidget::focusNextPrevChild(bool /*next*/)
{
    return false;
}

void CanvasWidget::ReportButton(const QMouseEvent& event, UINT leftMessage, UINT rightMessage)
{
    if (event.button() != Qt::LeftButton && event.button() != Qt::RightButton)
        return;
    const UINT message = event.button() == Qt::LeftButton ? leftMessage : rightMessage;
    ReportMouse(event.position().toPoint(), event.modifiers(), event.buttons(), message);
}

// The toolkit keeps on telling about the mouse outside the client area, or over a push button, while a mouse button is
// held. The program hears of that only with the mouse captured, which is decided when its turn comes: the press before
// may have captured it.
void CanvasWidget::ReportMouse(QPoint point, Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons, UINT message)
{
    if (!IsShown())
        return;
    const WPARAM keys = MouseKeysOf(buttons, modifiers);
    state.reports.Add(record, [this, point, modifiers, keys, message] {
        if (!PostMouse(record, message, { point.x(), point.y() }, keys))
            return false;
        state.modifiers = modifiers;
        return true;
    });
}

} // namespace platform
