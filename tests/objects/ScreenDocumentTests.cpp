#include "objects/AnimationObject.h"
#include "objects/CanvasDrawing.h"
#include "objects/ScreenDocument.h"
#include "tests/objects/ObjectTest.h"

namespace {

// Where an object is drawn: pos, src and view.
std::string PlaceOf(const ScreenObject& object)
{
    return " [" + Told(object.GetPos()) + Told(object.GetSrc()) + Told(object.GetView()) + " ]";
}

// Has no picture, is hit in its whole rectangle, and notes where it was drawn or got a message.
class Fake : public PictureObject {
public:
    Fake(vec place, vec extent, std::string& log)
        : noted(log)
    {
        pos = place;
        size = view = extent;
    }
    bool Draw(uint16_t*, int32_t) override { return noted += PlaceOf(*this), true; }
    bool HitTest(vec point, vec) override { return CoversPoint(pos, view, point); }
    bool HandleMessage(ObjectMessage, uint32_t, uint32_t) override { return noted += PlaceOf(*this), true; }

private:
    std::string& noted;
};

EffectKind EffectNamed(const std::string& name)
{
    const std::map<std::string, EffectKind> kinds { { "from-left", EffectFromLeft }, { "from-right", EffectFromRight },
        { "from-top", EffectFromTop }, { "from-bottom", EffectFromBottom }, { "fade-out", EffectFadeOut } };
    return kinds.contains(name) ? kinds.at(name) : EffectNone;
}

class ScreenDocumentTest : public ObjectTest {
protected:
    // In the case files "[ pos src view ]" is an object that was drawn or told.
    ScreenDocumentTest()
    {
        On("add", [this](vec pos, const std::string& effect) { Add(pos, EffectNamed(effect)); });
        On("inside", [this](int32_t index) { At(index).SetBoundaryCheck(true); });
        On("remove", [this](int32_t index) { return document.RemoveObject(index); });
        On("clear", [this] { document.Clear(); });
        On("up", [this](int32_t index) { return document.MoveLayer(index, false); });
        On("down", [this](int32_t index) { return document.MoveLayer(index, true); });
        On("top", [this](int32_t index) { return document.MoveToEnd(index, false), Layers(); });
        On("bottom", [this](int32_t index) { return document.MoveToEnd(index, true), Layers(); });
        On("layer", [this](int32_t index, int32_t layer) { At(index).SetLayer(layer); });
        On("on-layer", [this](int32_t layer) { return Found(&ScreenDocument::IndexOfLayer, layer); });
        On("find", [this](vec point) { return Found(&ScreenDocument::FindObjectAt, point); });
        On("in-rect", [this](vec a, vec b) { return document.IsObjectInRect(0, a, b); });
        On("tell", [this] { return document.Dispatch(MsgMouseMove, 0, 0); });
        On("mark", [this](int32_t index) { At(index).SetEffectRunning(true); });
        On("start", [this](int32_t index) { document.StartEffect(index); });
        On("running", [this] { return Running(); });
        On("finish", [this] { document.FinishEffects(); });
        On("frame", [this](uint32_t afterMs) { desktop.Advance(afterMs), document.Render(); });
        On("crop", [this](vec pos, vec src, vec size) { return Fitted(false, pos, src, size); });
        On("push", [this](vec pos, vec src, vec size) { return Fitted(true, pos, src, size); });
        On("slide", [this](const std::string& effect, vec pos, vec src) { return Way(EffectNamed(effect), pos, src); });
    }
    ScreenObject& Add(vec pos, EffectKind effect = EffectNone, vec size = { 50, 40 })
    {
        document.AddPicture(std::make_unique<Fake>(pos, size, noted));
        document.GetObjects().back()->SetEffect(effect);
        return *document.GetObjects().back();
    }
    ScreenObject& At(int32_t index) { return *document.GetObjects().at(static_cast<size_t>(index)); }
    template <class Where> int32_t Found(bool (ScreenDocument::*find)(Where, int32_t&) const, Where where)
    {
        int32_t index = 7;
        const bool found = (document.*find)(where, index);
        EXPECT_EQ(found, index >= 0);
        return index;
    }
    std::string Layers()
    {
        std::string layers;
        for (const auto& object : document.GetObjects())
            layers += Told(object->GetLayer());
        return layers;
    }
    std::string Running()
    {
        std::string running;
        for (int32_t i = 0; i < document.GetObjectCount(); ++i)
            for (const EffectRecord& record : document.GetEffects())
                running += record.index == i ? Told(i) : "";
        return running;
    }
    std::string Fitted(bool keepInside, vec pos, vec src, vec size)
    {
        ScreenObject& object = Add(pos, EffectNone, size);
        object.SetSrc(src);
        document.ClipObject(object, keepInside);
        return PlaceOf(object);
    }
    // Start, end, step and number of steps.
    std::string Way(EffectKind effect, vec pos, vec src)
    {
        Add(pos, effect).SetSrc(src);
        document.StartEffect(document.GetObjectCount() - 1);
        const EffectRecord& record = document.GetEffects().back();
        return Told(record.start) + Told(record.end) + Told(record.delta) + Told(record.steps);
    }

    ScreenDocument document;
};

TEST_F(ScreenDocumentTest, KeepsTheLayersWithoutGapsWhenObjectsMoveOrGo)
{
    Play("layers");
}

TEST_F(ScreenDocumentTest, GoesToAnEndPastWhatIsThereButNotPastMissingLayers)
{
    Play("ends");
}

TEST_F(ScreenDocumentTest, FindsTheTopmostObjectUpToALayerWithoutOne)
{
    Play("finding");
}

TEST_F(ScreenDocumentTest, CountsWhatHasACornerWithItsCentreStrictlyInsideARectangle)
{
    Play("selecting");
}

TEST_F(ScreenDocumentTest, RendersObjectsFittedByTheirRulesFromLayerToLayer)
{
    Add({ -5, 1 });
    Add({ -5, 2 }).SetBoundaryCheck(true);
    document.MoveLayer(0, false);
    WriteStrip("strip.bmp", { 400, 50 }, 8);
    document.AddAnimation(std::make_unique<AnimationObject>());
    auto& animation = dynamic_cast<AnimationObject&>(At(2));
    ASSERT_TRUE(Load(animation, "strip.bmp"));
    animation.SetPos({ 790, -20 });
    animation.SetBoundaryCheck(true); // of no effect on an animation
    animation.SetInterval(0);
    animation.Play();
    document.AddBackground(std::make_unique<Fake>(vec(-10, 590), vec(900, 700), noted));

    const std::string background = " [ 0,590 10,0 800,10 ]"; // cut, not pushed back
    const std::string fitted[] = { " [ 0,1 5,0 45,40 ]", " [ 0,2 0,0 50,40 ]", " [ 750,0 0,0 50,50 ]" };
    document.FitAll();
    for (const int32_t i : { 0, 1, 2 })
        EXPECT_EQ(PlaceOf(At(i)), fitted[i]);
    EXPECT_EQ(noted, ""); // nothing but fitted
    EXPECT_EQ(animation.GetFrame(), 0);
    At(0).SetPos({ -5, 1 });
    document.Render();
    EXPECT_EQ(noted, background + fitted[1] + fitted[0]);
    EXPECT_EQ(PlaceOf(animation), fitted[2]);

    At(0).SetLayer(9); // leaves layer 1 without object: drawing goes on, the search ends there
    noted.clear();
    document.Render();
    EXPECT_EQ(noted, background + fitted[1]);
    EXPECT_EQ(desktop.DebugMessages().at(0).bytes, " Layer 1 is no object\n");
    document.Clear();
    EXPECT_EQ(std::count(document.GetCanvas(), document.GetCanvas() + canvas.size(), 0), std::ssize(canvas));
}

TEST_F(ScreenDocumentTest, CutsAtTheEdgesOrPushesBackInside)
{
    Play("fitting");
}

TEST_F(ScreenDocumentTest, SlidesObjectsInFromEachSide)
{
    Play("slides");
}

TEST_F(ScreenDocumentTest, ShowsOneStepOfAnEffectPerDueFrameUntilTheObjectIsBack)
{
    desktop.SetClock(0xFFFFFFF0); // the counter wraps around on the way
    Play("effect");
    EXPECT_FALSE(At(0).GetEffectRunning());
}

TEST_F(ScreenDocumentTest, RunsEachEffectOnItsOwnObjectAlone)
{
    Play("effects");
}

TEST_F(ScreenDocumentTest, PutsWhatIsHalfWayBackToItsPlaceWhenEffectsAreFinished)
{
    Play("finishing");
}

} // namespace
