#include "objects/CheckBoxObject.h"
#include "tests/objects/ObjectTest.h"

#include <tuple>

class CheckBoxObjectTest : public ObjectTest {
protected:
    void Build(vec boxStrip)
    {
        WriteStrip("ro_chkbox.bmp", boxStrip, 4);
        checkBox.SetLabelText("label");
        EXPECT_TRUE(checkBox.Build());
        checkBox.SetPos({ 100, 50 });
    }
    // Shows its box in the section of that state and in no other.
    void ExpectLook(int32_t state)
    {
        EXPECT_TRUE(Draw(checkBox));
        for (const int32_t section : { 0, 1, 2, 3 })
            EXPECT_EQ(Count(SectionColor(section)), section == state ? 256 : 0);
        EXPECT_EQ(checkBox.IsEnabled(), state != 3);
    }

    CheckBoxObject checkBox;
};

TEST_F(CheckBoxObjectTest, TogglesByALeftPressOnItsBoxAlone)
{
    Build({ 16, 64 });
    ExpectLook(0);
    EXPECT_EQ(canvas[50 * ScreenWidth + 100], SectionColor(0));
    const auto label = std::find(canvas.begin() + 57 * ScreenWidth, canvas.end(), blue);
    EXPECT_GE((label - canvas.begin()) % ScreenWidth, 121);
    const std::tuple<ObjectMessage, vec, int32_t> steps[] = { { MsgLeftDown, { 116, 66 }, 1 },
        { MsgLeftUp, { 110, 60 }, 1 }, { MsgMouseMove, { 110, 60 }, 1 }, { MsgRightDown, { 110, 60 }, 1 },
        { MsgLeftDown, { 117, 60 }, 1 }, { MsgLeftDown, { 0, 0 }, 1 }, { MsgLeftDown, { 100, 50 }, 0 } };
    for (const auto& [msg, point, state] : steps) {
        EXPECT_TRUE(checkBox.HitTest({ 130, 60 }, {})); // which gives the box the label's width
        EXPECT_FALSE(checkBox.HandleMessage(msg, 0, Pointer(point.x, point.y)));
        ExpectLook(state);
    }
    checkBox.SetPos({ 200, 50 }); // neither drawn nor asked there yet
    checkBox.HandleMessage(MsgLeftDown, 0, Pointer(210, 60));
    ExpectLook(1);
    checkBox.SetPos({ 100, 50 });
    checkBox.SetEnabled(false);
    checkBox.HandleMessage(MsgLeftDown, 0, Pointer(110, 60));
    ExpectLook(3);
    checkBox.SetEnabled(true);
    ExpectLook(0);
}

TEST_F(CheckBoxObjectTest, IsHitWhereItsPartsOrTheGapBetweenThemLie)
{
    Build({ 8, 32 });
    const int32_t width = 13 + checkBox.GetLabelSize().x;
    EXPECT_EQ(checkBox.GetView(), vec(width, 8));
    for (const auto& [point, hit] : { std::pair(vec(10, 8), true), { { 12, 9 }, false }, { { 13, 14 }, true },
             { { 13, 15 }, false }, { { width, 8 }, true }, { { width + 1, 5 }, false } })
        EXPECT_EQ(checkBox.HitTest(vec(100, 50) + point, {}), hit) << point;
}

TEST_F(CheckBoxObjectTest, NeedsItsLabelButNotItsBoxPicture)
{
    checkBox.SetLabelText("label");
    EXPECT_TRUE(checkBox.Build());
    EXPECT_FALSE(checkBox.HitTest({ 4, 0 }, {}));
    EXPECT_TRUE(Draw(checkBox));
    EXPECT_GT(Count(blue), 20);
    checkBox.SetLabelText("");
    EXPECT_FALSE(checkBox.Build());
    EXPECT_FALSE(Draw(checkBox));
    EXPECT_FALSE(checkBox.HitTest({ 5, 0 }, {}));
}
