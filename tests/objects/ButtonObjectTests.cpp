#include "objects/ButtonObject.h"
#include "tests/objects/ObjectTest.h"

#include <tuple>

using ButtonObjectTest = ObjectTest;

TEST_F(ButtonObjectTest, IsCutByTheMarkInItsNameElseAlongItsLongerSide)
{
    const std::tuple<const char*, vec, int32_t, vec> cases[]
        = { { "both!@.bmp", { 20, 300 }, 3, { 6, 300 } }, { "tall!.bmp", { 300, 20 }, 3, { 300, 6 } },
              { "wide.bmp", { 90, 20 }, 4, { 22, 20 } }, { "square.bmp", { 60, 60 }, 4, { 60, 15 } },
              { "narrow.bmp", { 3, 2 }, 16, { 0, 2 } }, { "whole.bmp", { 9, 2 }, 0, { 9, 2 } } };
    for (const auto& [name, picture, sections, section] : cases) {
        WriteStrip(name, picture, 1);
        ButtonObject cut;
        ASSERT_TRUE(Load(cut, name));
        cut.SetSections(sections);
        EXPECT_EQ(cut.GetSize(), section) << name;
        EXPECT_TRUE(cut.Load()) << name;
        EXPECT_TRUE(Draw(cut)) << name;
        EXPECT_EQ(cut.GetView(), section) << name;
    }
}

TEST_F(ButtonObjectTest, FollowsTheMouseThroughTheLooksThatItHas)
{
    WriteStrip("button.bmp", { 10, 20 }, 2);
    ButtonObject button;
    button.SetSections(2);
    ASSERT_TRUE(Load(button, "button.bmp"));
    button.SetView({ 10, 5 }); // the cut of a fitting is hit all the same
    const uint32_t in = Pointer(10, 10);
    const uint32_t out = Pointer(-1, 11);
    const std::tuple<ObjectMessage, uint32_t, int32_t, bool> steps[]
        = { { MsgMouseMove, in, 1, true }, { MsgLeftUp, in, 1, false }, { MsgMouseMove, out, 0, false },
              { MsgLeftDown, in, 2, true }, { MsgMouseMove, out, 2, false }, { MsgMouseMove, in, 2, true },
              { MsgRightDown, in, 2, false }, { MsgLeftUp, in, 1, true }, { MsgLeftDown, out, 0, false },
              { MsgLeftDown, in, 2, true }, { MsgLeftUp, out, 0, false } };
    for (const auto& [msg, where, look, answer] : steps) {
        EXPECT_EQ(button.HandleMessage(msg, 0, where), answer);
        EXPECT_EQ(button.GetSection(), look);
        Draw(button);
        EXPECT_EQ(Count(SectionColor(std::min(look, 1))), 50);
    }
    EXPECT_FALSE(Load(button, "missing.bmp"));
    EXPECT_FALSE(button.HandleMessage(MsgLeftDown, 0, in)); // unloaded
    EXPECT_EQ(button.GetSection(), 0);
}

TEST_F(ButtonObjectTest, ShowsWhatTheFittingLeavesOfASectionWithItsAlpha)
{
    for (const auto& [name, size] : { std::pair("wide.bmp", vec(12, 3)), { "stacked.bmp", vec(3, 12) } }) {
        WriteStrip(name, size, 12);
        ButtonObject button;
        button.SetSections(3);
        ASSERT_TRUE(Load(button, name));
        button.SetSrc({ 2, 2 });
        button.SetView({ 1, 1 });
        for (const auto& [msg, look] : { std::pair(MsgLeftUp, 0), { MsgMouseMove, 1 }, { MsgLeftDown, 2 } }) {
            button.HandleMessage(msg, 0, Pointer(3, 3));
            Draw(button);
            EXPECT_EQ(Count(SectionColor(4 * look + 2)), 1) << name;
            EXPECT_EQ(Drawn(), 1) << name;
        }
        button.SetAlpha(7);
        Draw(button);
        EXPECT_EQ(Drawn(), 0);
    }
}
