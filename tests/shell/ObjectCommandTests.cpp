#include "objects/ButtonObject.h"
#include "objects/SelectboxObject.h"
#include "platform/CodePage.h"
#include "shell/CommandButtons.h"
#include "tests/shell/EditorTest.h"

#include <filesystem>

namespace {

TEST_F(AllKinds, FollowTheMouse)
{
    const auto& button = ObjectAt<ButtonObject>(Button);
    desktop.MoveTo(On(Button).x, On(Button).y);
    desktop.Do([&] { EXPECT_EQ(button.GetSection(), 1); });
    desktop.Press(On(Button).x, On(Button).y);
    desktop.Do([&] { EXPECT_EQ(button.GetSection(), 2); });
    desktop.Release(On(Button).x, On(Button).y);
    Play();
    EXPECT_EQ(button.GetSection(), 1);
}

class ObjectCommands : public EditorTest { };

TEST_F(ObjectCommands, PutOneMoreObjectOnTop)
{
    const std::string half = WritePicture("half.bmp", 40, 30); // cannot be loaded, and is added all the same
    std::filesystem::resize_file(half, 100);
    struct Case {
        WORD command;
        ObjectKind kind;
        int mode; // -1: has none
    };
    int32_t made = 0;
    for (const Case& each :
        { Case { CommandLoadPicture, KindPicture, ModeMoving }, { CommandLoadButton, KindButton, ModeButton },
            { CommandLoadAnimation, KindAnimation, ModeAnimation }, { CommandInsertWord, KindWord, -1 },
            { CommandInsertCheckBox, KindCheckBox, -1 }, { CommandInsertSelectbox, KindSelectbox, -1 } }) {
        if (each.mode >= 0)
            desktop.AnswerFileDialog(half);
        const bool hasDialog = each.kind == KindWord || each.kind == KindCheckBox;
        hasDialog ? Insert(each.command, "x") : Run(each.command);
        ASSERT_EQ(shell.editing.GetObjectCount(), made + 1);
        EXPECT_EQ(ObjectAt(made).GetKind(), each.kind);
        EXPECT_EQ(ObjectAt(made).GetLayer(), made);
        EXPECT_EQ(ObjectAt(made).GetBoundaryCheck(), made == 1 || made > 3);
        const auto* picture = dynamic_cast<const PictureObject*>(&ObjectAt(made++));
        EXPECT_EQ(each.mode, picture && each.mode >= 0 ? picture->GetMode() : -1);
    }
    EXPECT_EQ(shell.editing.GetCurrentObject(), nullptr);
    EXPECT_EQ(Selected(), std::vector<int32_t> {});
    EXPECT_EQ(LatestMessage(), "");
    std::string choices;
    for (const auto& choice : ObjectAt<SelectboxObject>(5).GetChoices())
        choices += platform::Utf8FromCodePage(choice.text) + ",";
    EXPECT_EQ(choices, "第一個選項,第二個選項,第三個選項,第四個選項,第五個選項,");
    EXPECT_NE(ObjectAt(5).GetSize(), vec(0, 0));
}

} // namespace
