#include "platform/windows/WindowTable.h"
#include "tests/platform/conformance/DesktopHands.h"
#include "tests/platform/qt/QtProgram.h"

#include <QCursor>
#include <QLineEdit>
#include <QPushButton>
#include <QWindow>

#include <map>

namespace {

QPoint PointOf(POINT at)
{
    return { at.x, at.y };
}

// A display need not say that the window is entered when the pointer has lain on it all the time.
struct NoEntering final : QObject {
    bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::Enter; }
};

// On the real desktop, which the tests' environment has installed.
class QtHands final : public DesktopHands {
public:
    ~QtHands() override { EndProgram(); }

    void Press(POINT at) override { QTest::mousePress(Handle(), Qt::LeftButton, {}, PointOf(at)); }
    void MoveTo(POINT to) override { QTest::mouseMove(Handle(), PointOf(to)); }
    void Release(POINT at) override { QTest::mouseRelease(Handle(), Qt::LeftButton, {}, PointOf(at)); }
    void DoubleClick(POINT at) override { QTest::mouseDClick(Handle(), Qt::LeftButton, {}, PointOf(at)); }
    void Key(int virtualKey, bool withControl) override
    {
        QTest::keyClick(&Canvas(), KeyOf(virtualKey), withControl ? Qt::ControlModifier : Qt::NoModifier);
    }
    void HoldKey(int virtualKey, int times) override
    {
        for (int i = 0; i < times; ++i) {
            QKeyEvent press(QEvent::KeyPress, KeyOf(virtualKey), {}, {}, i > 0);
            QCoreApplication::sendEvent(&Canvas(), &press);
        }
    }
    void ClickButton() override { QTest::mouseClick(Canvas().findChild<QPushButton*>(), Qt::LeftButton); }
    void CloseBox() override { Canvas().close(); }
    void PointTo(POINT at) override
    {
        Canvas().installEventFilter(&filter);
        QCursor::setPos(Canvas().mapToGlobal(PointOf(at)));
    }

    void ChooseFromMenu(size_t item, POINT pointerAfter) override
    {
        PointTo(pointerAfter);
        ::WhileModal({ [item] {
            for (size_t down = 0; down <= item; ++down)
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        } });
    }
    void WorkInDialog(const Steps& steps) override { ::WhileModal(steps); }
    void DisturbOwner() override
    {
        Press({ 50, 50 });
        Release({ 50, 50 });
        Key(VK_DELETE, false);
        ClickButton();
        CloseBox();
    }
    void Type(int id, const std::string& text) override
    {
        auto& field = dynamic_cast<QLineEdit&>(*ControlOf(id));
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, QString::fromStdString(text));
    }
    void Click(int id) override { QTest::mouseClick(ControlOf(id), Qt::LeftButton, {}, { 8, 8 }); }
    void DialogKey(int virtualKey) override { QTest::keyClick(QApplication::activeModalWidget(), KeyOf(virtualKey)); }
    void DialogCloseBox() override { QApplication::activeModalWidget()->close(); }

private:
    static Qt::Key KeyOf(int virtualKey)
    {
        static const std::map<int, Qt::Key> keys = { { VK_LEFT, Qt::Key_Left }, { VK_DOWN, Qt::Key_Down },
            { VK_DELETE, Qt::Key_Delete }, { VK_RETURN, Qt::Key_Return }, { VK_ESCAPE, Qt::Key_Escape } };
        const auto key = keys.find(virtualKey);
        return key == keys.end() ? static_cast<Qt::Key>(virtualKey) : key->second;
    }
    static QWindow* Handle() { return Canvas().windowHandle(); }
    // The widget of a control, of a drop-down its field.
    static QWidget* ControlOf(int id)
    {
        const RECT& place = GetDlgItem(platform::RootWindows().back(), id)->place;
        return QApplication::activeModalWidget()->childAt(place.left + 8, place.top + 8);
    }

    NoEntering filter;
};

} // namespace

std::unique_ptr<DesktopHands> MakeHands()
{
    return std::make_unique<QtHands>();
}
