#include "platform/User.h"
#include "shell/CommandButtons.h"
#include "shell/FramePresentation.h"
#include "tests/shell/EditorTest.h"

namespace {

using platform::HeadlessDesktop;
using Indexes = std::vector<int32_t>;

constexpr auto press = &HeadlessDesktop::Press;
constexpr auto move = &HeadlessDesktop::MoveTo;
constexpr auto release = &HeadlessDesktop::Release;

// Three pictures of 40 by 30: two in a row, the third over empty canvas further down.
class MouseEditing : public EditorTest {
protected:
    struct Step {
        void (HeadlessDesktop::*act)(int, int, WPARAM);
        vec at;
        WPARAM keys;
        std::string then; // the selected objects with their places, the current object, whether the mouse is captured
    };

    void SetUp() override
    {
        EditorTest::SetUp();
        AddPicture({ 100, 100 }, { 40, 30 });
        AddPicture({ 200, 100 }, { 40, 30 });
        AddPicture({ 300, 400 }, { 40, 30 });
        PresentFrame();
    }
    std::string State() const
    {
        std::string state;
        for (const int32_t index : Selected()) {
            const vec pos = ObjectAt(index).GetPos();
            state += std::to_string(index) + " at " + std::to_string(pos.x) + "," + std::to_string(pos.y) + " ";
        }
        for (int32_t index = 0; index < shell.document.GetObjectCount(); ++index)
            if (shell.editing.GetCurrentObject() == &ObjectAt(index))
                state += "current " + std::to_string(index) + " ";
        return state + (desktop.Capture() == shell.mainWindow ? "captured" : "");
    }
    void Do(const std::vector<Step>& steps)
    {
        for (const Step& step : steps) {
            (desktop.*step.act)(step.at.x, step.at.y, step.keys);
            desktop.PlayInput();
            EXPECT_EQ(State(), step.then);
            EXPECT_EQ(shell.editing.GetPointer(), step.at);
        }
    }
};

TEST_F(MouseEditing, SelectsByClickAndShiftClick)
{
    Do({ { press, { 110, 110 }, 0, "0 at 100,100 current 0 captured" },
        { release, { 111, 110 }, 0, "0 at 100,100 current 0 " },
        { press, { 210, 110 }, 0, "1 at 200,100 current 1 captured" },
        { release, { 210, 110 }, 0, "1 at 200,100 current 1 " },
        { press, { 110, 110 }, MK_SHIFT, "1 at 200,100 0 at 100,100 current 0 " },
        { press, { 600, 300 }, MK_SHIFT, "1 at 200,100 0 at 100,100 " },
        { move, { 111, 110 }, MK_SHIFT, "1 at 200,100 0 at 100,100 current 0 " },
        { press, { 210, 110 }, MK_SHIFT, "0 at 100,100 current 1 " },
        { move, { 230, 111 }, 0, "0 at 120,101 current 1 " }, // once Shift is released, without capture
        { press, { 600, 300 }, 0, "" } });
}

TEST_F(MouseEditing, DragsAllSelectedObjectsByTheTravelFromThePressPoint)
{
    Do({ { press, { 110, 110 }, 0, "0 at 100,100 current 0 captured" },
        { release, { 110, 110 }, 0, "0 at 100,100 current 0 " },
        { press, { 210, 110 }, MK_SHIFT, "0 at 100,100 1 at 200,100 current 1 " },
        { press, { 215, 115 }, 0, "0 at 100,100 1 at 200,100 current 1 captured" },
        { move, { -5, -20 }, 0, "0 at -120,-35 1 at -20,-35 current 1 captured" },
        { move, { 225, 135 }, 0, "0 at 110,120 1 at 210,120 current 1 captured" },
        { release, { 225, 136 }, 0, "0 at 110,120 1 at 210,120 current 1 " } });
    EXPECT_EQ(shell.editing.GetGrab(0), vec(110, 120));
    ObjectAt(0).SetPos({ 105, 130 }); // the next drag starts from where the objects now lie
    Do({ { press, { 215, 125 }, 0, "0 at 105,130 1 at 210,120 current 1 captured" },
        { press, { 310, 410 }, MK_SHIFT, "0 at 105,130 1 at 210,120 2 at 300,400 current 2 captured" },
        { release, { 310, 410 }, 0,
            "0 at 105,130 1 at 210,120 2 at 300,400 current 2 captured" } }); // no drag any more
}

TEST_F(MouseEditing, TakesTheSecondPressOfADoubleClickForNone)
{
    Do({ { &HeadlessDesktop::Click, { 110, 110 }, 0, "0 at 100,100 current 0 " } });
    desktop.PressAgain(600, 300);
    desktop.PlayInput();
    EXPECT_EQ(State(), "0 at 100,100 current 0 ");
    Do({ { move, { 150, 110 }, 0, "current 0 " } }); // a rubber band around nothing
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(100, 100));
}

TEST_F(MouseEditing, RubberBandReachesToThePointerBeforeTheMove)
{
    for (int i = 0; i < 2; ++i)
        SendMessageA(shell.mainWindow, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(400, 500));
    EXPECT_EQ(Selected(), Indexes {}); // there was no press yet
    const char* both = "0 at 100,100 1 at 200,100 ";
    Do({ { press, { 90, 90 }, 0, "" }, { move, { 260, 150 }, 0, "" }, { move, { 400, 500 }, 0, both },
        { move, { 170, 150 }, 0, "0 at 100,100 1 at 200,100 2 at 300,400 " }, { move, { 90, 50 }, 0, "0 at 100,100 " },
        { release, { 90, 90 }, 0, "0 at 100,100 " } });
    Do({ { press, { 260, 150 }, 0, "" }, { move, { 90, 90 }, 0, "" }, { move, { 190, 90 }, 0, both } }); // up and left
    Do({ { press, { 190, 150 }, 0, "" }, { move, { 260, 90 }, 0, "" }, { move, { 90, 90 }, 0, "1 at 200,100 " } });
}

TEST_F(MouseEditing, NewForgetsEverythingButTheHeldButton)
{
    const EditorState& editing = shell.editing;
    shell.editing.SetFileName("x.tobrik");
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
    EXPECT_EQ(desktop.Capture(), nullptr);
    EXPECT_EQ(desktop.Pixel(110, 110), 0x393939U); // the background stays
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
    EXPECT_EQ(State(), "0 at 100,100 current 0 ");
    for (const auto& [at, left, state] : { std::tuple { vec(310, 410), 2, "current 0 " },
             { vec(310, 410), 2, "current 0 " }, { vec(110, 110), 1, "" } }) {
        shell.editing.SetPointer(at);
        shell.editing.SelectOnly(0, { 0, 0 });
        desktop.Key(VK_DELETE);
        desktop.PlayInput();
        EXPECT_EQ(State(), state);
        EXPECT_EQ(shell.document.GetObjectCount(), left);
        EXPECT_EQ(shell.editing.GetObjectCount(), left);
    }
}

} // namespace
