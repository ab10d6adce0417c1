#include "platform/Big5Literal.h"
#include "tests/platform/qt/QtProgram.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

namespace {

class QtDialogs : public QtProgram {
protected:
    enum FieldPosition { Name, Age, Size };
    enum ListPosition { Sorted, Plain };
    static void Commit(QWidget& field, const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(&field, &event);
    }
};

TEST_F(QtDialogs, ShowAQuestionMarkForWhatTheCodePageCannotSpell)
{
    WorkInDialog({ [this] {
        auto& field = InDialog<QLineEdit>(Name);
        Commit(field, QStringLiteral("功堃é"));
        EXPECT_EQ(field.text(), QStringLiteral("功??"));
        field.setCursorPosition(1);
        Commit(field, QStringLiteral("😀"));
        EXPECT_EQ(field.text(), QStringLiteral("功???"));
        EXPECT_EQ(field.cursorPosition(), 2);
        field.insert(QStringLiteral("\n許\t")); // as from the clipboard
        EXPECT_EQ(TextOf(NameField), "功?許??");
    } });
}

TEST_F(QtDialogs, RefuseWhatMayNotBeTyped)
{
    WorkInDialog({ [this] {
        EXPECT_EQ(InDialog<QLineEdit>(Name).selectedText(), QStringLiteral("Ann")) << "the first field's";
        QTest::keyClicks(&InDialog<QLineEdit>(Age), "1a-2");
        Commit(InDialog<QLineEdit>(Age), QStringLiteral("三"));
        EXPECT_EQ(TextOf(AgeField), "12");
        QTest::keyClicks(&InDialog<QLineEdit>(Size), "x");
        EXPECT_EQ(InDialog<QLineEdit>(Size).text(), QStringLiteral("9"));
    } });
}

TEST_F(QtDialogs, MakeCommandsOfEscapeAndEnterAlone)
{
    WorkInDialog({ [this] { QTest::keyClick(&InDialog<QLineEdit>(Name), Qt::Key_Escape); },
        [this] { QTest::keyClick(&InDialog<QComboBox>(Plain), Qt::Key_Return); },
        [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Enter); },
        [this] {
            dialog->closeBox = false;
            QApplication::activeModalWidget()->close();
        } });
    const std::string done = "dialog command " + std::to_string(DoneButton);
    EXPECT_EQ(Settled(), Log({ "dialog command 2", "dialog command 1", "dialog command 1", done, "dialog destroy" }));
}

TEST_F(QtDialogs, DropTheSelectionOfADropDownThatIsTypedInto)
{
    WorkInDialog({ [this] {
        auto& list = InDialog<QComboBox>(Plain);
        const HWND record = GetDlgItem(dialog, PlainList);
        QTest::keyClick(&list, Qt::Key_Down);
        EXPECT_EQ(SendMessageA(record, CB_GETCURSEL, 0, 0), 1);
        EXPECT_EQ(TextOf(PlainList), "green");
        list.setFocus();
        list.lineEdit()->selectAll();
        QTest::keyClicks(&list, "red");
        list.clearFocus(); // with an item's very text
        EXPECT_EQ(list.currentIndex(), -1);
        EXPECT_EQ(SendMessageA(record, CB_GETCURSEL, 0, 0), -1);
        EXPECT_EQ(list.currentText(), QStringLiteral("red"));
        EXPECT_EQ(TextOf(PlainList), "red");
    } });
}

TEST_F(QtDialogs, ShowADropDownsTextWholeAndItsListInTheTemplatesHeight)
{
    WorkInDialog({ [this] {
        SendMessageA(GetDlgItem(dialog, PlainList), CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
        SetWindowTextA(GetDlgItem(dialog, PlainList), u8"切成 16 段"_big5);
        QLineEdit& field = *InDialog<QComboBox>(Plain).lineEdit();
        const auto cursor = [&field] { return field.inputMethodQuery(Qt::ImCursorRectangle).toRect().x(); };
        field.home(false);
        const int left = cursor();
        field.end(false);
        field.grab(); // painting is what slides a text that is too wide to the left
        EXPECT_EQ(cursor() - left, QFontMetrics(field.font()).horizontalAdvance(field.text()));
        InDialog<QComboBox>(Plain).showPopup();
        const QAbstractItemView& view = *InDialog<QComboBox>(Plain).view();
        EXPECT_EQ(view.viewport()->height() / view.sizeHintForRow(0), 2) << "30 units less the field";
    } });
}

TEST_F(QtDialogs, ShowTheFacesOwnBlackBitmapsWhereAPixelIsAPixel)
{
    QImage letters(40, 20, QImage::Format_RGB32);
    letters.fill(Qt::white);
    QPainter painter(&letters);
    painter.setFont(QApplication::font());
    painter.drawText(0, 15, QStringLiteral("l1段"));
    EXPECT_EQ(letters.convertToFormat(QImage::Format_Indexed8).colorCount(), 2);
    EXPECT_NE(letters.copy(0, 0, 8, 20), letters.copy(8, 0, 8, 20));
}

TEST_F(QtDialogs, ShowTheProgramsChangesAndReportClicks)
{
    WorkInDialog({ [this] {
                      const HWND list = GetDlgItem(dialog, PlainList);
                      SendMessageA(list, CB_DELETESTRING, 0, 0);
                      SendMessageA(list, CB_SETCURSEL, 1, 0);
                      EXPECT_EQ(InDialog<QComboBox>(Plain).count(), 2);
                      SetWindowTextA(GetDlgItem(dialog, NameField), "\xA2\xCC \xA4"); // not to be spelled anew
                      EXPECT_EQ(InDialog<QComboBox>(Plain).currentText(), QStringLiteral("blue"));
                      QTest::mouseClick(&InDialog<QCheckBox>(), Qt::LeftButton, {}, { 8, 8 });
                  },
        [this] {
            EXPECT_EQ(SendMessageA(GetDlgItem(dialog, LoudBox), BM_GETCHECK, 0, 0), LRESULT { BST_CHECKED });
            EXPECT_EQ(Settled(), Log({ "dialog command " + std::to_string(LoudBox) }));
            EXPECT_EQ(InDialog<QLineEdit>(Name).text(), QStringLiteral("\u5341 \uFFFD"));
            EXPECT_EQ(GetDlgItem(dialog, NameField)->text, "\xA2\xCC \xA4");
            EXPECT_EQ(InDialog<QLabel>().text(), QStringLiteral("R&D <b>"));
            EXPECT_EQ(QApplication::activeModalWidget()->size(), QSize(200, 180));
        } });
}

} // namespace
