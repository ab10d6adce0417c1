#include "tests/platform/qt/QtProgram.h"

#include <QApplication>
#include <QPushButton>
#include <QWindow>

namespace {

class QtInput : public QtProgram {
protected:
    void Drag(QPoint from, QPoint to)
    {
        QTest::mouseMove(Handle(), from);
        TakeLog();
        QTest::mousePress(Handle(), Qt::LeftButton, {}, from);
        QTest::mouseMove(Handle(), to);
        QTest::mouseRelease(Handle(), Qt::LeftButton, {}, to);
    }
    QWindow* Handle() const { return Canvas().windowHandle(); }
};

TEST_F(QtInput, ReachesOutsideTheClientAreaOnlyWithTheMouseCaptured)
{
    for (const QPoint to : { QPoint(-30, -7), QPoint(20, 10) }) { // outside, over the button
        Drag({ 100, 50 }, to);
        EXPECT_EQ(TakeLog(), Log({ "press 100 50 1" }));
    }

    // The whole drag is over before the program sees its beginning.
    onMessage = [this](UINT message) {
        if (message == WM_LBUTTONDOWN)
            SetCapture(window);
        if (message == WM_LBUTTONUP)
            ReleaseCapture();
    };
    Drag({ 100, 50 }, { -30, -7 });
    EXPECT_EQ(TakeLog(), Log({ "press 100 50 1", "move -30 -7 1", "release -30 -7 0" }));
}

TEST_F(QtInput, TellsTheSecondPressOfADoubleClickApart)
{
    QTest::mouseMove(Handle(), { 100, 50 });
    TakeLog();
    QTest::mouseDClick(Handle(), Qt::LeftButton, {}, { 100, 50 });
    EXPECT_EQ(TakeLog(), Log({ "press 100 50 1", "release 100 50 0", "double 100 50 1", "release 100 50 0" }));
}

TEST_F(QtInput, LeavesTheKeyboardToTheWindow)
{
    QTest::mouseClick(Canvas().findChild<QPushButton*>(), Qt::LeftButton);
    EXPECT_EQ(TakeLog(), Log({ "command 7" }));
    QWidget* focused = QApplication::focusWidget();
    ASSERT_EQ(focused, &Canvas());
    for (const Qt::Key key : { Qt::Key_Tab, Qt::Key_Space, Qt::Key_Left, Qt::Key_PageUp })
        QTest::keyClick(focused, key);
    QTest::keyClick(focused, Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(focused, Qt::Key_P);
    EXPECT_EQ(TakeLog(), Log({ "key 37", "key 33", "key 83 ctrl", "key 80" }));
}

TEST_F(QtInput, KeepsTheOrderInWhichThingsWereDone)
{
    QTest::keyClick(&Canvas(), Qt::Key_Left);
    QTest::mouseClick(Canvas().findChild<QPushButton*>(), Qt::LeftButton);
    Canvas().close();
    EXPECT_TRUE(Canvas().isVisible());
    EXPECT_EQ(TakeLog(), Log({ "key 37", "command 7", "close" }));
}

TEST_F(QtInput, TellsWhereThePointerIsWhenTheWindowComesUnderIt)
{
    for (const Qt::MouseButton held : { Qt::NoButton, Qt::LeftButton }) {
        if (held != Qt::NoButton)
            QTest::mousePress(Handle(), held, {}, { 90, 40 });
        TakeLog();
        QEnterEvent entering(QPointF(100, 50), QPointF(100, 50), Canvas().mapToGlobal(QPointF(100, 50)));
        QCoreApplication::sendEvent(&Canvas(), &entering);
        EXPECT_EQ(TakeLog(), held == Qt::NoButton ? Log { "move 100 50 0" } : Log {});
    }
    QTest::mouseRelease(Handle(), Qt::LeftButton, {}, { 90, 40 });
}

TEST_F(QtInput, GoesToTheQuestionThatIsOpen)
{
    onMessage = [this](UINT message) {
        if (message == WM_COMMAND)
            MessageBoxA(window, "text", "caption", MB_OK);
    };
    WhileModal({ [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); } });
    QTest::mouseClick(Canvas().findChild<QPushButton*>(), Qt::LeftButton);
    QTest::mouseClick(Canvas().findChild<QPushButton*>(), Qt::LeftButton); // comes too late
    EXPECT_EQ(TakeLog(), Log({ "command 7" }));
}

} // namespace
