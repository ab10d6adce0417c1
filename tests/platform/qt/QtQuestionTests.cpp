#include "platform/Big5Literal.h"
#include "platform/Comdlg.h"
#include "tests/platform/qt/QtProgram.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>

#include <filesystem>

namespace {

using QtQuestions = QtProgram;

TEST_F(QtQuestions, ShowABoxsTextAsItIs)
{
    WhileModal({ [] {
        auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
        const auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        EXPECT_EQ(label->text(), QStringLiteral("輸入值 = <b>&x"));
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        EXPECT_EQ(box.buttons().size(), 1);
        EXPECT_EQ(box.buttons().front()->text(), QStringLiteral("OK"));
        EXPECT_EQ(label->x() + label->indent(), box.width() - label->geometry().right() - 1);
        EXPECT_GT(box.width(), 30 * 15 + 100); // the caption and the frame's buttons
        QTest::keyClick(&box, Qt::Key_Return);
    } });
    const std::string caption = u8"一二三四五六七八九十一二三四五六七八九十一二三四五六七八九十"_big5;
    EXPECT_EQ(MessageBoxA(window, u8"輸入值 = <b>&x"_big5, caption.c_str(), MB_OK), IDOK);
}

TEST_F(QtQuestions, LetEitherButtonChooseFromAMenu)
{
    const HMENU menu = GetSubMenu(LoadMenuA(&testResources, "Colours"), 0);
    for (const auto button : { Qt::LeftButton, Qt::RightButton }) {
        WhileModal({ [button] {
            const auto& shown = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
            EXPECT_EQ(shown.pos(), QPoint(70, 80));
            EXPECT_EQ(shown.actions().at(1)->text(), QStringLiteral("綠 && 藍"));
            const QPoint second = shown.actionGeometry(shown.actions().at(1)).center();
            QTest::mouseMove(shown.windowHandle(), second);
            QTest::mouseClick(shown.windowHandle(), button, {}, second);
        } });
        TrackPopupMenu(menu, TPM_RIGHTBUTTON, 70, 80, 0, window, nullptr);
        EXPECT_EQ(Settled(), Log({ "command 12" }));
    }
}

TEST_F(QtQuestions, ShowFilesInWholeColumnsLeavingNoSettings)
{
    WhileModal({ [] {
        EXPECT_EQ(QApplication::activeModalWidget()->width(), 760);
        const auto* list = QApplication::activeModalWidget()->findChild<QTreeView*>();
        EXPECT_LE(list->header()->length(), list->viewport()->width());
        for (int column = 0; column < list->header()->count(); ++column)
            EXPECT_GE(
                list->columnWidth(column), static_cast<const QAbstractItemView*>(list)->sizeHintForColumn(column));
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    } });
    char name[260] = {};
    OPENFILENAMEA request { .hwndOwner = window, .lpstrFile = name, .nMaxFile = sizeof name };
    EXPECT_FALSE(GetOpenFileNameA(&request));
    EXPECT_TRUE(std::filesystem::is_empty(qgetenv("XDG_CONFIG_HOME").toStdString()));
}

} // namespace
