#include "shell/CommandButtons.h"
#include "shell/ScriptCommands.h"
#include "tests/shell/EditorTest.h"

#include <sys/resource.h>

namespace {

class ScriptCommands : public EditorTest {
protected:
    void SaveAs(const std::string& nativePath)
    {
        desktop.AnswerFileDialog(nativePath);
        Run(CommandSaveScriptAs);
    }
};

TEST_F(ScriptCommands, QuickSaveAsksWhileTheNameHasNoFullStop)
{
    shell.editing.SetFileName("screen");
    desktop.CancelFileDialog();
    QuickSave();
    EXPECT_EQ(desktop.FileDialogs().size(), 1U);
}

TEST_F(ScriptCommands, SayWhyAFileCannotBeWritten)
{
    std::filesystem::create_directory("elsewhere");
    std::filesystem::create_symlink("nowhere/screen", "elsewhere/lost.tobrik");
    AddPicture({ 10, 10 }, { 40, 30 });
    SaveAs(folder.Path() + "/elsewhere/lost.tobrik");
    EXPECT_EQ(LatestMessage(), "無法存檔: 無法寫入 " + folder.Path() + "/elsewhere/lost.tobrik: 沒有這個資料夾");
    EXPECT_EQ(std::filesystem::current_path(), folder.Path());
    rlimit before {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small { 10, before.rlim_max };
    setrlimit(RLIMIT_FSIZE, &small);
    SaveAs(folder.Path() + "/large.tobrik");
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(LatestMessage().ends_with("/large.tobrik: 檔案超過大小限制")) << LatestMessage();
    EXPECT_EQ(desktop.MessageBoxes().back().owner, shell.mainWindow);
    EXPECT_EQ(shell.document.GetObjectCount(), 1);
    EXPECT_FALSE(shell.editing.HasFileName());
}

TEST_F(ScriptCommands, NothingIsSavedOverAScriptThatEndsTheEditor)
{
    const std::string broken = "ZULScreen { Word { Stage 0 { WordText = \"x\" ; } } Picture";
    folder.Write("Image/broken.tobrik", broken);
    desktop.AnswerFileDialog(folder.Path() + "/Image/broken.tobrik");
    desktop.ClickButton(CommandLoadScript);
    desktop.Key('S', MK_CONTROL);
    EXPECT_EQ(RunToTheEnd(), 16);
    EXPECT_EQ(ReadBytes(folder.Path() + "/Image/broken.tobrik"), broken);
}

} // namespace
