#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/SelectboxObject.h"
#include "objects/WordObject.h"
#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "resources/ProgramResources.h"
#include "shell/FramePresentation.h"
#include "tests/shell/EditorTest.h"

namespace {

using platform::DialogDriver;

// One object of each kind but the button, apart from each other.
class ContextMenus : public EditorTest {
protected:
    void SetUp() override
    {
        EditorTest::SetUp();
        picture = &AddPicture({ 10, 10 }, { 40, 30 });

        WritePicture("strip.bmp", 320, 40);
        auto strip = std::make_unique<AnimationObject>();
        strip->SetFileName("Image\\strip.bmp");
        ASSERT_TRUE(strip->Load());
        strip->SetPos({ 100, 10 });
        animation = strip.get();
        shell.document.AddAnimation(std::move(strip));

        auto box = std::make_unique<CheckBoxObject>();
        box->SetLabelText(u8"音樂"_big5);
        ASSERT_TRUE(box->Build());
        box->SetPos({ 200, 10 });
        checkBox = box.get();
        shell.document.AddCheckBox(std::move(box));

        auto text = std::make_unique<WordObject>();
        ASSERT_TRUE(text->SetText(u8"開始遊戲"_big5));
        text->SetPos({ 300, 10 });
        shell.document.AddWord(std::move(text));
        PresentFrame();
    }

    void Choose(POINT at, uint32_t item)
    {
        desktop.AnswerMenu(item);
        desktop.RightPress(at.x, at.y);
        Play();
    }

    PictureObject* picture = nullptr;
    AnimationObject* animation = nullptr;
    CheckBoxObject* checkBox = nullptr;
    const POINT atPicture { 20, 20 };
    const POINT atAnimation { 110, 20 };
    const POINT atCheckBox { 205, 15 };
    const POINT atWord { 305, 15 };
};

TEST_F(ContextMenus, OfferWhatFitsTheKind)
{
    const std::pair<POINT, std::vector<std::string>> menus[] = {
        { atPicture, { "物件特性", "推至最下層", "拉至最上層" } },
        { atAnimation, { "Play", "Pause", "Restart", "動畫特性" } },
        { atCheckBox, { "改變 CheckBox 狀態", "CheckBox 特性" } },
        { atWord, { "物件特性", "推至最下層", "拉至最上層" } },
    };
    for (const auto& [at, texts] : menus) {
        Choose(at, 0);
        std::vector<std::string> shown;
        for (const auto& item : desktop.Menus().back().items)
            shown.push_back(item.text);
        EXPECT_EQ(shown, texts);
    }
}

TEST_F(ContextMenus, MoveAnObjectToTheBottomOrTheTop)
{
    Choose(atPicture, MenuToTop);
    EXPECT_EQ(picture->GetLayer(), 3);
    EXPECT_EQ(animation->GetLayer(), 0);
    EXPECT_EQ(checkBox->GetLayer(), 1);
    Choose(atPicture, MenuToTop);
    EXPECT_EQ(picture->GetLayer(), 3);
    Choose(atWord, MenuToBottom);
    EXPECT_EQ(ObjectAt(3).GetLayer(), 0);
    EXPECT_EQ(animation->GetLayer(), 1);
    EXPECT_EQ(picture->GetLayer(), 3);
}

TEST_F(ContextMenus, PlayPauseAndRestartAnAnimation)
{
    Choose(atAnimation, MenuPlay);
    EXPECT_TRUE(animation->IsPlaying());
    desktop.Advance(60);
    PresentFrame();
    EXPECT_EQ(animation->GetFrame(), 1);
    Choose(atAnimation, MenuPause);
    EXPECT_FALSE(animation->IsPlaying());
    EXPECT_EQ(animation->GetFrame(), 1);
    Choose(atAnimation, MenuRestart);
    EXPECT_EQ(animation->GetFrame(), 0);

    shell.editing.SetContextPoint({ 20, 20 }); // the picture
    for (const uint16_t id : { MenuPlay, MenuPause, MenuRestart })
        SendMessageA(shell.mainWindow, WM_COMMAND, id, 0);
    EXPECT_FALSE(animation->IsPlaying());
}

TEST_F(ContextMenus, PreviewKeyPlaysAndPausesAnAnimation)
{
    desktop.MoveTo(atAnimation.x, atAnimation.y);
    desktop.Key('P');
    desktop.PlayInput();
    EXPECT_TRUE(animation->IsPlaying());
    desktop.Key('P');
    desktop.PlayInput();
    EXPECT_FALSE(animation->IsPlaying());
}

TEST_F(ContextMenus, DisableACheckBoxAndEnableItUnchecked)
{
    desktop.Click(atCheckBox.x, atCheckBox.y);
    Play();
    EXPECT_EQ(checkBox->GetState(), 1);
    Choose(atCheckBox, MenuToggleCheckBox);
    EXPECT_EQ(checkBox->GetState(), 3);
    Choose(atCheckBox, MenuToggleCheckBox);
    EXPECT_EQ(checkBox->GetState(), 0);
}

TEST_F(ContextMenus, WordHasNoProperties)
{
    Choose(atWord, MenuObjectProperties);
    EXPECT_TRUE(desktop.Dialogs().empty());
    EXPECT_TRUE(desktop.MessageBoxes().empty());
}

TEST_F(ContextMenus, CommandsDoNothingOnceTheirObjectHasMoved)
{
    shell.editing.SetContextPoint({ 700, 500 });
    shell.editing.SetPointer({ 700, 500 });
    for (WPARAM id = MenuObjectProperties; id <= MenuSelectboxChoices; ++id)
        SendMessageA(shell.mainWindow, WM_COMMAND, id, 0);
    EXPECT_EQ(checkBox->GetState(), 0);
    EXPECT_TRUE(desktop.Dialogs().empty());
}

TEST_F(ContextMenus, SayWhenADialogCannotBeMade)
{
    const platform::Module bare {};
    shell.instance = &bare;
    Choose(atPicture, MenuObjectProperties);
    EXPECT_EQ(LatestMessage(), "Dialog Error: 產生 Dialog 時發生錯誤");
}

} // namespace
