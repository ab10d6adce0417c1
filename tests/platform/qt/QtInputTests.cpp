#include "tests/platform/qt/QtProgram.h"

#include <QApplication>
#include <QPushButton>
#include <QWindow>

namespace {

class QtInput : public QtProgram {
protected:
    QWindow* Handle() const { return Canvas().windowHandle(); }
};

TEST_F(QtInput, LeavesTheKeyboardToTheWindow)
{
    QTest::mouseClick(Canvas().findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_EQ(Settled(), Log({ "command 7" }));
    QWidget* focused = QApplication::focusWidget();
    ASSERT_EQ(focused, &Canvas());
    for (const Qt::Key key : { Qt::Key_Tab, Qt::Key_Space, Qt::Key_Left, Qt::Key_PageUp })
        QTest::keyClick(focused, key);
    QTest::keyClick(focused, Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(focused, Qt::Key_P);
    EXPECT_EQ(Settled(), Log({ "key 37", "key 33", "key 83 ctrl", "key 80" }));
}

TEST_F(QtInput, TellsWhereThePointerIsWhenTheWindowComesUnderIt)
{
    for (const Qt::MouseButton held : { Qt::NoButton, Qt::LeftButton }) {
        if (held != Qt::NoButton)
            QTest::mousePress(Handle(), held, {}, { 90, 40 });
        Settled();
        QEnterEvent entering(QPointF(100, 50), QPointF(100, 50), Canvas().mapToGlobal(QPointF(100, 50)));
        QCoreApplication::sendEvent(&Canvas(), &entering);
        EXPECT_EQ(Settled(), held == Qt::NoButton ? Log { "move 100 50 0" } : Log {});
    }
    QTest::mouseRelease(Handle(), Qt::LeftButton, {}, { 90, 40 });
}

} // namespace
