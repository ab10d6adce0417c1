#include "platform/qt/ControlWidgets.h"

#include "platform/DesktopEvents.h"
#include "platform/qt/DropDownControl.h"
#include "platform/qt/QtText.h"
#include "platform/qt/TextFields.h"
#include "platform/qt/TopLevelPlace.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace platform {
namespace {

void ReportClick(Window& control, const QWidget& widget, DesktopState& state)
{
    if (!state.widgets.Shows(widget, control))
        return;
    state.reports.Add(control, [&control] {
        ButtonClicked(control);
        return true;
    });
}

QWidget* MakePushButton(Window& control, QWidget& parent, DesktopState& state)
{
    auto* widget = new QPushButton(&parent);
    widget->setAutoDefault(false);
    // A window's button leaves the keyboard to the window.
    if (control.parent && control.parent->kind == WindowKind::TopLevel)
        widget->setFocusPolicy(Qt::NoFocus);
    QObject::connect(
        widget, &QPushButton::clicked, widget, [&control, &state, widget] { ReportClick(control, *widget, state); });
    return widget;
}

QWidget* MakeCheckBox(Window& control, QWidget& parent, DesktopState& state)
{
    auto* widget = new QCheckBox(&parent);
    QObject::connect(widget, &QCheckBox::clicked, widget, [&control, &state, widget](bool checked) {
        if (state.widgets.Shows(*widget, control))
            control.checked = checked;
        ReportClick(control, *widget, state);
    });
    return widget;
}

// A field that only displays has to be read as well.
void DarkenDisabledText(QWidget& widget)
{
    QPalette palette = widget.palette();
    QColor dimmed = palette.color(QPalette::Active, QPalette::Text);
    dimmed.setAlphaF(0.7F);
    palette.setColor(QPalette::Disabled, QPalette::Text, dimmed);
    widget.setPalette(palette);
}

QWidget* MakeEdit(Window& control, QWidget& parent, DesktopState& state)
{
    auto* widget = new QLineEdit(&parent);
    DarkenDisabledText(*widget);
    if (control.digitsOnly)
        RefuseAllButDigits(*widget);
    QObject::connect(widget, &QLineEdit::textEdited, widget, [&control, &state, widget] {
        if (state.widgets.Shows(*widget, control))
            EditTyped(control, SpellTyped(*widget));
    });
    return widget;
}

QWidget* MakeLabel(QWidget& parent)
{
    auto* widget = new QLabel(&parent);
    widget->setTextFormat(Qt::PlainText);
    widget->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return widget;
}

QWidget* MakeWidget(Window& control, QWidget& parent, DesktopState& state)
{
    switch (control.kind) {
    case WindowKind::PushButton:
        return MakePushButton(control, parent, state);
    case WindowKind::CheckBox:
        return MakeCheckBox(control, parent, state);
    case WindowKind::Edit:
        return MakeEdit(control, parent, state);
    case WindowKind::DropDown:
        return MakeDropDown(control, parent, state);
    case WindowKind::Label:
        return MakeLabel(parent);
    case WindowKind::GroupFrame:
        return new QGroupBox(&parent);
    case WindowKind::TopLevel:
    case WindowKind::Dialog:
        break; // never children
    }
    return nullptr;
}

void MirrorContent(QWidget& widget, const Window& control)
{
    const QString text = TextFromCodePage(control.text);
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        button->setText(WithoutShortcut(text));
        if (button->isCheckable())
            button->setChecked(control.checked);
    } else if (auto* field = qobject_cast<QLineEdit*>(&widget)) {
        if (field->text() != text)
            field->setText(text);
    } else if (auto* dropDown = qobject_cast<QComboBox*>(&widget)) {
        MirrorDropDown(*dropDown, control);
    } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
        label->setText(text);
    } else if (auto* frame = qobject_cast<QGroupBox*>(&widget)) {
        frame->setTitle(WithoutShortcut(text));
    }
}

} // namespace

void MakeControl(Window& control, QWidget& parent, DesktopState& state)
{
    QWidget* widget = MakeWidget(control, parent, state);
    if (!widget)
        return;
    state.widgets.Bind(control, *widget);
    MirrorControl(*widget, control);
}

void MirrorControl(QWidget& widget, const Window& control)
{
    const QSignalBlocker quiet(widget);
    MirrorContent(widget, control);
    QRect place = RectangleOf(control.place);
    // A caption is shown whole, even where the font makes it wider than its place.
    if (control.kind == WindowKind::Label || control.kind == WindowKind::CheckBox)
        place.setWidth(std::max(place.width(), widget.sizeHint().width()));
    widget.setGeometry(place);
    widget.setEnabled(control.enabled);
    widget.setVisible(control.visible);
}

} // namespace platform
