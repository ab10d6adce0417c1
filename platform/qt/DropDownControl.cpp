#include "platform/qt/DropDownControl.h"

#include "platform/DesktopEvents.h"
#include "platform/qt/QtText.h"
#include "platform/qt/TextFields.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QProxyStyle>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>

#include <algorithm>

namespace platform {
namespace {

QStringList TextsOf(const std::vector<std::string>& items)
{
    QStringList texts;
    for (const std::string& item : items)
        texts.append(TextFromCodePage(item));
    return texts;
}

QStringList TextsOf(const QComboBox& widget)
{
    QStringList texts;
    for (int i = 0; i < widget.count(); ++i)
        texts.append(widget.itemText(i));
    return texts;
}

// The templates leave no room to spare beside a text: the arrow takes less of the field than the toolkit gives it.
class NarrowArrow final : public QProxyStyle {
public:
    NarrowArrow()
        : QProxyStyle(QApplication::style()->name())
    {
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override
    {
        const QRect whole = option->rect;
        if (control == CC_ComboBox && part == SC_ComboBoxArrow)
            return { whole.right() + 1 - arrowWidth, whole.top(), arrowWidth, whole.height() };
        if (control == CC_ComboBox && part == SC_ComboBoxEditField)
            return whole.adjusted(frameWidth, frameWidth, -arrowWidth, -frameWidth);
        return QProxyStyle::subControlRect(control, option, part, widget);
    }

private:
    static constexpr int arrowWidth = 9;
    static constexpr int frameWidth = 1;
};

// However narrow the field, the list shows its items whole; it opens to the height that the template gives the two
// together.
void FitList(QComboBox& widget, const Window& control)
{
    QAbstractItemView& list = *widget.view();
    list.setMinimumWidth(list.sizeHintForColumn(0) + list.verticalScrollBar()->sizeHint().width());
    const int height = control.openHeight - (control.place.bottom - control.place.top);
    widget.setMaxVisibleItems(std::max(1, height / std::max(1, list.sizeHintForRow(0))));
}

void DropSelection(QComboBox& widget)
{
    if (widget.currentIndex() < 0)
        return;
    const QSignalBlocker quiet(widget);
    const QString text = widget.currentText();
    const int cursor = widget.lineEdit()->cursorPosition();
    widget.setCurrentIndex(-1); // empties the field
    widget.setEditText(text);
    widget.lineEdit()->setCursorPosition(cursor);
}

} // namespace

QComboBox* MakeDropDown(Window& control, QWidget& parent, DesktopState& state)
{
    auto* widget = new QComboBox(&parent);
    widget->setEditable(true);
    widget->setInsertPolicy(QComboBox::NoInsert);
    widget->setCompleter(nullptr);
    auto* style = new NarrowArrow;
    style->setParent(widget);
    widget->setStyle(style);
    widget->lineEdit()->setTextMargins(-1, 0, -2, 0);
    // A text that happens to be an item's does not choose that item when the field is left.
    QObject::disconnect(widget->lineEdit(), &QLineEdit::editingFinished, widget, nullptr);
    QObject::connect(widget->lineEdit(), &QLineEdit::textEdited, widget, [&control, &state, widget] {
        if (!state.widgets.Shows(*widget, control))
            return;
        const std::string bytes = SpellTyped(*widget->lineEdit());
        DropSelection(*widget);
        EditTyped(control, bytes);
    });
    QObject::connect(widget, &QComboBox::activated, widget, [&control, &state, widget](int index) {
        widget->lineEdit()->home(false);
        if (state.widgets.Shows(*widget, control))
            ItemSelected(control, index);
    });
    return widget;
}

void MirrorDropDown(QComboBox& widget, const Window& control)
{
    const QStringList items = TextsOf(control.items);
    const bool otherItems = items != TextsOf(widget);
    if (otherItems) {
        widget.clear();
        widget.addItems(items);
        FitList(widget, control);
    }
    const bool otherSelection = otherItems || widget.currentIndex() != control.selection;
    if (otherSelection)
        widget.setCurrentIndex(control.selection);
    const QString text = TextFromCodePage(control.text);
    if (control.selection < 0 && widget.currentText() != text)
        widget.setEditText(text);
    if (otherSelection)
        widget.lineEdit()->home(false); // a field narrower than its text shows how the text begins
}

} // namespace platform
