#include "objects/AnimationObject.h"
#include "objects/CanvasDrawing.h"
#include "objects/ScreenDocument.h"
#include "tests/objects/ObjectTest.h"

#include <tuple>

namespace {

using Place = std::tuple<vec, vec, vec>; // pos, src, view
using Places = std::vector<Place>;

// Has no picture, is hit in its whole rectangle, and notes where it was drawn or got a message.
class Fake : public PictureObject {
public:
    Fake(vec place, vec extent, Places& noted)
        : drawings(noted)
    {
        pos = place;
        size = view = extent;
    }
    static Place PlaceOf(const ScreenObject& object) { return { object.GetPos(), object.GetSrc(), object.GetView() }; }
    bool Draw(uint16_t*, int32_t) override { return drawings.push_back(PlaceOf(*this)), true; }
    bool HitTest(vec point, vec) override { return CoversPoint(pos, view, point); }
    bool HandleMessage(ObjectMessage, uint32_t, uint32_t) override { return drawings.push_back(PlaceOf(*this)), true; }

private:
    Places& drawings;
};

class ScreenDocumentTest : public ObjectTest {
protected:
    ScreenObject& Add(vec pos, EffectKind effect = EffectNone, vec size = { 50, 40 })
    {
        document.AddPicture(std::make_unique<Fake>(pos, size, drawings));
        document.GetObjects().back()->SetEffect(effect);
        return *document.GetObjects().back();
    }
    // One frame after a pause; what it drew.
    Places Frame(uint32_t milliseconds = 0)
    {
        drawings.clear();
        desktop.Advance(milliseconds);
        document.Render();
        return drawings;
    }

    Places drawings;
    ScreenDocument document;
};

TEST_F(ScreenDocumentTest, KeepsTheLayersWithoutGapsWhenObjectsMoveOrGo)
{
    for (int32_t i = 0; i < 4; ++i)
        Add({ i, 0 });
    for (const auto& [index, down, moved] : { std::tuple(0, false, true), { 3, true, true }, // layers 1, 0, 3, 2
             { 1, true, false }, { 2, false, false }, { 4, true, false } })
        EXPECT_EQ(document.MoveLayer(index, down), moved) << index;
    for (const auto& [index, removed] : { std::pair(4, false), { -1, false }, { 0, true } })
        EXPECT_EQ(document.RemoveObject(index), removed) << index;
    EXPECT_EQ(document.GetLayerCount(), 3);
    for (const auto& [layer, was] : { std::pair(0, 1), { 1, 3 }, { 2, 2 } }) {
        int32_t index = -1;
        ASSERT_TRUE(document.IndexOfLayer(layer, index));
        EXPECT_EQ(document.GetObjects().at(static_cast<size_t>(index))->GetPos(), vec(was, 0));
    }
}

TEST_F(ScreenDocumentTest, GoesToAnEndAsByStepsAlsoOverMissingAndSharedLayers)
{
    const std::vector<int32_t> cases[]
        = { { 3, 1, 4, 0, 2 }, { 0, 0, 1, 2, 3 }, { 0, 1, 9, 3, 4 }, { 7, 5, 6, 4, -1 } };
    for (int32_t move = 0; move < 12; ++move)
        for (const std::vector<int32_t>& layers : cases) {
            std::vector<int32_t> ends[2];
            for (const bool byStep : { false, true }) {
                document.Clear();
                for (const int32_t layer : layers)
                    Add({ 0, 0 }).SetLayer(layer);
                while (byStep && document.MoveLayer(move / 2, move % 2 == 0)) { }
                if (!byStep)
                    document.MoveToEnd(move / 2, move % 2 == 0);
                for (const auto& object : document.GetObjects())
                    ends[byStep].push_back(object->GetLayer());
            }
            EXPECT_EQ(ends[0], ends[1]) << move;
        }
}

TEST_F(ScreenDocumentTest, FindsTheTopmostObjectUpToALayerWithoutOne)
{
    Add({ 0, 0 });
    Add({ 40, 30 });
    int32_t index = 7;
    Add({ 750, 560 });
    const std::pair<vec, int32_t> cases[]
        = { { { 50, 40 }, 1 }, { { 39, 40 }, 0 }, { { 91, 40 }, -1 }, { { 800, 600 }, 2 }, { { 801, 600 }, -1 } };
    for (const auto& [point, found] : cases) {
        EXPECT_EQ(document.FindObjectAt(point, index), found >= 0) << point;
        EXPECT_EQ(index, found) << point;
    }
    document.Dispatch(MsgMouseMove, 0, 0); // to all in list order, whatever they answer
    EXPECT_EQ(drawings.size(), 3U);
    EXPECT_EQ(std::get<0>(drawings.back()), vec(750, 560));
    const auto& objects = document.GetObjects();
    objects[0]->SetLayer(1); // a tie: the first in the list
    EXPECT_FALSE(document.FindObjectAt({ 91, 40 }, index));
    EXPECT_TRUE(document.FindObjectAt({ 45, 35 }, index));
    EXPECT_EQ(index, 0);
    objects[1]->SetLayer(0);
    objects[0]->SetLayer(7); // a gap ends the search
    EXPECT_FALSE(document.FindObjectAt({ 60, 50 }, index));
    EXPECT_EQ(index, -1);
}

TEST_F(ScreenDocumentTest, CountsWhatHasACornerWithItsCentreStrictlyInsideARectangle)
{
    Add({ 40, 30 });
    for (const vec a : { vec(39, 29), vec(64, 29), vec(64, 49), vec(39, 49) })
        EXPECT_TRUE(document.IsObjectInRect(0, a, a + vec(27, 22))) << a;
    for (const auto& [a, b] : { std::pair(vec(64, 50), vec(91, 71)), { { 39, 29 }, { 65, 71 } } })
        EXPECT_FALSE(document.IsObjectInRect(0, a, b)); // the centre is on the edge
    EXPECT_FALSE(document.IsObjectInRect(0, { 41, 31 }, { 89, 69 })); // no corner
}

TEST_F(ScreenDocumentTest, RendersObjectsFittedByTheirRulesFromLayerToLayer)
{
    Add({ -5, 1 });
    Add({ -5, 2 }).SetBoundaryCheck(true);
    document.MoveLayer(0, false);
    WriteStrip("strip.bmp", { 400, 50 }, 8);
    document.AddAnimation(std::make_unique<AnimationObject>());
    auto& animation = dynamic_cast<AnimationObject&>(*document.GetObjects()[2]);
    ASSERT_TRUE(Load(animation, "strip.bmp"));
    animation.SetPos({ 790, -20 });
    animation.SetBoundaryCheck(true); // of no effect on an animation
    animation.SetInterval(0);
    animation.Play();
    document.AddBackground(std::make_unique<Fake>(vec(-10, 590), vec(900, 700), drawings));

    const Place background { { 0, 590 }, { 10, 0 }, { 800, 10 } }; // cut, not pushed back
    const Places fitted { { { 0, 1 }, { 5, 0 }, { 45, 40 } }, { { 0, 2 }, { 0, 0 }, { 50, 40 } },
        { { 750, 0 }, { 0, 0 }, { 50, 50 } } };
    const auto& objects = document.GetObjects();
    document.FitAll();
    for (size_t i = 0; i < 3; ++i)
        EXPECT_EQ(Fake::PlaceOf(*objects[i]), fitted[i]) << i;
    EXPECT_EQ(drawings, Places()); // nothing but fitted
    EXPECT_EQ(animation.GetFrame(), 0);
    objects[0]->SetPos({ -5, 1 });
    EXPECT_EQ(Frame(), (Places { background, fitted[1], fitted[0] }));
    EXPECT_EQ(Fake::PlaceOf(animation), fitted[2]);

    objects[0]->SetLayer(9); // leaves layer 1 without object: drawing goes on, the search ends there
    EXPECT_EQ(Frame(), (Places { background, fitted[1] }));
    EXPECT_EQ(desktop.DebugMessages().at(0).bytes, " Layer 1 is no object\n");
    document.Clear();
    EXPECT_EQ(std::count(document.GetCanvas(), document.GetCanvas() + canvas.size(), 0), std::ssize(canvas));
}

TEST_F(ScreenDocumentTest, CutsAtTheEdgesOrPushesBackInside)
{
    const std::tuple<bool, vec, vec, vec, Place> cases[] = {
        { false, { -30, 10 }, { 0, 0 }, { 40, 30 }, { { 0, 10 }, { 30, 0 }, { 10, 30 } } },
        { false, { 0, 10 }, { 30, 0 }, { 40, 30 }, { { 0, 10 }, { 30, 0 }, { 10, 30 } } }, // cropped again
        { false, { 0, -8 }, { 30, 0 }, { 40, 30 }, { { 0, 0 }, { 0, 8 }, { 40, 22 } } }, // both offsets are replaced
        { false, { -8, 0 }, { 0, 20 }, { 40, 30 }, { { 0, 0 }, { 8, 0 }, { 32, 30 } } },
        { false, { 900, 590 }, { 7, 7 }, { 40, 30 }, { { 800, 590 }, { 0, 0 }, { 0, 10 } } },
        { false, { INT32_MIN, INT32_MAX }, { 0, 0 }, { 40, 30 }, { { 0, 600 }, { INT32_MAX, 0 }, { 0, 0 } } },
        { true, { 790, 10 }, { 3, 4 }, { 40, 30 }, { { 760, 10 }, { 0, 0 }, { 40, 30 } } },
        { true, { -9, 900 }, { 0, 0 }, { 40, 30 }, { { 0, 570 }, { 0, 0 }, { 40, 30 } } },
        { true, { INT32_MAX, INT32_MIN }, { 0, 0 }, { 1000, 65535 }, { { 0, 0 }, { 0, 0 }, { 800, 600 } } },
    };
    for (const auto& [keepInside, pos, src, size, fitted] : cases) {
        ScreenObject& object = Add(pos, EffectNone, size);
        object.SetSrc(src);
        document.ClipObject(object, keepInside);
        EXPECT_EQ(Fake::PlaceOf(object), fitted) << keepInside << " at " << pos;
    }
}

TEST_F(ScreenDocumentTest, SlidesObjectsInFromEachSide)
{
    const std::tuple<EffectKind, vec, vec, vec, vec, int32_t> slides[] = {
        { EffectFromTop, { 100, 200 }, { 3, 14 }, { 97, -54 }, { 0, 10 }, 24 },
        { EffectFromBottom, { 0, 205 }, { 30, 0 }, { -30, 600 }, { 0, -10 }, 39 },
        { EffectFromLeft, { 0, 0 }, { 30, 7 }, { -80, -7 }, { 10, 0 }, 5 },
        { EffectFromRight, { 805, 9 }, { 0, 7 }, { 800, 9 }, { -10, 0 }, 0 },
        { EffectFromLeft, { -2147483647, 1 }, { 9, 0 }, { -59, 1 }, { 10, 0 }, 214748359 },
    };
    for (const auto& [effect, pos, src, start, delta, steps] : slides) {
        Add(pos, effect).SetSrc(src);
        document.StartEffect(document.GetObjectCount() - 1);
        const EffectRecord& record = document.GetEffects().back();
        EXPECT_EQ(record.start, start) << effect;
        EXPECT_EQ(record.delta, delta) << effect;
        EXPECT_EQ(record.end, pos - src) << effect;
        EXPECT_EQ(record.steps, steps) << effect;
    }
}

TEST_F(ScreenDocumentTest, ShowsOneStepOfAnEffectPerDueFrameUntilTheObjectIsBack)
{
    desktop.SetClock(0xFFFFFFF0); // the counter wraps around on the way
    ScreenObject& object = Add({ 770, 203 }, EffectFromTop);
    object.SetBoundaryCheck(true); // holds before and after, not on the way
    document.StartEffect(0);
    EXPECT_EQ(document.GetEffects()[0].lastTick, 0xFFFFFFF0);
    document.StartEffect(0);
    EXPECT_TRUE(Frame(19).empty());
    EXPECT_EQ(Frame(1), (Places { { { 770, 0 }, { 0, 40 }, { 30, 0 } } }));
    EXPECT_EQ(document.GetEffects()[0].lastTick, 4U);
    EXPECT_TRUE(Frame(5).empty());
    for (int32_t step = 1; step <= 24; ++step) {
        EXPECT_EQ(Frame(100).size(), 1U);
        EXPECT_EQ((object.GetPos() - object.GetSrc()).y, step == 4 ? -10 : 10 * step - 40); // at 0 the cut stays
    }
    EXPECT_EQ(document.GetEffects()[0].lastTick, 2409U);
    EXPECT_EQ(Frame(100), (Places { { { 750, 203 }, { 0, 0 }, { 50, 40 } } }));
    EXPECT_FALSE(object.GetEffectRunning());
    EXPECT_EQ(document.GetEffects().size(), 0U);
}

TEST_F(ScreenDocumentTest, RunsEachEffectOnItsOwnObjectAlone)
{
    Add({ 1, 2 });
    Add({ 1, 2 }, EffectFromTop).SetEffectRunning(true); // without a record: repaired
    Add({ 1, 2 }, EffectFromLeft);
    Add({ 1, 2 }, EffectFadeOut);
    for (int32_t index = -1; index <= 4; ++index)
        document.StartEffect(index);
    EXPECT_EQ(document.GetEffects().size(), 2U);
    for (const size_t drawn : { 2U, 3U, 3U })
        EXPECT_EQ(Frame(100).size(), drawn);
    document.RemoveObject(2);
    EXPECT_EQ(Frame(100).size(), 2U);
    ASSERT_EQ(document.GetEffects().size(), 1U);
    EXPECT_EQ(document.GetEffects()[0].index, 2);
    document.Clear();
    EXPECT_EQ(document.GetEffects().size(), 0U);
    EXPECT_EQ(Add({ 1, 2 }).GetLayer(), 0);
}

TEST_F(ScreenDocumentTest, KeepsEffectsApartThatStartAndEndAtDifferentTimes)
{
    for (int32_t index = 0; index < 3; ++index) {
        Add({ 100 * index, 10 }, EffectFromLeft);
        document.StartEffect(index);
    }
    for (int32_t frame = 0; frame < 30; ++frame) {
        Frame(100);
        if (frame == 7)
            document.StartEffect(0); // again, after its end
        for (int32_t i = 0; i < 3; ++i)
            EXPECT_EQ(
                document.GetObjects().at(static_cast<size_t>(i))->GetPos().x, std::clamp(10 * frame - 50, 0, 100 * i))
                << frame;
    }
    EXPECT_EQ(document.GetEffects().size(), 0U);
    for (const bool clear : { false, true }) {
        document.StartEffect(0);
        EXPECT_EQ(document.GetEffects().size(), 1U);
        clear ? document.Clear() : document.FinishEffects();
        Add({ 0, 0 }, EffectFromLeft);
    }
    document.StartEffect(0);
    EXPECT_EQ(document.GetEffects().size(), 1U);
}

TEST_F(ScreenDocumentTest, PutsWhatIsHalfWayBackToItsPlaceWhenEffectsAreFinished)
{
    Add({ 300, 100 }, EffectFromRight);
    Add({ 0, 100 }, EffectFromLeft); // is cut at the left on its way
    Add({ -20, 100 }, EffectFadeOut);
    Add({ 790, 100 }, EffectFromTop).SetBoundaryCheck(true);
    for (int32_t index = 0; index < 4; ++index)
        document.StartEffect(index);
    EXPECT_EQ(Frame(100).size(), 3U);
    document.FinishEffects();
    EXPECT_EQ(drawings.size(), 3U); // nothing was drawn
    EXPECT_EQ(document.GetEffects().size(), 0U);
    EXPECT_EQ(Frame(),
        (Places { { { 300, 100 }, { 0, 0 }, { 50, 40 } }, { { 0, 100 }, { 0, 0 }, { 50, 40 } },
            { { 0, 100 }, { 20, 0 }, { 30, 40 } }, { { 750, 100 }, { 0, 0 }, { 50, 40 } } }));
}

} // namespace
