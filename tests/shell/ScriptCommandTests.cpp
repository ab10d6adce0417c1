#include "platform/Path.h"
#include "platform/User.h"
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
        desktop.ClickButton(CommandSaveScriptAs);
        Play();
    }
    // The folder of the pictures becomes the current one, where a script finds them by their bare names.
    std::string InImageFolder(const std::string& name) { return folder.Path() + "/Image/" + name; }
};

TEST_F(ScriptCommands, SaveAsWritesTheScreenAndRebuildsItFromTheFile)
{
    Insert(CommandInsertWord, "開始遊戲");
    ObjectAt(0).SetPos({ 420, 360 });
    PictureObject& picture = AddPicture({ -15, 590 }, { 40, 30 });
    picture.SetEffect(EffectFadeOut);
    picture.SetAlpha(128);
    const std::string path = InImageFolder("screen.tobrik");
    SaveAs(path);
    EXPECT_NE(ReadBytes(path).find("{\r\n            Filename = \"p40x30.bmp\" ;\r\n"), std::string::npos);

    ASSERT_EQ(shell.editing.GetObjectCount(), 2);
    EXPECT_EQ(ObjectAt(0).GetKind(), KindPicture); // pictures come first now
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(0, 590)); // no script holds a position outside the canvas
    EXPECT_EQ(ObjectAt(0).GetEffect(), EffectNone); // is not stored
    EXPECT_EQ(ObjectAt(0).GetAlpha(), 128U);
    EXPECT_EQ(ObjectAt(1).GetPos(), vec(420, 360));
    EXPECT_EQ(shell.editing.GetFileName(), platform::CodePagePath(path));
}

TEST_F(ScriptCommands, QuickSaveWritesToTheFileInHandAndElseAsks)
{
    const std::string path = InImageFolder("q.tobrik");
    AddPicture({ 100, 50 }, { 40, 30 });
    desktop.Key('S'); // without Ctrl: nothing
    desktop.CancelFileDialog();
    desktop.Key('S', MK_CONTROL);
    Play();
    EXPECT_FALSE(shell.editing.HasFileName());
    desktop.AnswerFileDialog(path);
    desktop.Key('S', MK_CONTROL);
    Play();
    ASSERT_TRUE(shell.editing.HasFileName());

    ObjectAt(0).SetPos({ 7, 8 });
    desktop.Key('S', MK_CONTROL);
    Play();
    EXPECT_EQ(desktop.FileDialogs().size(), 2U);
    EXPECT_NE(ReadBytes(path).find("PicturePos = vec (7, 8) ;"), std::string::npos);
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(7, 8));
}

TEST_F(ScriptCommands, TakeANameThatHoldsTheExtensionAnywhere)
{
    SaveAs(folder.Path() + "/screen.tobrik.bak");
    EXPECT_TRUE(std::filesystem::exists("screen.tobrik.bak"));
}

TEST_F(ScriptCommands, SavingThatCannotBeDoneSaysSoAndChangesNothing)
{
    std::filesystem::create_symlink("nowhere/screen", "lost.tobrik");
    AddPicture({ 10, 10 }, { 40, 30 });
    SaveAs(folder.Path() + "/lost.tobrik");
    EXPECT_EQ(LatestMessage(), "無法存檔: 無法寫入 " + folder.Path() + "/lost.tobrik: 沒有這個資料夾");
    rlimit before {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small { 10, before.rlim_max };
    setrlimit(RLIMIT_FSIZE, &small);
    SaveAs(InImageFolder("large.tobrik"));
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_TRUE(LatestMessage().ends_with("/large.tobrik: 檔案超過大小限制")) << LatestMessage();

    folder.Write("old.tobrik", "old");
    Insert(CommandInsertWord, "say \"hi\"");
    SaveAs(folder.Path() + "/old.tobrik");
    EXPECT_EQ(LatestMessage(), "無法存檔: 這段文字含有雙引號: say \"hi\"");
    EXPECT_EQ(ReadBytes("old.tobrik"), "old");
    for (const auto& message : desktop.MessageBoxes())
        EXPECT_EQ(message.owner, shell.mainWindow);
    EXPECT_EQ(shell.document.GetObjectCount(), 2);
    EXPECT_FALSE(shell.editing.HasFileName());
}

TEST_F(ScriptCommands, WritesAnAlphaThatWouldGetAMinusSignAsItsLowByte)
{
    folder.Write("a.tobrik",
        "ZULScreen { Word { Stage 0 { WordText = \"a\" ; WordAlpha = 4294967290 ; } Stage 1 { WordText = \"b\" ; "
        "WordAlpha = 2147483647 ; } } }");
    ASSERT_TRUE(LoadScreenScript("a.tobrik"));
    QuickSave();
    ASSERT_EQ(shell.editing.GetObjectCount(), 2);
    EXPECT_EQ(ObjectAt(0).GetAlpha(), 250U);
    EXPECT_EQ(ObjectAt(1).GetAlpha(), 2147483647U);
}

TEST_F(ScriptCommands, SaveDuringAPreviewStoresWhereTheObjectBelongs)
{
    AddPicture({ 300, 100 }, { 40, 30 }).SetEffect(EffectFromRight);
    shell.document.StartEffect(0);
    desktop.Advance(100);
    Play();
    SaveAs(InImageFolder("screen.tobrik"));
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(300, 100));
}

TEST_F(ScriptCommands, SaveThatDoesNotTakePlaceLeavesTheCurrentFolder)
{
    Insert(CommandInsertWord, "say \"hi\"");
    std::filesystem::create_directory("elsewhere");
    for (const char* name : { "/elsewhere/new.tobrik", "/elsewhere/new.txt" }) {
        SaveAs(folder.Path() + name);
        EXPECT_EQ(std::filesystem::current_path(), folder.Path()) << name;
        desktop.AnswerFileDialog(folder.Path() + name);
        QuickSave();
        EXPECT_EQ(std::filesystem::current_path(), folder.Path()) << name;
    }
}

TEST_F(ScriptCommands, BrokenScriptIsLoadedAsFarAsItGoesAndEndsTheEditor)
{
    folder.Write("broken.tobrik", "ZULScreen { Word { Stage 0 { WordText = \"a\" ; } Stage 1 { WordText = ");
    EXPECT_TRUE(LoadScreenScript("broken.tobrik"));
    EXPECT_EQ(shell.editing.GetObjectCount(), 1);
    EXPECT_EQ(desktop.DebugMessages().size(), 3U);
    EXPECT_EQ(RunToTheEnd(), 16);
}

TEST_F(ScriptCommands, LoadingStopsAtTheFirstObjectThatCannotBeBuilt)
{
    folder.Write("half.tobrik",
        "ZULScreen { Word { Stage 0 { WordText = \"a\" ; } } CheckBox { Stage 0 { CheckBoxText = \"b\" ; } Stage 1 { } "
        "}"
        " Selectbox { Stage 0 { SelectboxText = \"c\" ; } } }");
    AddPicture({ 100, 50 }, { 40, 30 });
    desktop.Click(110, 60);
    Play();
    EXPECT_FALSE(LoadScreenScript("half.tobrik"));
    EXPECT_EQ(shell.editing.GetObjectCount(), 2);
    EXPECT_FALSE(shell.editing.HasFileName());
    EXPECT_EQ(shell.editing.GetCurrentObject(), nullptr);
    EXPECT_EQ(Selected(), std::vector<int32_t> {});
}

} // namespace
