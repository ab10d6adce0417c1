#include "objects/AnimationObject.h"
#include "objects/ScreenDocument.h"
#include "tests/objects/ObjectTest.h"

#include <cmath>
#include <tuple>

class AnimationObjectTest : public ObjectTest {
protected:
    int32_t FrameAfter(uint32_t milliseconds) { return Draw(animation, milliseconds), animation.GetFrame(); }

    AnimationObject animation;
};

TEST_F(AnimationObjectTest, SkipsNoFrameKeepsItsTimeOverAPauseAndStopsOnTheFirst)
{
    desktop.SetClock(0xFFFFFFF0); // the clock wraps around during the first frame
    animation.SetSections(3);
    animation.Play();
    EXPECT_EQ(FrameAfter(49), 0);
    EXPECT_EQ(FrameAfter(31), 1);
    animation.SetAlpha(0);
    animation.Pause();
    EXPECT_TRUE(FrameAfter(1000) == 1 && animation.GetAlpha() == 255);
    animation.Play();
    EXPECT_EQ(FrameAfter(19), 1);
    EXPECT_EQ(FrameAfter(1), 2);
    animation.SetSections(2);
    EXPECT_EQ(animation.GetFrame(), 1);
    animation.SetAlpha(0);
    EXPECT_TRUE(FrameAfter(99) == 0 && animation.GetAlpha() == 255);
    animation.SetSections(0);
    animation.Play();
    EXPECT_TRUE(FrameAfter(49) == 0 && animation.IsPlaying()); // a play-through starts afresh
}

TEST_F(AnimationObjectTest, TakesAnyNumberAsTimePerFrame)
{
    const std::tuple<float, int32_t, uint32_t> cases[] = { { 16.75F, 1, 3000000017U }, { 20.5F, 0, 3000000001U },
        { -0.5F, 1, 3000000000U }, { -3000000256.0F, 1, 4294967041U }, { -1e30F, 1, 0 }, { -INFINITY, 1, 3000000001U },
        { NAN, 0, 3000000001U } };
    for (const auto& [interval, frame, tick] : cases) {
        animation.Reset();
        animation.SetInterval(interval);
        desktop.SetClock(3000000001U);
        animation.Play();
        EXPECT_EQ(FrameAfter(20), frame) << interval;
        EXPECT_EQ(animation.GetTick(), tick) << interval;
    }
}

TEST_F(AnimationObjectTest, DrawsOneWholeFrameInsideTheScreen)
{
    const std::tuple<vec, vec, vec, int> cases[] = { { { 400, 50 }, { 790, -20 }, { 750, 0 }, 50 * 50 },
        { { 50, 400 }, { -20, INT32_MAX }, { 0, 550 }, 50 * 50 }, { { 8000, 650 }, { 30, 30 }, { 0, 30 }, 800 * 570 },
        { { 40, 40 }, { 1, 2 }, { 1, 2 }, 40 * 5 } };
    for (const auto& [strip, pos, drawnAt, pixels] : cases) {
        WriteStrip("strip.bmp", strip, 8);
        animation.Reset();
        ASSERT_TRUE(Load(animation, "strip.bmp"));
        animation.SetPos(pos);
        animation.SetAlpha(0); // until it plays
        animation.SetInterval(0);
        animation.Play();
        EXPECT_FALSE(animation.Draw(nullptr, 2 * ScreenWidth) || animation.GetPos() != pos); // steps, moves nothing
        ScreenDocument().ClipObject(animation, false);
        EXPECT_EQ(FrameAfter(0), 2);
        EXPECT_EQ(animation.GetPos(), drawnAt);
        EXPECT_EQ(Count(SectionColor(2)), pixels) << strip.x;
        EXPECT_FALSE(animation.HitTest(drawnAt + vec(animation.GetView().x + 1, 0), {}));
    }
    EXPECT_TRUE(animation.HitTest({ 41, 42 }, {})); // a square strip is hit over its whole height
}
