#include "platform/User.h"
#include "resources/ProgramResources.h"
#include "tests/shell/EditorTest.h"

namespace {

class ContextMenus : public EditorTest { };

TEST_F(ContextMenus, SayThatADialogCannotBeMade)
{
    MakeAllKinds();
    static const platform::Module bare {};
    shell.instance = &bare;
    size_t said = 0;
    for (const auto& [object, item] : { std::pair { 0, MenuObjectProperties }, { 1, MenuObjectProperties },
             { 2, MenuAnimationProperties }, { 4, MenuCheckBoxProperties } }) {
        shell.editing.SetContextPoint(ObjectAt(object).GetPos() + vec(5));
        SendMessageA(shell.mainWindow, WM_COMMAND, item, 0);
        ASSERT_EQ(desktop.MessageBoxes().size(), ++said);
        EXPECT_EQ(LatestMessage(), "Dialog Error: 產生 Dialog 時發生錯誤");
        EXPECT_EQ(desktop.MessageBoxes().back().owner, shell.mainWindow);
    }
}

} // namespace
