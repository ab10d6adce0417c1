#include "objects/SelectboxObject.h"
#include "tests/objects/ObjectTest.h"

class SelectboxObjectTest : public ObjectTest {
protected:
    SelectboxObjectTest()
    {
        WriteStrip("EditBox.bmp", { 120, 20 }, 1);
        WriteStrip("upbutton.bmp", { 40, 8 }, 4);
        WriteStrip("downbutton.bmp", { 40, 8 }, 4);
        box.Build();
    }
    bool Press(uint32_t lParam) { return box.HandleMessage(MsgLeftDown, 0, lParam); }
    bool Click(uint32_t lParam) { return Press(lParam) && !box.HandleMessage(MsgLeftUp, 0, 0); }
    int32_t CurrentAfter(uint32_t milliseconds) { return Draw(box, milliseconds), box.GetCurrent(); }

    SelectboxObject box;
    const uint32_t onUp = Pointer(108, 1);
    const uint32_t onDown = Pointer(118, 19);
};

TEST_F(SelectboxObjectTest, GoesRoundByClicksAndStopsAtTheEndsWhileHeld)
{
    desktop.SetClock(0xFFFFFF00); // the clock wraps around during the first step
    for (const char* text : { "a", "b", "c", "d" })
        box.AddString(text);
    EXPECT_TRUE(Click(onUp) && CurrentAfter(0) == 3 && box.GetSize() == vec(120, 20));
    EXPECT_TRUE(Click(onDown) && CurrentAfter(1000) == 0);
    EXPECT_TRUE(Press(onDown) && CurrentAfter(300) == 1);
    EXPECT_EQ(Count(SectionColor(2)), 80);
    for (const auto& [milliseconds, current] : { std::pair(5000U, 2), { 300U, 2 }, { 1U, 3 }, { 301U, 3 } })
        EXPECT_EQ(CurrentAfter(milliseconds), current) << milliseconds;
    EXPECT_TRUE(Click(onUp) && Click(onUp) && Click(onUp) && Press(onUp));
    EXPECT_EQ(CurrentAfter(0), 0); // held below the first
}

TEST_F(SelectboxObjectTest, SkipsMissingWordsPicturesAndIndexes)
{
    EXPECT_TRUE(Click(onUp) && Click(onUp) && CurrentAfter(0) == -1); // in range, with nothing to show
    box.AddString("");
    box.AddString(std::string(259, 'm'));
    box.SetUpFile("missing.bmp");
    box.SetEditFile("missing.bmp");
    EXPECT_FALSE(!box.Build() || box.HitTest({ 0, 0 }, {}) || Press(onUp));
    EXPECT_TRUE(CurrentAfter(0) == 1 && Count(blue) > 20);
    for (const int32_t index : { -1, 2, 1 })
        box.RemoveString(index);
    EXPECT_TRUE(CurrentAfter(0) == 0 && Count(blue) == 0);
}

TEST_F(SelectboxObjectTest, IsCopiedWithoutWhatWasBuiltButWithWordsOfItsOwn)
{
    SelectboxObject original;
    original.AddString("choice");
    original.SetPos({ 30, 40 });
    ASSERT_TRUE(original.Build() && original.HitTest({ 150, 60 }, {}) && Draw(original));
    EXPECT_EQ(original.GetUpButton()->GetPos(), vec(138, 41));
    const auto look = canvas;
    box = original; // which was built
    SelectboxObject copied(original);
    original.Reset();
    for (SelectboxObject* copy : { &box, &copied }) {
        EXPECT_FALSE(copy->HitTest({ 30, 40 }, {}) || original.GetCount() > 0);
        EXPECT_TRUE(copy->Build() && Draw(*copy) && copy->GetChoices()[0].word->GetPos() == vec(35, 45));
        EXPECT_EQ(canvas, look);
    }
}
