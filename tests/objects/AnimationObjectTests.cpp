#include "objects/AnimationObject.h"
#include "objects/ScreenDocument.h"
#include "tests/objects/ObjectTest.h"

#include <cmath>
#include <tuple>

class AnimationObjectTest : public ObjectTest {
protected:
    int32_t FrameAfter(uint32_t milliseconds) { return Draw(animation, milliseconds), animation.GetFrame(); }
    std::pair<int32_t, uint32_t> FrameAndAlphaAfter(uint32_t ms) { return { FrameAfter(ms), animation.GetAlpha() }; }

    AnimationObject animation;
};

TEST_F(AnimationObjectTest, PlaysFrameByFrameThroughAPauseBackToTheFirst)
{
    desktop.SetClock(0xFFFFFFF0); // the clock wraps around during the first frame
    animation.SetSections(3);
    animation.Play();
    EXPECT_EQ(FrameAfter(49), 0);
    EXPECT_EQ(FrameAfter(31), 1);
    animation.SetAlpha(0);
    animation.Pause();
    EXPECT_EQ(FrameAndAlphaAfter(1000), std::pair(1, 255U));
    animation.Play();
    EXPECT_EQ(FrameAfter(19), 1);
    EXPECT_EQ(FrameAfter(1), 2);
    animation.SetSections(2);
    EXPECT_EQ(animation.GetFrame(), 1);
    animation.SetAlpha(0);
    EXPECT_EQ(FrameAndAlphaAfter(99), std::pair(0, 255U));
    EXPECT_EQ(animation.GetTick(), AnimationObject::neverStarted);
    animation.SetSections(0);
    animation.Play();
    EXPECT_EQ(FrameAfter(49), 0);
    EXPECT_TRUE(animation.IsPlaying()); // a play-through starts afresh
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

TEST_F(AnimationObjectTest, IsHitWhereItsWholeFrameIsDrawn)
{
    const vec wide { 400, 50 };
    const vec stacked { 50, 400 };
    const struct {
        vec strip, pos, drawnAt, view;
        int32_t hitHeight;
    } cases[] = {
        { wide, { 790, -20 }, { 750, 0 }, { 50, 50 }, 50 },
        { wide, { -30, 580 }, { 0, 580 }, { 50, 20 }, 50 }, // cut at the bottom alone
        { stacked, { -30, 100 }, { 0, 100 }, { 50, 50 }, 50 },
        { stacked, { -60, INT32_MAX }, { 0, 550 }, { 50, 50 }, 50 },
        { stacked, { 790, -20 }, { 790, 0 }, { 10, 50 }, 50 }, // cut at the right alone
        { { 8000, 650 }, { 30, 30 }, { 0, 30 }, { 800, 570 }, 650 }, // larger than the canvas
        { { 40, 40 }, { -1, 2 }, { 0, 2 }, { 40, 5 }, 40 }, // drawn as a stacked one, hit over its whole height
    };
    const ScreenDocument document;
    for (const auto& [strip, pos, drawnAt, view, hitHeight] : cases) {
        WriteStrip("strip.bmp", strip, 8);
        animation.Reset();
        ASSERT_TRUE(Load(animation, "strip.bmp"));
        animation.SetPos(pos);
        animation.SetAlpha(7); // until it plays
        Draw(animation);
        EXPECT_EQ(Drawn(), 0);
        animation.SetPos(pos);
        animation.SetInterval(0);
        animation.Play();
        EXPECT_FALSE(animation.Draw(nullptr, 2 * ScreenWidth)); // steps, moves nothing
        EXPECT_EQ(animation.GetPos(), pos);
        for (const int frame : { 2, 3 }) { // the second fitting changes nothing
            document.ClipObject(animation, false);
            EXPECT_EQ(FrameAfter(0), frame);
            EXPECT_EQ(animation.GetPos(), drawnAt);
            EXPECT_EQ(animation.GetSrc(), vec(0));
            EXPECT_EQ(animation.GetView(), view);
            EXPECT_EQ(Count(SectionColor(frame)), view.x * view.y);
        }
        EXPECT_TRUE(animation.PixelHit(drawnAt + view - vec(1)));
        EXPECT_TRUE(animation.HitTest(drawnAt + vec(view.x, hitHeight), {}));
        EXPECT_FALSE(animation.HitTest(drawnAt + vec(view.x + 1, hitHeight), {}));
        EXPECT_FALSE(animation.HitTest(drawnAt + vec(view.x, hitHeight + 1), {}));
    }
}
