#include "objects/ScreenDocument.h"
#include "platform/headless/HeadlessDesktop.h"
#include "tests/objects/FakePicture.h"

#include <gtest/gtest.h>

namespace {

class AppearanceEffects : public testing::Test {
protected:
    ScreenObject& Add(vec pos, vec size, EffectKind effect)
    {
        document.AddPicture(std::make_unique<FakePicture>(pos, size, &log));
        ScreenObject& object = *document.GetObjects().back();
        object.SetEffect(effect);
        return object;
    }
    // One frame after a pause; what it drew.
    FakePicture::Log Frame(uint32_t milliseconds)
    {
        log.clear();
        desktop.Advance(milliseconds);
        document.Render();
        return log;
    }

    platform::HeadlessDesktop desktop;
    FakePicture::Log log;
    ScreenDocument document;
};

TEST_F(AppearanceEffects, SlideInFromEachSide)
{
    const struct {
        EffectKind effect;
        vec pos, src, start, delta;
        int32_t steps;
    } slides[] = {
        { EffectFromTop, { 100, 200 }, { 0, 0 }, { 100, -40 }, { 0, 10 }, 24 },
        { EffectFromBottom, { 0, 205 }, { 30, 0 }, { -30, 600 }, { 0, -10 }, 39 },
        { EffectFromLeft, { 0, 0 }, { 30, 7 }, { -80, -7 }, { 10, 0 }, 5 },
        { EffectFromRight, { 805, 9 }, { 0, 0 }, { 800, 9 }, { -10, 0 }, 0 },
        { EffectFromLeft, { -2147483647, 1 }, { 9, 0 }, { -59, 1 }, { 10, 0 }, 214748359 },
    };
    for (const auto& slide : slides) {
        SCOPED_TRACE(slide.effect);
        Add(slide.pos, { 50, 40 }, slide.effect).SetSrc(slide.src);
        document.StartEffect(document.GetObjectCount() - 1);
        const EffectRecord& record = document.GetEffects().back();
        EXPECT_EQ(record.start, slide.start);
        EXPECT_EQ(record.delta, slide.delta);
        EXPECT_EQ(record.steps, slide.steps);
        EXPECT_EQ(record.end, slide.pos - slide.src);
    }
}

TEST_F(AppearanceEffects, ShowOneStepPerDueFrameAndEndWhereTheObjectWas)
{
    desktop.SetClock(0xFFFFFFF0); // the counter wraps around on the way
    const ScreenObject& object = Add({ 100, 200 }, { 50, 40 }, EffectFromTop);
    document.StartEffect(0);
    document.StartEffect(0);
    EXPECT_TRUE(Frame(19).empty());
    EXPECT_EQ(Frame(1).at(0).GetView(), vec(50, 0));
    EXPECT_TRUE(Frame(5).empty());
    for (int32_t step = 1; step <= 24; ++step) {
        const FakePicture drawn = Frame(100).at(0);
        EXPECT_EQ((drawn.GetPos() - drawn.GetSrc()).y, step == 4 ? -10 : 10 * step - 40); // at 0 the cut stays
    }
    EXPECT_TRUE(object.GetEffectRunning());
    EXPECT_EQ(Frame(100).at(0).GetPos(), vec(100, 200));
    EXPECT_FALSE(object.GetEffectRunning());
    EXPECT_TRUE(document.GetEffects().empty());
}

TEST_F(AppearanceEffects, HideForGoodWhatFadesOutAndFollowTheirObjectsInTheList)
{
    Add({ 1, 2 }, { 50, 40 }, EffectNone);
    Add({ 1, 2 }, { 50, 40 }, EffectFromTop).SetEffectRunning(true); // without a record: repaired
    Add({ 1, 2 }, { 50, 40 }, EffectFromLeft);
    Add({ 1, 2 }, { 50, 40 }, EffectFadeOut);
    for (int32_t index = -1; index <= 4; ++index)
        document.StartEffect(index);
    EXPECT_EQ(Frame(100).size(), 2U);
    EXPECT_EQ(Frame(100).size(), 3U);
    document.RemoveObject(2);
    ASSERT_EQ(document.GetEffects().size(), 1U);
    EXPECT_EQ(document.GetEffects()[0].index, 2);
    for (int32_t frame = 0; frame < 50; ++frame)
        EXPECT_EQ(Frame(100).size(), 2U);
    document.Clear();
    EXPECT_TRUE(document.GetEffects().empty());
}

} // namespace
