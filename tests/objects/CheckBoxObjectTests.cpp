#include "objects/CheckBoxObject.h"
#include "tests/objects/ObjectTest.h"

using CheckBoxObjectTest = ObjectTest;

TEST_F(CheckBoxObjectTest, TogglesOnItsBoxAloneAndShowsItsState)
{
    WriteStrip("ro_chkbox.bmp", { 16, 64 }, 4);
    CheckBoxObject checkBox;
    checkBox.SetLabelText("label");
    ASSERT_TRUE(checkBox.Build() && Draw(checkBox));
    EXPECT_EQ(Count(SectionColor(0)) + Count(SectionColor(1)), 256);
    EXPECT_EQ(checkBox.GetSize(), vec(21 + checkBox.GetLabelSize().x, 16));
    EXPECT_TRUE(checkBox.HitTest(checkBox.GetSize(), {}));
    for (const auto& [press, state] : { std::pair(vec(25, 5), 0), { { 16, 16 }, 1 }, { { 0, 0 }, 0 } }) {
        EXPECT_FALSE(checkBox.HandleMessage(MsgLeftDown, 0, Pointer(press.x, press.y)));
        Draw(checkBox);
        EXPECT_EQ(Count(SectionColor(state)), 256);
        EXPECT_GT(Count(blue), 20);
    }
    checkBox.SetEnabled(false);
    checkBox.SetPos({ 799, 599 });
    checkBox.HandleMessage(MsgLeftDown, 0, Pointer(799, 599));
    Draw(checkBox);
    EXPECT_EQ(Count(SectionColor(3)), 1);
}

TEST_F(CheckBoxObjectTest, LivesWithoutItsBoxPictureAndVanishesWithItsLabel)
{
    CheckBoxObject checkBox;
    checkBox.SetLabelText("label");
    EXPECT_TRUE(checkBox.Build() && !checkBox.HitTest({ 4, 0 }, {}) && checkBox.HitTest({ 5, 0 }, {}));
    EXPECT_TRUE(Draw(checkBox) && Count(blue) > 20);
    checkBox.SetLabelText("");
    EXPECT_FALSE(checkBox.Build() || Draw(checkBox) || checkBox.HitTest({ 5, 0 }, {}));
}
