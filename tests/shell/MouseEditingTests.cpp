#include "platform/User.h"
#include "shell/FramePresentation.h"
#include "tests/shell/EditorTest.h"

namespace {

using Indexes = std::vector<int32_t>;

// Three pictures of 40 by 30: two in a row, the third over empty canvas further down.
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
    const std::tuple<POINT, WPARAM, Indexes, int32_t> steps[] = {
        { { 110, 110 }, 0, { 0 }, 0 },
        { { 210, 110 }, 0, { 1 }, 1 },
        { { 110, 110 }, MK_SHIFT, { 1, 0 }, 0 },
        { { 600, 300 }, MK_SHIFT, { 1, 0 }, -1 },
        { { 210, 110 }, MK_SHIFT, { 0 }, 1 },
        { { 600, 300 }, 0, {}, -1 },
    };
    for (const auto& [at, keys, selected, current] : steps) {
        desktop.Press(at.x, at.y, keys);
        desktop.PlayInput();
        EXPECT_EQ(Selected(), selected);
        EXPECT_EQ(shell.editing.GetCurrentObject(), current < 0 ? nullptr : &ObjectAt(current));
        desktop.Release(at.x, at.y, keys);
    }
    desktop.DoubleClick(110, 110);
    desktop.MoveTo(150, 110);
    Play();
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(100, 100)); // the second press of a double click does nothing
    EXPECT_EQ(shell.editing.GetCurrentObject(), &ObjectAt(0)); // nor does a move over empty canvas
}

TEST_F(MouseEditing, DragsAllSelectedObjectsByTheTravelFromThePressPoint)
{
    desktop.Click(110, 110);
    desktop.Click(210, 110, MK_SHIFT);
    desktop.Press(215, 115);
    desktop.Do([&] { EXPECT_EQ(desktop.Capture(), shell.mainWindow); });
    desktop.MoveTo(225, 135);
    desktop.Release(225, 135);
    Play();
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(110, 120));
    EXPECT_EQ(ObjectAt(1).GetPos(), vec(210, 120));
    EXPECT_EQ(desktop.Capture(), nullptr);

    EXPECT_EQ(shell.editing.GetGrab(0), vec(110, 120));

    // The next drag starts from where the objects now lie.
    desktop.Key(VK_DOWN);
    desktop.Drag({ 115, 125 }, { 116, 125 });
    Play();
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(111, 121));
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
    for (const auto& [to, selected] : { std::pair { POINT { 260, 150 }, Indexes {} }, { { 400, 500 }, { 0, 1 } },
             { { 170, 150 }, { 0, 1, 2 } }, { { 170, 150 }, { 0 } } }) {
        desktop.MoveTo(to.x, to.y);
        desktop.PlayInput();
        EXPECT_EQ(Selected(), selected);
    }
    desktop.Release(170, 150);
    Play();
    EXPECT_EQ(shell.editing.GetGrab(0), vec(100, 100));
}

TEST_F(MouseEditing, NewWhileDraggingLeavesNothingButTheBackground)
{
    shell.editing.SetFileName("x.tobrik");
    desktop.Press(110, 110);
    desktop.ClickButton(104);
    desktop.MoveTo(150, 150);
    desktop.Release(150, 150);
    Play();
    EXPECT_EQ(shell.editing.GetObjectCount() + shell.document.GetObjectCount(), 0);
    EXPECT_EQ(shell.editing.GetCurrentObject(), nullptr);
    EXPECT_FALSE(shell.editing.HasFileName());
    EXPECT_EQ(desktop.Capture(), nullptr);
    EXPECT_EQ(desktop.Pixel(110, 110), desktop.Pixel(600, 300));
}

TEST_F(MouseEditing, KeysActOnTheSelectionOrOnTheObjectUnderThePointer)
{
    ObjectAt(1).SetEffect(EffectFadeOut);
    desktop.Click(110, 110);
    desktop.Key('P'); // has no effect
    desktop.MoveTo(210, 110);
    desktop.Key('P');
    desktop.Key('P');
    for (const int key : { VK_RIGHT, VK_RIGHT, VK_DOWN, VK_LEFT, VK_UP, VK_UP, VK_PRIOR })
        desktop.Key(key);
    Play();
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(101, 99));
    EXPECT_EQ(ObjectAt(1).GetLayer(), 2);
    EXPECT_EQ(ObjectAt(2).GetLayer(), 1);
    EXPECT_EQ(shell.document.GetEffects().size(), 1U);

    for (const int key : { VK_NEXT, VK_NEXT, VK_NEXT }) // at the bottom before the last
        desktop.Key(key);
    Play();
    EXPECT_EQ(ObjectAt(1).GetLayer(), 0);
    desktop.Key(VK_DELETE);
    desktop.Key(VK_DELETE); // nothing is left there
    Play();
    EXPECT_EQ(shell.document.GetObjectCount(), 2);
    EXPECT_EQ(shell.editing.GetObjectCount(), 2);
    EXPECT_EQ(Selected(), Indexes {});
    EXPECT_EQ(shell.editing.GetCurrentObject(), nullptr);
}

} // namespace
