#include "objects/SelectboxObject.h"
#include "tests/objects/ObjectTest.h"

#include <tuple>

class SelectboxObjectTest : public ObjectTest {
protected:
    SelectboxObjectTest()
    {
        WriteStrip("EditBox.bmp", { 120, 20 }, 1);
        WriteStrip("upbutton.bmp", { 40, 8 }, 4);
        WriteStrip("downbutton.bmp", { 32, 6 }, 4);
        EXPECT_TRUE(box.Build());
    }
    bool Press(uint32_t lParam) { return box.HandleMessage(MsgLeftDown, 0, lParam); }
    void Click(uint32_t lParam)
    {
        EXPECT_TRUE(Press(lParam));
        EXPECT_FALSE(box.HandleMessage(MsgLeftUp, 0, lParam));
    }
    int32_t CurrentAfter(uint32_t milliseconds) { return Draw(box, milliseconds), box.GetCurrent(); }

    SelectboxObject box;
    const uint32_t onUp = Pointer(108, 1);
    const uint32_t onDown = Pointer(116, 15);
};

TEST_F(SelectboxObjectTest, StepsByAPressOnItsButtonsWhichFollowTheMouse)
{
    box.SetPos({ 30, 40 });
    for (int i = 0; i < 9; ++i)
        box.AddString("i");
    const std::tuple<ObjectMessage, vec, bool, int32_t, int32_t, int32_t> steps[] = { // answer, step, looks
        { MsgMouseMove, { 138, 41 }, false, 0, 1, 0 }, { MsgLeftDown, { 138, 41 }, true, -1, 2, 0 },
        { MsgLeftUp, { 148, 49 }, false, 0, 1, 0 }, { MsgLeftDown, { 146, 55 }, true, 1, 0, 2 },
        { MsgMouseMove, { 0, 0 }, false, 0, 0, 2 }, { MsgLeftUp, { 0, 0 }, false, 0, 0, 0 },
        { MsgLeftDown, { 140, 49 }, true, -1, 2, 2 }, // on both: up
        { MsgRightDown, { 138, 41 }, false, 0, 2, 2 }, { MsgLeftDown, { 137, 41 }, false, 0, 0, 0 },
        { MsgLeftDown, { 147, 55 }, false, 0, 0, 0 }, { MsgLeftDown, { 146, 56 }, false, 0, 0, 0 }
    };
    for (const auto& [msg, point, answer, step, upLook, downLook] : steps) {
        const int32_t before = box.GetCurrent();
        EXPECT_EQ(box.HandleMessage(msg, 0, Pointer(point.x, point.y)), answer) << msg << point;
        EXPECT_EQ(box.GetCurrent() - before, step) << msg << point;
        EXPECT_EQ(box.GetUpButton()->GetSection(), upLook) << msg << point;
        EXPECT_EQ(box.GetDownButton()->GetSection(), downLook) << msg << point;
    }
    EXPECT_EQ(box.GetScroll(), 0);
    EXPECT_EQ(CurrentAfter(0), 8);
}

TEST_F(SelectboxObjectTest, GoesRoundUnlessAButtonIsHeld)
{
    desktop.SetClock(0xFFFFFF00); // the clock wraps around during the first step
    for (const char* text : { "a", "b", "c", "d" })
        box.AddString(text);
    Click(onUp);
    EXPECT_EQ(CurrentAfter(0), 3);
    Click(onDown);
    EXPECT_EQ(CurrentAfter(1000), 0);
    EXPECT_TRUE(Press(onDown));
    EXPECT_EQ(CurrentAfter(300), 1);
    EXPECT_EQ(Count(SectionColor(2)), 48);
    for (const auto& [milliseconds, current] : { std::pair(5000U, 2), { 300U, 2 }, { 1U, 3 }, { 301U, 3 } })
        EXPECT_EQ(CurrentAfter(milliseconds), current) << milliseconds;
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(Press(onUp));
    EXPECT_EQ(CurrentAfter(0), 0); // held below the first
    EXPECT_EQ(Count(SectionColor(2)), 80);
}

TEST_F(SelectboxObjectTest, SkipsWhateverIsMissing)
{
    Click(onUp);
    Click(onUp);
    EXPECT_EQ(CurrentAfter(0), -1); // in range, with nothing to show
    EXPECT_TRUE(box.AddString(""));
    EXPECT_TRUE(box.AddString(std::string(259, 'm')));
    box.SetUpFile("missing.bmp");
    box.SetEditFile("missing.bmp");
    EXPECT_TRUE(box.Build());
    EXPECT_FALSE(box.HitTest({ 0, 0 }, {}));
    EXPECT_FALSE(Press(onUp));
    EXPECT_EQ(CurrentAfter(0), 1);
    EXPECT_GT(Count(blue), 20);
    for (const int32_t index : { -1, 2, 1 })
        box.RemoveString(index);
    EXPECT_EQ(CurrentAfter(0), 0);
    EXPECT_EQ(Count(blue), 0);
}

TEST_F(SelectboxObjectTest, IsCopiedWithoutWhatWasBuiltButWithWordsOfItsOwn)
{
    SelectboxObject original;
    original.AddString("choice");
    original.SetPos({ 30, 40 });
    EXPECT_TRUE(original.Build());
    EXPECT_TRUE(original.HitTest({ 150, 60 }, {}));
    EXPECT_FALSE(original.HitTest({ 151, 60 }, {}));
    Draw(original);
    EXPECT_GT(Count(blue), 20);
    const auto look = canvas;
    box = original; // which was built
    SelectboxObject copied(original);
    original.Reset();
    for (SelectboxObject* copy : { &box, &copied }) {
        EXPECT_FALSE(copy->HitTest({ 30, 40 }, {}));
        EXPECT_TRUE(copy->Build());
        Draw(*copy);
        EXPECT_EQ(copy->GetChoices()[0].word->GetPos(), vec(35, 45));
        EXPECT_EQ(canvas, look);
    }
}

TEST_F(SelectboxObjectTest, ShowsTheTextThatStandsAtTheCurrentPlaceWhateverWasRemoved)
{
    for (const char* text : { "i", "mmmm", "", "mm" })
        box.AddString(text);
    Draw(box);
    EXPECT_EQ(box.GetChoices()[0].word->GetText(), "i");
    EXPECT_EQ(box.GetChoices()[1].word, nullptr);
    Click(onDown);
    Draw(box);
    const ptrdiff_t wide = Count(blue);
    box.RemoveString(1);
    box.RemoveString(0);
    EXPECT_EQ(box.GetString(0), "");
    EXPECT_EQ(box.GetString(1), "mm");
    EXPECT_EQ(CurrentAfter(0), 1);
    EXPECT_EQ(Count(blue), wide / 2);
}
