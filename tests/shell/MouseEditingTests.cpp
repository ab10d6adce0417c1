#include "platform/User.h"
#include "shell/FramePresentation.h"
#include "tests/shell/EditorTest.h"

namespace {

using Indexes = std::vector<int32_t>;

// Three pictures of 40 by 30 in a row, the third over empty canvas further down.
class MouseEditing : public EditorTest {
protected:
    void SetUp() override
    {
        EditorTest::SetUp();
        AddPicture({ 100, 100 }, { 40, 30 });
        AddPicture({ 200, 100 }, { 40, 30 });
        AddPicture({ 300, 400 }, { 40, 30 });
        PresentFrame();
    }
};

TEST_F(MouseEditing, SelectsByClickAndShiftClick)
{
    struct Step {
        POINT at;
        WPARAM keys;
        Indexes selected;
        ScreenObject* current;
    };
    const Step steps[] = {
        { { 110, 110 }, 0, { 0 }, &ObjectAt(0) },
        { { 210, 110 }, 0, { 1 }, &ObjectAt(1) },
        { { 110, 110 }, MK_SHIFT, { 1, 0 }, &ObjectAt(0) },
        { { 600, 300 }, MK_SHIFT, { 1, 0 }, nullptr },
        { { 210, 110 }, MK_SHIFT, { 0 }, &ObjectAt(1) },
        { { 600, 300 }, 0, {}, nullptr },
    };
    for (const Step& step : steps) {
        desktop.Press(step.at.x, step.at.y, step.keys);
        desktop.PlayInput();
        EXPECT_EQ(Selected(), step.selected);
        EXPECT_EQ(shell.editing.GetCurrentObject(), step.current);
        desktop.Release(step.at.x, step.at.y, step.keys);
        desktop.PlayInput();
    }
}

TEST_F(MouseEditing, DragsAllSelectedObjectsByTheTravelFromThePressPoint)
{
    desktop.Click(110, 110);
    desktop.Click(210, 110, MK_SHIFT);
    desktop.Press(215, 115);
    desktop.Do([&] { EXPECT_EQ(desktop.Capture(), shell.mainWindow); });
    desktop.MoveTo(300, 115);
    desktop.MoveTo(225, 135);
    desktop.Release(225, 135);
    Play();
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(110, 120));
    EXPECT_EQ(ObjectAt(1).GetPos(), vec(210, 120));
    EXPECT_EQ(ObjectAt(2).GetPos(), vec(300, 400));
    EXPECT_EQ(desktop.Capture(), nullptr);

    // The next drag starts from where the objects now lie.
    desktop.Drag({ 115, 125 }, { 116, 125 });
    Play();
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(111, 120));
}

TEST_F(MouseEditing, ShiftPressGrabsNothing)
{
    desktop.Press(110, 110, MK_SHIFT);
    desktop.MoveTo(150, 110, MK_SHIFT);
    desktop.PlayInput();
    EXPECT_EQ(desktop.Capture(), nullptr);
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(100, 100));
    desktop.MoveTo(150, 110); // Shift released: the selection follows without capture
    desktop.PlayInput();
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(140, 100));
}

TEST_F(MouseEditing, RubberBandReachesToThePointerBeforeTheMove)
{
    desktop.Press(90, 90);
    desktop.MoveTo(260, 150);
    desktop.Do([&] { EXPECT_EQ(Selected(), Indexes {}); });
    desktop.MoveTo(400, 500);
    desktop.Do([&] { EXPECT_EQ(Selected(), (Indexes { 0, 1 })); });
    desktop.MoveTo(170, 150);
    desktop.Do([&] { EXPECT_EQ(Selected(), (Indexes { 0, 1, 2 })); });
    desktop.MoveTo(170, 150);
    desktop.Release(170, 150);
    Play();
    EXPECT_EQ(Selected(), Indexes { 0 });
    EXPECT_EQ(shell.editing.GetGrab(0), vec(100, 100));
}

TEST_F(MouseEditing, DoesNothingOnAMoveBeforeAnyPress)
{
    PostMessageA(shell.mainWindow, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(110, 110));
    Play();
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(100, 100));
    EXPECT_EQ(shell.editing.GetCurrentObject(), &ObjectAt(0));
    desktop.MoveTo(600, 300);
    Play();
    EXPECT_EQ(shell.editing.GetCurrentObject(), &ObjectAt(0)); // empty canvas keeps it
}

TEST_F(MouseEditing, RightPressOpensTheMenuOfTheKind)
{
    desktop.AnswerMenu(0);
    desktop.RightPress(110, 110);
    desktop.RightPress(600, 300);
    Play();
    ASSERT_EQ(desktop.Menus().size(), 1U);
    EXPECT_EQ(desktop.Menus()[0].items.size(), 3U);
    EXPECT_EQ(desktop.Menus()[0].at.x, shell.mainWindow->place.left + 110);
    EXPECT_EQ(shell.editing.GetContextPoint(), vec(600, 300));
    EXPECT_EQ(Selected(), Indexes {});
}

TEST_F(MouseEditing, NewWhileDraggingLeavesNothingToDrag)
{
    desktop.Press(110, 110);
    desktop.ClickButton(104);
    desktop.MoveTo(150, 150);
    desktop.Release(150, 150);
    Play();
    EXPECT_EQ(shell.document.GetObjectCount(), 0);
    EXPECT_EQ(shell.editing.GetCurrentObject(), nullptr);
    EXPECT_EQ(desktop.Capture(), nullptr);
}

TEST_F(MouseEditing, KeysActOnTheSelectionOrOnTheObjectUnderThePointer)
{
    desktop.Click(110, 110);
    desktop.MoveTo(210, 110);
    for (const int key : { VK_RIGHT, VK_RIGHT, VK_DOWN, VK_LEFT, VK_UP, VK_UP })
        desktop.Key(key);
    desktop.Key(VK_PRIOR);
    Play();
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(101, 99));
    EXPECT_EQ(ObjectAt(1).GetLayer(), 2);
    EXPECT_EQ(ObjectAt(2).GetLayer(), 1);
    desktop.Key(VK_PRIOR); // on top already
    desktop.Key(VK_NEXT);
    desktop.Key(VK_NEXT);
    desktop.Key(VK_NEXT); // at the bottom by now
    Play();
    EXPECT_EQ(ObjectAt(1).GetLayer(), 0);
}

TEST_F(MouseEditing, DeleteTakesTheObjectUnderThePointerAndTheWholeSelectionMark)
{
    desktop.Click(110, 110);
    desktop.MoveTo(210, 110);
    desktop.Key(VK_DELETE);
    desktop.Key(VK_DELETE); // nothing is left there
    Play();
    EXPECT_EQ(shell.document.GetObjectCount(), 2);
    EXPECT_EQ(shell.editing.GetObjectCount(), 0 + 2);
    EXPECT_EQ(Selected(), Indexes {});
    EXPECT_EQ(shell.editing.GetCurrentObject(), nullptr);
}

TEST_F(MouseEditing, PreviewStartsAnAppearanceEffectOnce)
{
    ObjectAt(0).SetEffect(EffectFromLeft);
    desktop.MoveTo(110, 110);
    desktop.Key('P');
    desktop.Key('P');
    desktop.MoveTo(210, 110); // has no effect
    desktop.Key('P');
    Play();
    EXPECT_EQ(shell.document.GetEffects().size(), 1U);
    EXPECT_TRUE(ObjectAt(0).GetEffectRunning());
    EXPECT_FALSE(ObjectAt(1).GetEffectRunning());
}

} // namespace
