#include "objects/AnimationObject.h"
#include "objects/ScreenDocument.h"
#include "tests/objects/ObjectTest.h"

class AnimationObjectTest : public KindTest<AnimationObject> {
protected:
    AnimationObjectTest()
    {
        On("sections", [this](int32_t count) { object.SetSections(count); });
        On("interval", [this](const std::string& ms) { object.SetInterval(std::stof(ms)); });
        On("clock", [this](uint32_t now) { desktop.SetClock(now); });
        On("play", [this] { return object.Play(), State(); });
        On("pause", [this] { return object.Pause(), State(); });
        On("tick", [this] { return " " + std::to_string(object.GetTick()); });
        On("step-unseen", [this] { return object.Draw(nullptr, 2 * ScreenWidth); });
        On("fit", [this] { document.ClipObject(object, false); });
    }
    std::string State() override
    {
        return (object.IsPlaying() ? " playing" : " still") + Told(object.GetFrame()) + " alpha"
            + Told(static_cast<int32_t>(object.GetAlpha()));
    }

    const ScreenDocument document;
};

TEST_F(AnimationObjectTest, PlaysFrameByFrameThroughAPauseBackToTheFirst)
{
    Play("animation-play");
}

TEST_F(AnimationObjectTest, TakesAnyNumberAsTimePerFrame)
{
    Play("animation-intervals");
}

TEST_F(AnimationObjectTest, IsHitWhereItsWholeFrameIsDrawn)
{
    Play("animation-places");
}
