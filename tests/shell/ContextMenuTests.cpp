#include "objects/AnimationObject.h"
#include "objects/CheckBoxObject.h"
#include "platform/User.h"
#include "resources/ProgramResources.h"
#include "shell/FramePresentation.h"
#include "tests/shell/EditorTest.h"

namespace {

class ContextMenus : public AllKinds { };

TEST_F(ContextMenus, OfferWhatFitsTheKind)
{
    shell.editing.SelectOnly(Word, { 0, 0 });
    const WORD firstItems[] = { MenuObjectProperties, MenuObjectProperties, MenuPlay, MenuObjectProperties,
        MenuToggleCheckBox, MenuSelectboxChoices };
    for (const int32_t object : { Picture, Button, Animation, Word, CheckBox, Selectbox }) {
        Choose(On(object), 0);
        const platform::ShownMenu& menu = desktop.Menus().back();
        EXPECT_EQ(menu.items[0].id, firstItems[object]);
        EXPECT_EQ(menu.at.x, shell.mainWindow->place.left + On(object).x);
        EXPECT_EQ(menu.at.y, shell.mainWindow->place.top + On(object).y);
    }
    desktop.RightPress(700, 500); // empty canvas has no menu
    Play();
    EXPECT_EQ(shell.editing.GetContextPoint(), vec(700, 500));
    EXPECT_EQ(shell.editing.GetPointer(), vec(700, 500));
    EXPECT_EQ(Selected(), std::vector<int32_t> { Word });
}

TEST_F(ContextMenus, MoveAnObjectToTheBottomOrTheTop)
{
    for (const uint16_t item : { MenuToTop, MenuToTop, MenuToBottom })
        Choose(On(Button), item);
    EXPECT_EQ(ObjectAt(Button).GetLayer(), 0);
    EXPECT_EQ(ObjectAt(Picture).GetLayer(), 1);
    Choose(On(Button), MenuToTop);
    EXPECT_EQ(ObjectAt(Button).GetLayer(), 5);
    EXPECT_EQ(ObjectAt(Picture).GetLayer(), 0);
    EXPECT_EQ(ObjectAt(Selectbox).GetLayer(), 4);
    desktop.MoveTo(On(Word).x, On(Word).y);
    Play();
    SendMessageA(shell.mainWindow, WM_COMMAND, MenuToTop, 0); // takes the object under the pointer
    EXPECT_EQ(ObjectAt(Word).GetLayer(), 5);
}

TEST_F(ContextMenus, LeaveThePointerOnWhatLiesUnderItAfterwards)
{
    Choose(On(Picture), MenuObjectProperties, [this](platform::DialogDriver& dialog) {
        desktop.PointTo(On(Word));
        dialog.Press(ConfirmButton);
    });
    EXPECT_EQ(shell.editing.GetCurrentObject(), &ObjectAt(Word));
    desktop.Key(VK_DELETE);
    Play();
    EXPECT_EQ(shell.document.GetObjectCount(), 5);
    EXPECT_EQ(ObjectAt(Word).GetKind(), KindCheckBox);

    desktop.AnswerMenu(MenuToTop, On(Animation));
    desktop.RightPress(On(Picture).x, On(Picture).y);
    desktop.Key(VK_DELETE);
    Play();
    EXPECT_EQ(ObjectAt(Animation).GetKind(), KindCheckBox);
    EXPECT_EQ(ObjectAt(Picture).GetLayer(), 3); // the choice meant the object that was pressed
}

TEST_F(ContextMenus, PlayPauseAndRestartAnAnimation)
{
    const auto& animation = ObjectAt<AnimationObject>(Animation);
    Choose(On(Animation), MenuPlay);
    desktop.Advance(60);
    desktop.Key('P'); // pauses it as well
    Play();
    EXPECT_FALSE(animation.IsPlaying());
    desktop.Key('P');
    desktop.Advance(60);
    Play();
    EXPECT_EQ(animation.GetFrame(), 1);
    Choose(On(Animation), MenuPause);
    EXPECT_FALSE(animation.IsPlaying());
    desktop.MoveTo(700, 500); // the menu's object is the one at the right press
    Play();
    SendMessageA(shell.mainWindow, WM_COMMAND, MenuRestart, 0);
    EXPECT_EQ(animation.GetFrame(), 0);
}

TEST_F(ContextMenus, DisableACheckBoxAndEnableItUnchecked)
{
    desktop.Click(On(CheckBox).x, On(CheckBox).y);
    for (const int32_t state : { 3, 0 }) {
        Choose(On(CheckBox), MenuToggleCheckBox);
        EXPECT_EQ(ObjectAt<CheckBoxObject>(CheckBox).GetState(), state);
    }
}

TEST_F(ContextMenus, CommandsDoNothingWhereTheyDoNotApply)
{
    for (const POINT& at : { On(Word), POINT { 700, 500 } }) { // a word has no properties; the other object has moved
        shell.editing.SetContextPoint({ at.x, at.y });
        for (const WORD id : { MenuObjectProperties, MenuPlay, MenuPause, MenuRestart, MenuAnimationProperties,
                 MenuToggleCheckBox, MenuCheckBoxProperties, MenuSelectboxChoices })
            SendMessageA(shell.mainWindow, WM_COMMAND, id, 0);
    }
    EXPECT_EQ(desktop.Dialogs().size(), 2U); // those that made word and check box
    EXPECT_EQ(LatestMessage(), "");
}

TEST_F(ContextMenus, SayThatADialogCannotBeMade)
{
    const platform::Module bare {};
    shell.instance = &bare;
    for (const auto& [object, item] : { std::pair { Picture, MenuObjectProperties }, { Button, MenuObjectProperties },
             { Animation, MenuAnimationProperties }, { CheckBox, MenuCheckBoxProperties } })
        Choose(On(object), item);
    EXPECT_EQ(desktop.MessageBoxes().size(), 4U);
    EXPECT_EQ(LatestMessage(), "Dialog Error: 產生 Dialog 時發生錯誤");
    EXPECT_EQ(desktop.MessageBoxes().back().owner, shell.mainWindow);
}

} // namespace
