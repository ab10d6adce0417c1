#include "platform/qt/Questions.h"

#include "platform/ModalLoop.h"
#include "platform/User.h"
#include "platform/qt/QtText.h"

#include <QFileDialog>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QSpacerItem>
#include <QTreeView>

#include <memory>

namespace platform {
namespace {

// Deletes a question's widget unless its owner has done so already.
template <typename Widget> class Question {
public:
    template <typename... Arguments>
    explicit Question(Arguments&&... arguments)
        : widget(new Widget(std::forward<Arguments>(arguments)...))
    {
    }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;
    ~Question() { delete widget.data(); }

    Widget* operator->() const { return widget.data(); }
    bool IsOpen() const { return widget && widget->isVisible(); }
    bool Exists() const { return !widget.isNull(); }

private:
    QPointer<Widget> widget;
};

template <typename Widget> void RunUntilClosed(const Question<Widget>& question)
{
    RunModalLoop([&question] { return !question.IsOpen(); });
}

// The toolkit leaves room for an icon at the left of a box's text.
void EvenMargins(QMessageBox& box)
{
    auto* layout = qobject_cast<QGridLayout*>(box.layout());
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (!layout || !label)
        return;
    for (int i = 0; i < layout->count(); ++i)
        if (QSpacerItem* indent = layout->itemAt(i)->spacerItem())
            indent->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
    label->setContentsMargins(0, 0, 0, 0);
    label->setIndent(0);
    layout->removeWidget(label);
    layout->addWidget(label, 0, 0, 1, layout->columnCount());
}

// A box is as wide as its text needs; its caption needs room for the frame's buttons besides.
void WidenForCaption(QMessageBox& box, const QString& caption)
{
    auto* layout = qobject_cast<QGridLayout*>(box.layout());
    if (!layout)
        return;
    constexpr int frameButtons = 120;
    const int width = QFontMetrics(box.font()).horizontalAdvance(caption) + frameButtons;
    layout->addItem(new QSpacerItem(width, 0), layout->rowCount(), 0, 1, layout->columnCount());
}

} // namespace

int AskMessageBox(QWidget* owner, const QString& text, const QString& caption)
{
    const Question<QMessageBox> box(QMessageBox::NoIcon, caption, QString(), QMessageBox::NoButton, owner);
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    // The button keeps its caption whatever language the desktop speaks.
    box->setDefaultButton(box->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole));
    EvenMargins(*box.operator->());
    WidenForCaption(*box.operator->(), caption);
    box->setWindowModality(Qt::ApplicationModal);
    box->show();
    RunUntilClosed(box);
    return IDOK;
}

// Sizes, kinds and dates stand whole; the names have what is left.
void ShowWholeColumns(const QFileDialog& chooser)
{
    const auto* list = chooser.findChild<QTreeView*>();
    if (!list)
        return;
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

// Either mouse button chooses.
uint32_t AskMenu(QWidget* owner, const Menu& menu, QPoint corner)
{
    const Question<QMenu> shown(owner);
    for (const MenuItem& item : menu.items)
        shown->addAction(WithoutShortcut(QString::fromStdString(item.text)))->setData(item.id);
    uint32_t chosen = 0;
    QObject::connect(
        shown.operator->(), &QMenu::triggered, [&chosen](const QAction* action) { chosen = action->data().toUInt(); });
    shown->popup(corner);
    RunUntilClosed(shown);
    return chosen;
}

std::optional<std::string> AskFile(QWidget* owner, const FileRequest& request)
{
    const QString pattern = QString::fromStdString(request.pattern);
    const QString filter = QStringLiteral("%1 (%2)").arg(QString::fromStdString(request.label), pattern);
    const Question<QFileDialog> chooser(owner, QString(), QString::fromStdString(request.folder), filter);
    chooser->setOption(QFileDialog::DontUseNativeDialog);
    chooser->setAcceptMode(QFileDialog::AcceptOpen);
    chooser->setFileMode(request.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    chooser->setWindowModality(Qt::ApplicationModal);
    // The dialogs' own font would do for its captions, but not for file names: "l" and "1" look alike in its outlines.
    chooser->setFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
    // What was typed is what is taken: a list of completions, which comes late on a slow disk, would take the Return.
    for (QLineEdit* field : chooser->findChildren<QLineEdit*>())
        field->setCompleter(nullptr);
    chooser->resize(760, 480);
    ShowWholeColumns(*chooser.operator->());
    chooser->show();
    RunUntilClosed(chooser);
    if (!chooser.Exists() || chooser->result() != QDialog::Accepted || chooser->selectedFiles().isEmpty())
        return std::nullopt;
    return chooser->selectedFiles().first().toStdString();
}

} // namespace platform
