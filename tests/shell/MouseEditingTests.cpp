#include "platform/User.h"
#include "shell/CommandButtons.h"
#include "shell/FramePresentation.h"
#include "tests/shell/EditorTest.h"

#include <fstream>

namespace {

using platform::ScriptedDesktop;
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
    // The selected objects with their places, the current object, and whether the mouse is captured.
    std::string State() const
    {
        std::string state;
        for (const int32_t index : Selected()) {
            const vec pos = ObjectAt(index).GetPos();
            state += " " + std::to_string(index) + " at " + std::to_string(pos.x) + "," + std::to_string(pos.y);
        }
        for (int32_t index = 0; index < shell.document.GetObjectCount(); ++index)
            if (shell.editing.GetCurrentObject() == &ObjectAt(index))
                state += " current " + std::to_string(index);
        return state + (desktop.Capture() == shell.mainWindow ? " captured" : "");
    }
    // Plays a file of cases/ whose lines say what is done, where, and what the state is then.
    void PlayGesture(const std::string& name)
    {
        std::ifstream steps(SHELL_CASES "/" + name + ".txt");
        ASSERT_TRUE(steps);
        std::string act;
        for (vec at; steps >> act >> at.x >> at.y;) {
            const WPARAM keys = act.starts_with("shift-") ? MK_SHIFT : 0;
            const auto played = act.ends_with("press") ? &ScriptedDesktop::Press
                : act.ends_with("again")               ? &ScriptedDesktop::PressAgain
                : act.ends_with("move")                ? &ScriptedDesktop::MoveTo
                                                       : &ScriptedDesktop::Release;
            (desktop.*played)(at.x, at.y, keys);
            desktop.PlayInput();
            std::string state;
            std::getline(steps, state);
            EXPECT_EQ(":" + State(), state) << act << " " << at.x << " " << at.y;
            EXPECT_EQ(shell.editing.GetPointer(), at);
        }
    }
};

TEST_F(MouseEditing, SelectsByClickAndShiftClick)
{
    PlayGesture("clicks");
}

TEST_F(MouseEditing, DragsAllSelectedObjectsByTheTravelFromThePressPoint)
{
    PlayGesture("drags");
    EXPECT_EQ(shell.editing.GetGrab(0), vec(110, 120));
    ObjectAt(0).SetPos({ 105, 130 }); // the next drag starts from where the objects now lie
    PlayGesture("next-drag");
}

TEST_F(MouseEditing, TakesTheSecondPressOfADoubleClickForNone)
{
    PlayGesture("double-click");
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(100, 100));
}

TEST_F(MouseEditing, RubberBandReachesToThePointerBeforeTheMove)
{
    for (int i = 0; i < 2; ++i)
        SendMessageA(shell.mainWindow, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(400, 500));
    EXPECT_EQ(Selected(), Indexes {}); // there was no press yet
    PlayGesture("rubber-bands");
}

TEST_F(MouseEditing, NewForgetsEverythingButTheHeldButton)
{
    const EditorState& editing = shell.editing;
    shell.editing.SetFileName("x.tobrik");
    shell.editing.SetObjectCount(3);
    desktop.RightPress(600, 300);
    desktop.Press(110, 110);
    desktop.ClickButton(CommandNew);
    desktop.PlayInput();
    for (const vec point : { editing.GetPointer(), editing.GetPressPoint(), editing.GetContextPoint() })
        EXPECT_EQ(point, vec(0, 0));
    EXPECT_EQ(shell.document.GetObjectCount(), 0);
    EXPECT_EQ(editing.GetObjectCount(), 0);
    EXPECT_EQ(editing.GetCurrentObject(), nullptr);
    EXPECT_EQ(editing.GetFileName(), "");
    EXPECT_EQ(Selected(), Indexes {});
    EXPECT_TRUE(editing.IsDragging());
    EXPECT_TRUE(editing.IsPressHit());
    desktop.Release(150, 150);
    Play();
    EXPECT_FALSE(editing.IsDragging());
    EXPECT_EQ(desktop.Capture(), nullptr);
    EXPECT_EQ(desktop.Pixel(110, 110), BackgroundColour);
}

TEST_F(MouseEditing, KeysActOnTheSelectionOrOnTheObjectUnderThePointer)
{
    struct Case {
        int key;
        vec pos; // of the selected object
        int32_t layer; // of the object under the pointer
    };
    ObjectAt(1).SetEffect(EffectFadeOut);
    desktop.Click(110, 110);
    desktop.Key('P'); // has no effect
    desktop.MoveTo(210, 110);
    for (const Case& each : { Case { 'P', { 100, 100 }, 1 }, { 'P', { 100, 100 }, 1 }, { VK_LEFT, { 99, 100 }, 1 },
             { VK_LEFT, { 98, 100 }, 1 }, { VK_UP, { 98, 99 }, 1 }, { VK_RIGHT, { 99, 99 }, 1 },
             { VK_DOWN, { 99, 100 }, 1 }, { VK_PRIOR, { 99, 100 }, 2 }, { VK_PRIOR, { 99, 100 }, 2 },
             { VK_NEXT, { 99, 100 }, 1 }, { VK_NEXT, { 99, 100 }, 0 }, { VK_NEXT, { 99, 100 }, 0 } }) {
        desktop.Key(each.key);
        Play();
        EXPECT_EQ(ObjectAt(0).GetPos(), each.pos);
        EXPECT_EQ(ObjectAt(1).GetLayer(), each.layer);
        EXPECT_EQ(shell.document.GetEffects().size(), 1U);
        EXPECT_EQ(shell.editing.GetGrab(0), vec(100, 100));
    }
}

TEST_F(MouseEditing, DeleteTakesTheObjectUnderThePointerAndClearsTheSelection)
{
    desktop.Click(110, 110);
    desktop.AnswerMenu(0, POINT { -1, 410 }); // dismissed from outside the window
    desktop.RightPress(310, 410); // moves the pointer and nothing else
    desktop.PlayInput();
    EXPECT_EQ(State(), " 0 at 100,100 current 0");
    for (const auto& [at, left, state] : { std::tuple { vec(310, 410), 2, " current 0" },
             { vec(310, 410), 2, " current 0" }, { vec(110, 110), 1, "" } }) {
        shell.editing.SetPointer(at);
        shell.editing.SelectOnly(0, { 0, 0 });
        desktop.Key(VK_DELETE);
        desktop.PlayInput();
        EXPECT_EQ(State(), state);
        EXPECT_EQ(shell.document.GetObjectCount(), left);
        EXPECT_EQ(shell.editing.GetObjectCount(), left);
    }
    EXPECT_EQ(shell.editing.GetCurrentObject(), nullptr);
}

} // namespace
