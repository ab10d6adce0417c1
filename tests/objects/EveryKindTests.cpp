#include "objects/AnimationObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/ScreenDocument.h"
#include "objects/SelectboxObject.h"
#include "tests/objects/ObjectTest.h"

class EveryKind : public ObjectTest {
protected:
    // One of each in the document, loaded or built.
    EveryKind()
    {
        for (const char* name : { "strip.bmp", "ro_chkbox.bmp", "EditBox.bmp", "upbutton.bmp", "downbutton.bmp" })
            WriteStrip(name, { 16, 64 }, 4);
        document.AddPicture(std::make_unique<PictureObject>());
        document.AddButton(std::make_unique<ButtonObject>());
        document.AddAnimation(std::make_unique<AnimationObject>());
        for (size_t i = 0; i < 3; ++i)
            Load(dynamic_cast<PictureObject&>(At(i)), "strip.bmp");
        dynamic_cast<ButtonObject&>(At(1)).SetSections(3);
        dynamic_cast<AnimationObject&>(At(2)).Play();
        document.AddWord(std::make_unique<WordObject>());
        dynamic_cast<WordObject&>(At(3)).SetColor(99, 0, 0);
        EXPECT_TRUE(dynamic_cast<WordObject&>(At(3)).SetText("word"));
        document.AddCheckBox(std::make_unique<CheckBoxObject>());
        dynamic_cast<CheckBoxObject&>(At(4)).SetLabelText("label");
        EXPECT_TRUE(dynamic_cast<CheckBoxObject&>(At(4)).Build());
        document.AddSelectbox(std::make_unique<SelectboxObject>());
        dynamic_cast<SelectboxObject&>(At(5)).AddString("choice");
        EXPECT_TRUE(dynamic_cast<SelectboxObject&>(At(5)).Build());
    }
    ScreenObject& At(size_t index) { return *document.GetObjects()[index]; }

    ScreenDocument document;
};

TEST_F(EveryKind, BehavesAsItsKindDoesUntilAResetMakesItNew)
{
    const struct {
        ObjectKind kind;
        bool boundaryCheck, pixelHit, pressed;
    } kinds[] = { { KindPicture, false, true, false }, { KindButton, true, true, true },
        { KindAnimation, false, true, false }, { KindWord, false, false, false }, { KindCheckBox, true, false, false },
        { KindSelectbox, true, false, true } };
    for (size_t i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(At(i).GetKind(), kinds[i].kind);
        EXPECT_EQ(At(i).GetLayer(), static_cast<int32_t>(i));
        EXPECT_EQ(At(i).GetBoundaryCheck(), kinds[i].boundaryCheck);
        EXPECT_TRUE(Draw(At(i)));
        EXPECT_GT(Drawn(), 20);
        EXPECT_FALSE(At(i).Draw(nullptr, 2 * ScreenWidth));
        EXPECT_FALSE(At(i).Draw(canvas.data(), 0));
        EXPECT_EQ(At(i).PixelHit({ 3, 3 }), kinds[i].pixelHit);
        EXPECT_EQ(At(i).HandleMessage(MsgLeftDown, 0, Pointer(1, 10)), kinds[i].pressed);
        EXPECT_FALSE(At(i).HandleMessage(MsgRightDown, 0, Pointer(1, 10)));
        At(i).SetPos(vec(-3)); // not yet fitted
        EXPECT_TRUE(At(i).HitTest({ 0, 0 }, {}));
        EXPECT_FALSE(At(i).HitTest({ 0, -1 }, {}));
        EXPECT_FALSE(At(i).HitTest({ -1, 0 }, {}));
        At(i).SetBoundaryCheck(!kinds[i].boundaryCheck);
        At(i).SetAlpha(7);
        At(i).Reset();
        EXPECT_EQ(At(i).GetBoundaryCheck(), kinds[i].boundaryCheck);
        EXPECT_EQ(At(i).GetAlpha(), 255U);
        EXPECT_EQ(At(i).GetSize(), vec(0));
        EXPECT_FALSE(At(i).HitTest({ 0, 0 }, {}));
    }
    EXPECT_EQ(dynamic_cast<ButtonObject&>(At(1)).GetSections(), 4);
    EXPECT_EQ(dynamic_cast<ButtonObject&>(At(1)).GetSection(), 0);
    EXPECT_EQ(dynamic_cast<AnimationObject&>(At(2)).GetTick(), AnimationObject::neverStarted);
    EXPECT_EQ(dynamic_cast<WordObject&>(At(3)).GetTextColor(), blue);
    EXPECT_EQ(dynamic_cast<CheckBoxObject&>(At(4)).GetState(), 0);
    EXPECT_EQ(dynamic_cast<CheckBoxObject&>(At(4)).GetBoxSize(), vec(16, 16)); // outlives it
    EXPECT_EQ(dynamic_cast<SelectboxObject&>(At(5)).GetCurrent(), 0);
    EXPECT_EQ(dynamic_cast<SelectboxObject&>(At(5)).GetEditSize(), vec(16, 64));
}
