#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/SelectboxObject.h"
#include "objects/WordObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "resources/ResourceIds.h"
#include "shell/CommandButtons.h"
#include "tests/shell/EditorTest.h"

namespace {

using platform::DialogDriver;
using Texts = std::vector<std::string>;
using Values = std::vector<std::pair<int, std::string>>;

class Dialogs : public AllKinds {
protected:
    static constexpr std::pair<int32_t, WORD> propertyMenus[] = { { Selectbox, MenuSelectboxChoices },
        { CheckBox, MenuCheckBoxProperties }, { Animation, MenuAnimationProperties }, { Button, MenuObjectProperties },
        { Picture, MenuObjectProperties } };

    // Enters the values in the object's dialog and confirms them. Answers what was shown before.
    Values Fill(int32_t object, WORD item, const Values& values)
    {
        Values before;
        Choose(On(object), item, [&](DialogDriver& dialog) {
            for (const auto& [id, value] : values) {
                before.emplace_back(id, dialog.Value(id));
                dialog.Enter(id, value);
            }
            dialog.Press(ConfirmButton);
        });
        return before;
    }
};

TEST_F(Dialogs, EndThroughTheirButtonsOrTheirCloseBoxAlone)
{
    int drawn = 0;
    const auto leave = [&](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Handle()->parent, shell.mainWindow);
        drawn = desktop.TimesDrawn();
        dialog.Move(300, 300); // the canvas below is drawn again
        EXPECT_EQ(desktop.TimesDrawn(), drawn + DrawingsOfAFrame);
        dialog.Key(VK_ESCAPE);
        dialog.Key(VK_RETURN);
        if (!dialog.Handle()->closeBox)
            SendMessageA(dialog.Handle(), WM_CLOSE, 0, 0);
        EXPECT_TRUE(dialog.IsOpen());
        dialog.Handle()->closeBox ? dialog.CloseBox() : dialog.Press(ConfirmButton);
        EXPECT_EQ(dialog.Handle()->result, 1);
        drawn = desktop.TimesDrawn();
    };
    for (const auto& [object, item] : propertyMenus) {
        Choose(On(object), item, leave);
        // Properties are shown before the idle step's frame.
        EXPECT_EQ(desktop.TimesDrawn() > drawn + DrawingsOfAFrame, object != Selectbox);
    }
    for (const WORD command : { CommandInsertWord, CommandInsertCheckBox }) {
        desktop.OnDialog(leave);
        Run(command);
    }
    EXPECT_EQ(LatestMessage(), "");
}

TEST_F(Dialogs, PictureShowsAndTakesItsProperties)
{
    const auto& picture = ObjectAt<PictureObject>(Picture);
    const std::pair<const char*, EffectKind> effects[]
        = { { "沒有特效", EffectNone }, { "由上面出現", EffectFromTop }, { "由下面出現", EffectFromBottom },
              { "由左邊出現", EffectFromLeft }, { "由右邊出現", EffectFromRight }, { "淡出", EffectFadeOut } };
    bool odd = false;
    for (const auto& [name, effect] : effects) {
        const Values values { { PictureModeList, odd ? "靜態影像" : "移動物件" }, { PictureEffectList, name },
            { PictureAlphaField, odd ? "255" : "0" }, { PictureBoundaryCheck, odd ? "on" : "off" } };
        Fill(Picture, MenuObjectProperties, values);
        EXPECT_EQ(picture.GetMode(), odd ? ModeStatic : ModeMoving);
        EXPECT_EQ(picture.GetEffect(), effect);
        EXPECT_EQ(picture.GetAlpha(), odd ? 255U : 0U);
        EXPECT_EQ(picture.GetBoundaryCheck(), odd);
        EXPECT_EQ(Fill(Picture, MenuObjectProperties, values), values);
        odd = !odd;
    }
}

TEST_F(Dialogs, PictureKeepsWhatItCannotTake)
{
    auto& picture = ObjectAt<PictureObject>(Picture);
    const std::pair<const char*, const char*> refused[] = {
        { "", "輸入的 Alpha 值有誤: 輸入值 =  是不被接受的, 請輸入數字" },
        { "12a", "輸入的 Alpha 值有誤: 輸入值 = 12a 是不被接受的, 請輸入數字" },
        { "256", "Alpha 值的範圍不合理: 輸入值 = 256 並不在 0 ~ 255 之間" },
        { "99999999999999999999", "Alpha 值的範圍不合理: 輸入值 = 2147483647 並不在 0 ~ 255 之間" },
    };
    picture.SetAlpha(99);
    picture.SetMode(ModeAnimation);
    Choose(On(Picture), MenuObjectProperties, [&](DialogDriver& dialog) {
        EXPECT_EQ(dialog.Selection(PictureModeList), -1);
        dialog.Select(PictureEffectList, 3);
        dialog.Check(PictureBoundaryCheck, true);
        for (const auto& [typed, message] : refused) {
            SetWindowTextA(GetDlgItem(dialog.Handle(), PictureAlphaField), typed); // as pasting may
            dialog.Press(ConfirmButton);
            EXPECT_EQ(LatestMessage(), message);
            EXPECT_EQ(desktop.MessageBoxes().back().owner, dialog.Handle());
            EXPECT_EQ(dialog.Text(PictureAlphaField), "99");
        }
        EXPECT_EQ(picture.GetEffect(), EffectFromLeft); // the effect is taken all the same
        EXPECT_FALSE(picture.GetBoundaryCheck());
        dialog.SetText(PictureEffectList, "?"); // typing leaves nothing selected
        dialog.SetText(PictureAlphaField, std::string(48, '0') + "12"); // 49 bytes of it are read
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(picture.GetMode(), ModeAnimation);
    EXPECT_EQ(picture.GetEffect(), EffectFromLeft);
    EXPECT_EQ(picture.GetAlpha(), 1U);
}

TEST_F(Dialogs, StripsShowAndTakeTheirSections)
{
    const auto& button = ObjectAt<ButtonObject>(Button);
    for (const auto& [entry, sections, tick] :
        { std::tuple { "切成 16 段", 16, "off" }, { "切成  3 段", 3, "on" }, { "切成  4 段", 4, "off" } }) {
        const Values values { { ButtonSectionList, entry }, { ButtonBoundaryCheck, tick } };
        Fill(Button, MenuObjectProperties, values);
        EXPECT_EQ(button.GetSize(), vec(320 / sections, 40));
        EXPECT_EQ(button.GetBoundaryCheck(), std::string(tick) == "on");
        EXPECT_EQ(Fill(Button, MenuObjectProperties, values), values);
    }
    auto& animation = ObjectAt<AnimationObject>(Animation);
    for (const auto& [entry, sections, interval] :
        { std::tuple { "切成 40 段", 40, "120" }, { "切成  1 段", 1, "7" } }) {
        const Values values { { AnimationSectionList, entry }, { AnimationIntervalField, interval } };
        Fill(Animation, MenuAnimationProperties, values);
        EXPECT_EQ(animation.GetSections(), sections);
        EXPECT_EQ(animation.GetInterval(), std::stof(interval));
        animation.SetInterval(animation.GetInterval() + 0.9F); // is shown without
        EXPECT_EQ(Fill(Animation, MenuAnimationProperties, values), values);
    }
    // Beyond the lists an entry can only be typed, which selects nothing.
    for (const char* entry : { "切成  2 段", "切成 17 段" }) {
        Fill(Button, MenuObjectProperties, { { ButtonSectionList, entry } });
        EXPECT_EQ(button.GetSections(), 2);
    }
    Fill(
        Animation, MenuAnimationProperties, { { AnimationSectionList, "切成 41 段" }, { AnimationIntervalField, "" } });
    EXPECT_EQ(animation.GetSections(), 1);
    EXPECT_EQ(animation.GetInterval(), 0.0F);
}

TEST_F(Dialogs, ShowTheExtentThatIsDrawn)
{
    for (const auto& [object, item, width, height] :
        { std::tuple { Picture, MenuObjectProperties, PictureWidthField, PictureHeightField },
            { Button, MenuObjectProperties, ButtonWidthField, ButtonHeightField },
            { Animation, MenuAnimationProperties, AnimationWidthField, AnimationHeightField } }) {
        ObjectAt(object).SetView({ 61, 33 });
        const Values extent { { width, "61" }, { height, "33" } };
        EXPECT_EQ(Fill(object, item, extent), extent);
    }
}

TEST_F(Dialogs, CheckBoxTakesALabelButNoEmptyOne)
{
    const auto& checkBox = ObjectAt<CheckBoxObject>(CheckBox);
    const auto takes = [&](const char* typed, int button, const char* before) {
        Choose(On(CheckBox), MenuCheckBoxProperties, [=](DialogDriver& dialog) {
            EXPECT_EQ(dialog.Text(CheckBoxTextField), before);
            dialog.SetText(CheckBoxTextField, typed);
            dialog.Press(button);
        });
        EXPECT_EQ(checkBox.GetLabelText(), u8"音效"_big5);
        EXPECT_EQ(checkBox.GetLabel()->GetText(), u8"音效"_big5); // the label that is drawn
    };
    takes("音效", ConfirmButton, "音樂");
    takes("", ConfirmButton, "音效");
    takes("別的", CheckBoxCancelButton, "音效");
}

TEST_F(Dialogs, SelectBoxAddsAndDeletesChoicesByPlace)
{
    auto& selectbox = ObjectAt<SelectboxObject>(Selectbox);
    selectbox.RemoveString(0);
    selectbox.RemoveString(0);
    Choose(On(Selectbox), MenuSelectboxChoices, [](DialogDriver& dialog) {
        // The first entries are chosen at first and again after every change.
        const auto pressOnTheSecondEntries = [&](int button) {
            for (const int list : { ChoiceList, DeleteChoiceList }) {
                EXPECT_EQ(dialog.Selection(list), 0);
                dialog.Select(list, 1);
            }
            dialog.Press(button);
        };
        dialog.SetText(NewChoiceField, "A");
        pressOnTheSecondEntries(ConfirmButton);
        EXPECT_EQ(dialog.Text(NewChoiceField), "");
        EXPECT_EQ(dialog.Items(ChoiceList), (Texts { "第三個選項", "第四個選項", "第五個選項", "A" }));
        EXPECT_EQ(dialog.Items(DeleteChoiceList), (Texts { "刪除第 0 個選項", "刪除第 1 個選項", "刪除第 2 個選項" }));
        pressOnTheSecondEntries(DeleteChoiceButton);
        EXPECT_EQ(dialog.Items(DeleteChoiceList), (Texts { "刪除第 0 個選項", "刪除第 2 個選項" }));
        pressOnTheSecondEntries(ConfirmButton); // an empty text is a choice, too
        EXPECT_EQ(dialog.Items(ChoiceList), (Texts { "第三個選項", "第五個選項", "A", "" }));
        for (int i = 0; i < 3; ++i) // the third time there is nothing selected
            dialog.Press(DeleteChoiceButton);
        EXPECT_EQ(dialog.Items(ChoiceList), (Texts { "A", "" }));
        dialog.Press(ChoicesDoneButton);
    });
    ASSERT_EQ(selectbox.GetCount(), 2);
    EXPECT_EQ(selectbox.GetString(0), "A");
    EXPECT_EQ(selectbox.GetString(1), "");
}

TEST_F(Dialogs, WordAndCheckBoxAreMadeOfWhatIsTyped)
{
    std::string longText = "x";
    for (int i = 0; i < 200; ++i)
        longText += "字";
    for (const WORD command : { CommandInsertWord, CommandInsertCheckBox }) {
        for (const auto& [text, button] :
            { std::pair { longText, ConfirmButton }, { longText, WordCancelButton }, { "", ConfirmButton } }) {
            desktop.OnDialog([text = text, button = button](DialogDriver& dialog) {
                std::string shown;
                for (const int field : { WordTextField, WordRedField, WordGreenField, WordBlueField })
                    shown += dialog.Text(field) + "|";
                EXPECT_EQ(shown, "|0|0|255|");
                dialog.SetText(WordTextField, text);
                dialog.SetText(WordRedField, "300");
                SetWindowTextA(GetDlgItem(dialog.Handle(), WordGreenField), "-5"); // as pasting may
                dialog.SetText(WordBlueField, "x77"); // letters are not taken
                dialog.Press(button);
            });
            Run(command);
        }
    }
    ASSERT_EQ(shell.editing.GetObjectCount(), 8);
    const std::string taken = platform::CodePageFromUtf8(longText).substr(0, 259);
    EXPECT_EQ(ObjectAt<WordObject>(6).GetText(), taken);
    EXPECT_EQ(ObjectAt<WordObject>(6).GetTextColor(), SPic16X_::Color16_(0x4D00FF));
    EXPECT_EQ(ObjectAt<CheckBoxObject>(7).GetLabelText(), taken);
    EXPECT_EQ(ObjectAt<CheckBoxObject>(7).GetLabel()->GetText(), taken);
}

TEST_F(Dialogs, EditNothingOnceTheirObjectIsDeleted)
{
    for (const auto& [object, item] : propertyMenus) {
        Choose(On(object), item, [this](DialogDriver& dialog) {
            SendMessageA(shell.mainWindow, WM_KEYDOWN, VK_DELETE, 0);
            SendMessageA(dialog.Handle(), WM_COMMAND, 1 << 16 | ConfirmButton, 0); // the low half is the control
            if (dialog.IsOpen())
                dialog.CloseBox();
        });
    }
    EXPECT_EQ(shell.editing.GetObjectCount(), 1);
}

} // namespace
