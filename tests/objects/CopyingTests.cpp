#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/PictureObject.h"
#include "objects/SelectboxObject.h"
#include "objects/WordObject.h"
#include "tests/objects/ObjectTest.h"

namespace {

template <class Object> bool MakeReady(Object& object)
{
    if constexpr (requires { object.SetLabelText("label"); })
        object.SetLabelText("label");
    if constexpr (requires { object.Build(); })
        return object.Build();
    else if constexpr (requires { object.SetText("text"); })
        return object.SetText("text");
    else
        return object.SetFileName("upbutton.bmp"), object.Load();
}

template <class Object> class Copying : public ObjectTest {
};
using Kinds = testing::Types<PictureObject, ButtonObject, AnimationObject, WordObject, CheckBoxObject, SelectboxObject>;
TYPED_TEST_SUITE(Copying, Kinds);

// The original is gone before its copies, one of them over an object that was ready, are drawn.
TYPED_TEST(Copying, KeepsTheFieldsAndSharesNothingThatWasLoaded)
{
    for (const char* file : { "ro_chkbox.bmp", "EditBox.bmp", "upbutton.bmp", "downbutton.bmp" })
        this->WriteStrip(file, { 20, 80 }, 4, true);
    TypeParam original;
    ASSERT_TRUE(MakeReady(original));
    original.SetAlpha(200);
    original.SetPos({ 30, 40 });
    this->Draw(original);
    const auto look = this->canvas;
    TypeParam assigned;
    ASSERT_TRUE(MakeReady(assigned));
    assigned = original;
    TypeParam copied(original);
    original.Reset();
    for (TypeParam* copy : { &assigned, &copied }) {
        this->Draw(*copy);
        EXPECT_TRUE(this->Drawn().empty());
        EXPECT_TRUE(MakeReady(*copy));
        this->Draw(*copy);
        EXPECT_EQ(this->canvas, look);
    }
}

TEST(CopyingAChoice, RendersAWordOfItsOwnWithItsOwnFont)
{
    SelectboxObject box;
    box.AddString("choice");
    const SelectboxObject copy(box);
    EXPECT_EQ(copy.GetString(0), "choice");
    const WordObject& word = *copy.GetChoices()[0].word;
    EXPECT_TRUE(word.GetPicture() && word.GetPicture() != box.GetChoices()[0].word->GetPicture());
    EXPECT_TRUE(word.GetFont() && word.GetFont() != box.GetChoices()[0].word->GetFont());
}

} // namespace
