#include "platform/qt/Questions.h"

#include "platform/DesktopEvents.h"
#include "platform/User.h"
#include "platform/qt/QtText.h"

#include <QFileDialog>
#include <QFontDatabase>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QSpacerItem>

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
    WidenForCaption(*box.operator->(), caption);
    box->setWindowModality(Qt::ApplicationModal);
    box->show();
    RunUntilClosed(box);
    return IDOK;
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
    // The dialogs' own font would do for its captions, but not for file names: "l" and "1" look alike in it.
    chooser->setFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
    // What was typed is what is taken: a list of completions, which comes late on a slow disk, would take the Return.
    for (QLineEdit* field : chooser->findChildren<QLineEdit*>())
        field->setCompleter(nullptr);
    chooser->show();
    RunUntilClosed(chooser);
    if (!chooser.Exists() || chooser->result() != QDialog::Accepted || chooser->selectedFiles().isEmpty())
        return std::nullopt;
    return chooser->selectedFiles().first().toStdString();
}

} // namespace platform
