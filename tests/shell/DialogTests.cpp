#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/SelectboxObject.h"
#include "objects/WordObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "shell/FramePresentation.h"
#include "tests/shell/EditorTest.h"

namespace {

using platform::DialogDriver;
using Texts = std::vector<std::string>;

class Dialogs : public EditorTest {
protected:
    // Chooses the menu item for the object at (20, 10) and works its dialog.
    void Edit(uint16_t item, std::function<void(DialogDriver&)> hands)
    {
        PresentFrame();
        desktop.AnswerMenu(item);
        desktop.OnDialog(std::move(hands));
        desktop.RightPress(20, 10);
        Play();
    }

    template <class Kind> Kind& AddStrip(void (ScreenDocument::*add)(std::unique_ptr<Kind>))
    {
        WritePicture("strip.bmp", 320, 40);
        auto strip = std::make_unique<Kind>();
        strip->SetFileName("Image\\strip.bmp");
        EXPECT_TRUE(strip->Load());
        Kind& added = *strip;
        (shell.document.*add)(std::move(strip));
        return added;
    }
};

TEST_F(Dialogs, PictureShowsAndTakesItsProperties)
{
    PictureObject& picture = AddPicture({ 10, 5 }, { 40, 30 });
    picture.SetMode(ModeMoving);
    Edit(MenuObjectProperties, [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Title(), "影像的資訊 and 設定");
        EXPECT_EQ(dialog.Items(PictureModeList), (Texts { "移動物件", "靜態影像" }));
        EXPECT_EQ(dialog.Selection(PictureModeList), 0);
        EXPECT_EQ(dialog.Items(PictureEffectList),
            (Texts { "沒有特效", "由上面出現", "由下面出現", "由左邊出現", "由右邊出現", "淡出" }));
        EXPECT_EQ(dialog.Text(PictureWidthField) + "x" + dialog.Text(PictureHeightField), "40x30");
        EXPECT_EQ(dialog.Text(PictureAlphaField), "255");
        EXPECT_FALSE(dialog.IsChecked(PictureBoundaryCheck));
        dialog.Select(PictureModeList, 1);
        dialog.Select(PictureEffectList, 3);
        dialog.SetText(PictureAlphaField, "128");
        dialog.Check(PictureBoundaryCheck, true);
        dialog.Key(VK_ESCAPE);
        dialog.Key(VK_RETURN);
        EXPECT_TRUE(dialog.IsOpen());
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(picture.GetMode(), ModeStatic);
    EXPECT_EQ(picture.GetEffect(), EffectFromLeft);
    EXPECT_EQ(picture.GetAlpha(), 128U);
    EXPECT_TRUE(picture.GetBoundaryCheck());
}

TEST_F(Dialogs, PictureRefusesAnAlphaButKeepsModeAndEffect)
{
    PictureObject& picture = AddPicture({ 10, 5 }, { 40, 30 });
    Edit(MenuObjectProperties, [&](DialogDriver& dialog) {
        dialog.Select(PictureEffectList, 5);
        for (const auto& [typed, caption, text] : {
                 std::tuple { "", "輸入的 Alpha 值有誤", "輸入值 =  是不被接受的, 請輸入數字" },
                 std::tuple { "12a", "輸入的 Alpha 值有誤", "輸入值 = 12a 是不被接受的, 請輸入數字" },
                 std::tuple { "256", "Alpha 值的範圍不合理", "輸入值 = 256 並不在 0 ~ 255 之間" },
                 std::tuple { "99999999999999999999", "Alpha 值的範圍不合理",
                     "輸入值 = 2147483647 並不在 0 ~ 255 之間" },
             }) {
            SetWindowTextA(GetDlgItem(dialog.Handle(), PictureAlphaField), typed); // as pasting may
            dialog.Press(ConfirmButton);
            EXPECT_EQ(LatestMessage(), std::string(caption) + ": " + text);
            EXPECT_EQ(desktop.MessageBoxes().back().owner, dialog.Handle());
            EXPECT_EQ(dialog.Text(PictureAlphaField), "255");
            EXPECT_TRUE(dialog.IsOpen());
        }
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(picture.GetEffect(), EffectFadeOut);
    EXPECT_EQ(picture.GetAlpha(), 255U);
}

TEST_F(Dialogs, ButtonTakesItsSections)
{
    ButtonObject& button = AddStrip(&ScreenDocument::AddButton);
    Edit(MenuObjectProperties, [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Items(ButtonSectionList).front(), "切成  3 段");
        EXPECT_EQ(dialog.Items(ButtonSectionList).size(), 14U);
        EXPECT_EQ(dialog.Selection(ButtonSectionList), 1);
        dialog.Select(ButtonSectionList, 13);
        dialog.Check(ButtonBoundaryCheck, false);
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(button.GetSections(), 16);
    EXPECT_EQ(button.GetSize(), vec(20, 40));
    EXPECT_FALSE(button.GetBoundaryCheck());

    Edit(MenuObjectProperties, [](DialogDriver& dialog) {
        dialog.SetText(ButtonSectionList, "5"); // typing leaves nothing selected
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(button.GetSections(), 2);
}

TEST_F(Dialogs, AnimationTakesItsFramesAndTheirTime)
{
    AnimationObject& animation = AddStrip(&ScreenDocument::AddAnimation);
    Edit(MenuAnimationProperties, [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Items(AnimationSectionList).back(), "切成 40 段");
        EXPECT_EQ(dialog.Selection(AnimationSectionList), 7);
        EXPECT_EQ(dialog.Text(AnimationWidthField), "40");
        EXPECT_EQ(dialog.Text(AnimationIntervalField), "50");
        dialog.SetText(AnimationSectionList, "?");
        dialog.SetText(AnimationIntervalField, "");
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(animation.GetSections(), 1);
    EXPECT_EQ(animation.GetInterval(), 0.0F);
}

TEST_F(Dialogs, CheckBoxTakesALabelButNoEmptyOne)
{
    desktop.OnDialog([](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Text(WordBlueField), "255");
        dialog.SetText(WordTextField, "音樂");
        dialog.Press(ConfirmButton);
    });
    desktop.ClickButton(105);
    Play();
    ASSERT_EQ(shell.editing.GetObjectCount(), 1);
    auto& checkBox = dynamic_cast<CheckBoxObject&>(ObjectAt(0));
    EXPECT_EQ(checkBox.GetLabelText(), u8"音樂"_big5);
    checkBox.SetPos({ 10, 5 });

    for (const auto& [typed, button, kept] : { std::tuple { "音效", ConfirmButton, u8"音效"_big5 },
             std::tuple { "", ConfirmButton, u8"音效"_big5 },
             std::tuple { "別的", CheckBoxCancelButton, u8"音效"_big5 } }) {
        Edit(MenuCheckBoxProperties, [typed = typed, button = button](DialogDriver& dialog) {
            dialog.SetText(CheckBoxTextField, typed);
            dialog.Press(button);
        });
        EXPECT_EQ(checkBox.GetLabelText(), kept);
    }
}

TEST_F(Dialogs, SelectBoxAddsAndDeletesChoicesByPlace)
{
    auto built = std::make_unique<SelectboxObject>();
    built->Build();
    built->AddString("a");
    built->AddString("b");
    SelectboxObject& selectbox = *built;
    shell.document.AddSelectbox(std::move(built));
    Edit(MenuSelectboxChoices, [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Items(ChoiceList), (Texts { "a", "b" }));
        dialog.SetText(NewChoiceField, "A");
        dialog.Press(ConfirmButton);
        EXPECT_EQ(dialog.Text(NewChoiceField), "");
        EXPECT_EQ(dialog.Items(ChoiceList), (Texts { "a", "b", "A" }));
        EXPECT_EQ(dialog.Items(DeleteChoiceList), (Texts { "刪除第 0 個選項", "刪除第 1 個選項" }));
        dialog.Select(DeleteChoiceList, 0);
        dialog.Press(DeleteChoiceButton);
        EXPECT_EQ(dialog.Items(DeleteChoiceList), Texts { "刪除第 1 個選項" });
        dialog.Press(DeleteChoiceButton);
        EXPECT_EQ(dialog.Items(ChoiceList), Texts { "A" });
        dialog.Press(DeleteChoiceButton); // nothing is selected any more
        dialog.Press(ChoicesDoneButton);
    });
    ASSERT_EQ(selectbox.GetCount(), 1);
    EXPECT_EQ(selectbox.GetString(0), "A");
}

TEST_F(Dialogs, WordTakesItsColourWithinBounds)
{
    desktop.OnDialog([](DialogDriver& dialog) {
        dialog.SetText(WordTextField, "開始");
        dialog.SetText(WordRedField, "300");
        dialog.SetText(WordGreenField, "");
        dialog.SetText(WordBlueField, "x7"); // letters are not taken
        dialog.Press(ConfirmButton);
    });
    desktop.ClickButton(103);
    Play();
    ASSERT_EQ(shell.editing.GetObjectCount(), 1);
    const auto& word = dynamic_cast<WordObject&>(ObjectAt(0));
    EXPECT_EQ(word.GetText(), u8"開始"_big5);
    EXPECT_EQ(word.GetTextColor(), SPic16X_::Color16_(0x0700FF));

    for (const int button : { ConfirmButton, WordCancelButton }) {
        desktop.OnDialog([button](DialogDriver& dialog) {
            if (button == WordCancelButton)
                dialog.SetText(WordTextField, "不要");
            dialog.Press(button);
        });
        desktop.ClickButton(103);
    }
    Play();
    EXPECT_EQ(shell.editing.GetObjectCount(), 1);
}

TEST_F(Dialogs, LongTextIsCutBetweenCharacters)
{
    std::string typed = "x";
    for (int i = 0; i < 200; ++i)
        typed += "字";
    desktop.OnDialog([&](DialogDriver& dialog) {
        dialog.SetText(WordTextField, typed);
        dialog.Press(ConfirmButton);
    });
    desktop.ClickButton(103);
    Play();
    EXPECT_EQ(dynamic_cast<WordObject&>(ObjectAt(0)).GetText().size(), 259U);
}

TEST_F(Dialogs, EndAtOnceWhenTheirObjectIsGone)
{
    AddPicture({ 10, 5 }, { 40, 30 });
    PresentFrame();
    shell.editing.SetContextPoint({ 20, 10 }); // a picture, not the kind that these dialogs edit
    for (const uint16_t item : { MenuCheckBoxProperties, MenuSelectboxChoices })
        SendMessageA(shell.mainWindow, WM_COMMAND, item, 0);
    Play();
    EXPECT_TRUE(desktop.MessageBoxes().empty());
    EXPECT_EQ(ObjectAt(0).GetSize(), vec(40, 30));
}

TEST_F(Dialogs, MovingOneDrawsTheCanvasAgain)
{
    AddPicture({ 10, 5 }, { 40, 30 });
    Edit(MenuObjectProperties, [&](DialogDriver& dialog) {
        const int drawn = desktop.TimesDrawn();
        dialog.Move(300, 300);
        EXPECT_GT(desktop.TimesDrawn(), drawn);
        dialog.Press(ConfirmButton);
    });
}

} // namespace
