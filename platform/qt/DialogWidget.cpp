#include "platform/qt/DialogWidget.h"

#include "platform/DesktopEvents.h"
#include "platform/User.h"
#include "platform/qt/QtText.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace platform {

DialogWidget::DialogWidget(Window& dialog, QWidget* owner, DesktopState& shared)
    : QWidget(owner, FrameFlags(dialog, Qt::Dialog))
    , record(dialog)
    , state(shared)
    , place(dialog, *this, shared)
{
    setWindowModality(Qt::ApplicationModal);
}

void DialogWidget::Mirror()
{
    setWindowTitle(TextFromCodePage(record.text));
    place.Mirror();
    if (record.visible == isVisible())
        return;
    setVisible(record.visible);
    if (record.visible)
        FocusFirstControl();
}

void DialogWidget::WatchKeys()
{
    for (QWidget* inner : findChildren<QWidget*>())
        inner->installEventFilter(this);
}

// The controls' own reaction to Escape and Enter (pressing a button, finishing a field) must not happen.
bool DialogWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && ReportKey(*static_cast<QKeyEvent*>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

void DialogWidget::keyPressEvent(QKeyEvent* event)
{
    if (!ReportKey(*event))
        event->ignore();
}

void DialogWidget::moveEvent(QMoveEvent* /*event*/)
{
    place.OnMoved();
}

void DialogWidget::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (!IsShown() || !record.closeBox)
        return;
    state.reports.Add(record, [this] {
        CloseBoxClicked(record);
        return true;
    });
}

bool DialogWidget::ReportKey(const QKeyEvent& event)
{
    const bool escape = event.key() == Qt::Key_Escape;
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!escape && !enter)
        return false;
    if (IsShown()) {
        state.reports.Add(record, [this, command = escape ? IDCANCEL : IDOK] {
            DialogKey(record, command);
            return true;
        });
    }
    return true;
}

void DialogWidget::FocusFirstControl()
{
    for (const auto& control : record.children) {
        QWidget* widget = state.widgets.WidgetOf(control.get());
        if (!widget || !widget->isEnabled() || widget->focusPolicy() == Qt::NoFocus)
            continue;
        widget->setFocus();
        if (auto* field
            = control->kind == WindowKind::Edit ? qobject_cast<QLineEdit*>(widget) : widget->findChild<QLineEdit*>())
            field->selectAll();
        return;
    }
}

} // namespace platform
