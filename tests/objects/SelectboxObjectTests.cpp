#include "objects/SelectboxObject.h"
#include "tests/objects/ObjectTest.h"

class SelectboxObjectTest : public KindTest<SelectboxObject> {
protected:
    SelectboxObjectTest()
    {
        WriteStrip("EditBox.bmp", { 120, 20 }, 1);
        WriteStrip("upbutton.bmp", { 40, 8 }, 4);
        WriteStrip("downbutton.bmp", { 32, 6 }, 4);
        EXPECT_TRUE(object.Build());
        On("build", [this] { return object.Build(); });
        On("add", [this](const std::string& text) { return object.AddString(text == "none" ? "" : text); });
        On("add-long", [this](size_t length) { return object.AddString(std::string(length, 'm')); });
        On("remove", [this](int32_t index) { object.RemoveString(index); });
        On("up-file", [this](const std::string& name) { object.SetUpFile(name); });
        On("edit-file", [this](const std::string& name) { object.SetEditFile(name); });
        On("clock", [this](uint32_t now) { desktop.SetClock(now); });
        On("after", [this](uint32_t ms) { return Draw(object, ms), State(); });
        On("letters", [this] { return Count(blue) > 0; });
        On("pressed-pixels", [this] { return static_cast<int32_t>(Count(SectionColor(2))); });
    }
    // The choice, and the looks of the two buttons.
    std::string State() override
    {
        return Told(object.GetCurrent()) + " looks" + Told(object.GetUpButton()->GetSection())
            + Told(object.GetDownButton()->GetSection());
    }
};

TEST_F(SelectboxObjectTest, StepsByAPressOnItsButtonsWhichFollowTheMouse)
{
    Play("selectbox-presses");
    EXPECT_EQ(object.GetScroll(), 0);
}

TEST_F(SelectboxObjectTest, GoesRoundUnlessAButtonIsHeld)
{
    Play("selectbox-rounds");
}

TEST_F(SelectboxObjectTest, SkipsWhateverIsMissing)
{
    Play("selectbox-missing");
}

TEST_F(SelectboxObjectTest, IsCopiedWithoutWhatWasBuiltButWithWordsOfItsOwn)
{
    SelectboxObject original;
    original.AddString("choice");
    original.SetPos({ 30, 40 });
    EXPECT_TRUE(original.Build());
    EXPECT_TRUE(original.HitTest({ 150, 60 }, {}));
    EXPECT_FALSE(original.HitTest({ 151, 60 }, {}));
    Draw(original);
    EXPECT_GT(Count(blue), 20);
    const auto look = canvas;
    object = original; // which was built
    SelectboxObject copied(original);
    original.Reset();
    for (SelectboxObject* copy : { &object, &copied }) {
        EXPECT_FALSE(copy->HitTest({ 30, 40 }, {}));
        EXPECT_TRUE(copy->Build());
        Draw(*copy);
        EXPECT_EQ(copy->GetChoices()[0].word->GetPos(), vec(35, 45));
        EXPECT_EQ(canvas, look);
    }
}

TEST_F(SelectboxObjectTest, ShowsTheTextThatStandsAtTheCurrentPlaceWhateverWasRemoved)
{
    for (const char* text : { "i", "mmmm", "", "mm" })
        object.AddString(text);
    Draw(object);
    EXPECT_EQ(object.GetChoices()[0].word->GetText(), "i");
    EXPECT_EQ(object.GetChoices()[1].word, nullptr);
    object.HandleMessage(MsgLeftDown, 0, Pointer(116, 15));
    object.HandleMessage(MsgLeftUp, 0, Pointer(116, 15));
    Draw(object);
    const ptrdiff_t wide = Count(blue);
    object.RemoveString(1);
    object.RemoveString(0);
    EXPECT_EQ(object.GetString(0), "");
    EXPECT_EQ(object.GetString(1), "mm");
    Draw(object);
    EXPECT_EQ(Count(blue), wide / 2);
    EXPECT_EQ(object.GetCurrent(), 1);
}
