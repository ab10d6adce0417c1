#include "objects/SelectboxObject.h"
#include "tests/objects/ObjectTest.h"

namespace {

class SelectboxObjectTest : public ObjectTest {
protected:
    SelectboxObjectTest()
    {
        WriteStrip("EditBox.bmp", { 120, 20 }, 1, false);
        for (const char* button : { "upbutton.bmp", "downbutton.bmp" })
            WriteStrip(button, { 40, 8 }, 4, false);
        box.Build();
    }
    bool Press(uint32_t lParam) { return box.HandleMessage(MsgLeftDown, 0, lParam); }
    bool Click(uint32_t lParam) { return Press(lParam) && !box.HandleMessage(MsgLeftUp, 0, 0); }
    int32_t CurrentAfter(uint32_t milliseconds)
    {
        desktop.Advance(milliseconds);
        Draw(box);
        return box.GetCurrent();
    }
    SelectboxObject box;
    const uint32_t onUp = Pointer(110, 5);
    const uint32_t onDown = Pointer(110, 15);
};

TEST_F(SelectboxObjectTest, GoesRoundByClicksAndStopsAtTheEndsWhileHeld)
{
    desktop.SetClock(0xFFFFFF00); // the clock wraps around during the first step
    for (const char* text : { "a", "b", "c", "d" })
        box.AddString(text);
    EXPECT_TRUE(Click(onUp));
    EXPECT_EQ(CurrentAfter(0), 3);
    EXPECT_TRUE(Click(onDown));
    EXPECT_EQ(CurrentAfter(1000), 0);
    Press(onDown);
    EXPECT_EQ(CurrentAfter(300), 1);
    EXPECT_EQ(Drawn()[SectionColor(2)], 80);
    EXPECT_EQ(CurrentAfter(5000), 2);
    EXPECT_EQ(CurrentAfter(300), 2);
    EXPECT_EQ(CurrentAfter(1), 3);
    EXPECT_EQ(CurrentAfter(301), 3);
    Press(onUp);
    for (int i = 0; i < 3; ++i)
        CurrentAfter(301);
    EXPECT_EQ(box.GetCurrent(), 0);
}

TEST_F(SelectboxObjectTest, SkipsMissingWordsPicturesAndIndexes)
{
    Click(onUp);
    CurrentAfter(0);
    box.AddString("");
    EXPECT_EQ(CurrentAfter(0), 0);
    box.AddString(std::string(259, 'm'));
    Click(onDown);
    EXPECT_EQ(CurrentAfter(0), 1);
    EXPECT_EQ(box.GetChoices()[1].word->GetPos(), vec(5, 5));
    box.SetUpFile("missing.bmp");
    box.SetEditFile("missing.bmp");
    EXPECT_TRUE(box.Build());
    EXPECT_FALSE(box.HitTest({ 0, 0 }, {}) || Press(onUp));
    EXPECT_EQ(CurrentAfter(0), 1);
    EXPECT_GT(Drawn()[blue], 20);
    for (const int32_t index : { -1, 2, 1, 0, 0 })
        box.RemoveString(index);
    EXPECT_EQ(box.GetCount(), 0);
    EXPECT_EQ(box.GetString(0), "");
}

} // namespace
