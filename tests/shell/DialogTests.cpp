#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/SelectboxObject.h"
#include "objects/WordObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "tests/shell/EditorTest.h"

namespace {

using platform::DialogDriver;
using Texts = std::vector<std::string>;

class Dialogs : public AllKinds { };

TEST_F(Dialogs, PictureTakesItsPropertiesButNoSenselessAlpha)
{
    const auto& picture = ObjectAt<PictureObject>(Picture);
    const std::pair<const char*, const char*> refused[] = {
        { "", "輸入的 Alpha 值有誤: 輸入值 =  是不被接受的, 請輸入數字" },
        { "12a", "輸入的 Alpha 值有誤: 輸入值 = 12a 是不被接受的, 請輸入數字" },
        { "256", "Alpha 值的範圍不合理: 輸入值 = 256 並不在 0 ~ 255 之間" },
        { "99999999999999999999", "Alpha 值的範圍不合理: 輸入值 = 2147483647 並不在 0 ~ 255 之間" },
    };
    Choose(On(Picture), MenuObjectProperties, [&](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Text(PictureModeList) + dialog.Text(PictureEffectList), "移動物件沒有特效");
        dialog.Select(PictureModeList, 1);
        dialog.Select(PictureEffectList, 3);
        dialog.Check(PictureBoundaryCheck, true);
        for (const auto& [typed, message] : refused) {
            SetWindowTextA(GetDlgItem(dialog.Handle(), PictureAlphaField), typed); // as pasting may
            dialog.Press(ConfirmButton);
            EXPECT_EQ(LatestMessage(), message);
            EXPECT_EQ(desktop.MessageBoxes().back().owner, dialog.Handle());
            EXPECT_EQ(dialog.Text(PictureAlphaField), "255");
        }
        EXPECT_EQ(picture.GetMode(), ModeStatic); // mode and effect are taken all the same
        EXPECT_EQ(picture.GetEffect(), EffectFromLeft);
        EXPECT_FALSE(picture.GetBoundaryCheck());
        const int drawn = desktop.TimesDrawn();
        dialog.Move(300, 300); // the canvas below is drawn again
        EXPECT_GT(desktop.TimesDrawn(), drawn);
        dialog.Key(VK_ESCAPE);
        dialog.Key(VK_RETURN);
        dialog.SetText(PictureAlphaField, "128");
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(picture.GetAlpha(), 128U);
    EXPECT_TRUE(picture.GetBoundaryCheck());
}

TEST_F(Dialogs, StripsTakeTheirSections)
{
    const auto& button = ObjectAt<ButtonObject>(Button);
    Choose(On(Button), MenuObjectProperties, [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Items(ButtonSectionList).front(), "切成  3 段");
        EXPECT_EQ(dialog.Selection(ButtonSectionList), 1);
        dialog.Select(ButtonSectionList, 13);
        dialog.Check(ButtonBoundaryCheck, false);
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(button.GetSize(), vec(20, 40));
    EXPECT_FALSE(button.GetBoundaryCheck());
    Choose(On(Button), MenuObjectProperties, [](DialogDriver& dialog) {
        dialog.SetText(ButtonSectionList, "5"); // typing leaves nothing selected
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(button.GetSections(), 2);

    Choose(On(Animation), MenuAnimationProperties, [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Selection(AnimationSectionList), 7);
        EXPECT_EQ(dialog.Text(AnimationIntervalField), "50");
        dialog.SetText(AnimationSectionList, "?");
        dialog.SetText(AnimationIntervalField, "");
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(ObjectAt<AnimationObject>(Animation).GetSections(), 1);
    EXPECT_EQ(ObjectAt<AnimationObject>(Animation).GetInterval(), 0.0F);
}

TEST_F(Dialogs, CheckBoxTakesALabelButNoEmptyOne)
{
    for (const auto& [typed, button] :
        { std::pair { "音效", ConfirmButton }, { "", ConfirmButton }, { "別的", CheckBoxCancelButton } }) {
        Choose(On(CheckBox), MenuCheckBoxProperties, [typed = typed, button = button](DialogDriver& dialog) {
            dialog.SetText(CheckBoxTextField, typed);
            dialog.Press(button);
        });
        EXPECT_EQ(ObjectAt<CheckBoxObject>(CheckBox).GetLabelText(), u8"音效"_big5);
    }
}

TEST_F(Dialogs, SelectBoxAddsAndDeletesChoicesByPlace)
{
    auto& selectbox = ObjectAt<SelectboxObject>(Selectbox);
    for (int left = 3; left > 0; --left)
        selectbox.RemoveString(0);
    Choose(On(Selectbox), MenuSelectboxChoices, [](DialogDriver& dialog) {
        dialog.SetText(NewChoiceField, "A");
        dialog.Press(ConfirmButton);
        EXPECT_EQ(dialog.Text(NewChoiceField), "");
        EXPECT_EQ(dialog.Items(ChoiceList), (Texts { "第四個選項", "第五個選項", "A" }));
        EXPECT_EQ(dialog.Items(DeleteChoiceList), (Texts { "刪除第 0 個選項", "刪除第 1 個選項" }));
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

TEST_F(Dialogs, WordTakesItsColourWithinBoundsAndWholeCharacters)
{
    std::string longText = "x";
    for (int i = 0; i < 200; ++i)
        longText += "字";
    for (const int button : { ConfirmButton, WordCancelButton }) {
        desktop.OnDialog([&, button](DialogDriver& dialog) {
            EXPECT_EQ(dialog.Text(WordBlueField), "255");
            dialog.SetText(WordTextField, longText);
            dialog.SetText(WordRedField, "300");
            dialog.SetText(WordGreenField, "");
            dialog.SetText(WordBlueField, "x7"); // letters are not taken
            dialog.Press(button);
        });
        desktop.ClickButton(103);
    }
    Insert(103, "");
    ASSERT_EQ(shell.editing.GetObjectCount(), 7);
    EXPECT_EQ(ObjectAt<WordObject>(6).GetText().size(), 259U);
    EXPECT_EQ(ObjectAt<WordObject>(6).GetTextColor(), SPic16X_::Color16_(0x0700FF));
}

TEST_F(Dialogs, EditNothingOnceTheirObjectIsDeleted)
{
    for (const auto& [object, item] : { std::pair { Selectbox, MenuSelectboxChoices },
             { CheckBox, MenuCheckBoxProperties }, { Animation, MenuAnimationProperties },
             { Button, MenuObjectProperties }, { Picture, MenuObjectProperties } }) {
        Choose(On(object), item, [this](DialogDriver& dialog) {
            SendMessageA(shell.mainWindow, WM_KEYDOWN, VK_DELETE, 0);
            dialog.Press(ConfirmButton);
            if (dialog.IsOpen())
                dialog.CloseBox();
        });
    }
    EXPECT_EQ(shell.editing.GetObjectCount(), 1);
}

} // namespace
