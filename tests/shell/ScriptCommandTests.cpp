#include "objects/CheckBoxObject.h"
#include "objects/SelectboxObject.h"
#include "objects/WordObject.h"
#include "platform/Big5Literal.h"
#include "platform/Path.h"
#include "platform/User.h"
#include "shell/FramePresentation.h"
#include "shell/ScriptCommands.h"
#include "tests/shell/EditorTest.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

class ScriptCommands : public EditorTest {
protected:
    void AddWord(const char* text, vec pos)
    {
        auto word = std::make_unique<WordObject>();
        EXPECT_TRUE(word->SetText(text));
        word->SetPos(pos);
        shell.document.AddWord(std::move(word));
    }
    void SaveAs(const std::string& nativePath)
    {
        desktop.AnswerFileDialog(nativePath);
        desktop.ClickButton(111);
        Play();
    }
    static std::string Bytes(const std::string& name)
    {
        std::ostringstream bytes;
        bytes << std::ifstream(name, std::ios::binary).rdbuf();
        return bytes.str();
    }
    // The folder of the pictures becomes the current one, where a script finds them by their bare names.
    std::string InImageFolder(const std::string& name)
    {
        return std::filesystem::absolute(std::filesystem::path("Image") / name).string();
    }
};

TEST_F(ScriptCommands, SaveAsWritesTheScreenAndRebuildsItFromTheFile)
{
    AddWord(u8"開始遊戲"_big5, { 420, 360 });
    PictureObject& picture = AddPicture({ 100, 50 }, { 40, 30 });
    picture.SetEffect(EffectFadeOut);
    picture.SetAlpha(128);
    const std::string path = InImageFolder("screen.tobrik");
    SaveAs(path);
    EXPECT_EQ(Bytes(path),
        std::string("ZULScreen {\r\n    ScreenSize = vec (140, 80) ;\r\n    ScreenPos = vec (0, 0) ;\r\n"
                    "    Picture {\r\n        Stage 0 {\r\n            Filename = \"p40x30.bmp\" ;\r\n"
                    "            PicturePos = vec (100, 50) ;\r\n            PictureSize = vec (40, 30) ;\r\n"
                    "            PictureAlpha = 128 ;\r\n        }\r\n    }\r\n"
                    "    Word {\r\n        Stage 0 {\r\n            WordText = \"")
            + u8"開始遊戲"_big5
            + "\" ;\r\n            WordPos = vec (420, 360) ;\r\n        }\r\n    }\r\n}\r\n");

    ASSERT_EQ(shell.editing.GetObjectCount(), 2);
    EXPECT_EQ(ObjectAt(0).GetKind(), KindPicture); // pictures come first now
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
    EXPECT_NE(Bytes(path).find("PicturePos = vec (7, 8) ;"), std::string::npos);
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(7, 8));
}

TEST_F(ScriptCommands, RefuseANameThatIsNoScript)
{
    for (const int id : { 110, 111 }) {
        desktop.AnswerFileDialog(std::filesystem::absolute("screen.txt").string());
        desktop.ClickButton(id);
        Play();
        EXPECT_EQ(LatestMessage(), "非所設定的資源檔: 請點選 *.tobrik檔案");
    }
    EXPECT_FALSE(std::filesystem::exists("screen.txt"));
    SaveAs(std::filesystem::absolute("screen.tobrik.bak").string()); // the name need only hold it somewhere
    EXPECT_TRUE(std::filesystem::exists("screen.tobrik.bak"));
}

TEST_F(ScriptCommands, StoreNoPositionOutsideTheCanvas)
{
    AddPicture({ -15, 590 }, { 40, 30 });
    SaveAs(InImageFolder("edge.tobrik"));
    ASSERT_EQ(shell.editing.GetObjectCount(), 1);
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(0, 590));
    EXPECT_FALSE(shell.quit);
    EXPECT_EQ(desktop.MessageBoxes().size(), 0U);
}

TEST_F(ScriptCommands, RefuseToSaveAQuoteAndTouchNothing)
{
    std::ofstream("old.tobrik") << "old";
    AddWord("say \"hi\"", { 10, 10 });
    SaveAs(std::filesystem::absolute("old.tobrik").string());
    EXPECT_EQ(LatestMessage(), "無法存檔: say \"hi\"");
    EXPECT_EQ(desktop.MessageBoxes().back().owner, shell.mainWindow);
    EXPECT_EQ(Bytes("old.tobrik"), "old");
    EXPECT_EQ(shell.editing.GetObjectCount() + shell.document.GetObjectCount(), 1);
    EXPECT_FALSE(shell.editing.HasFileName());
}

TEST_F(ScriptCommands, FailedWriteStopsTheCommand)
{
    AddWord("a", { 10, 10 });
    std::filesystem::create_directory("folder.tobrik");
    EXPECT_FALSE(SaveScreenScript("folder.tobrik"));
    EXPECT_EQ(LatestMessage(), "無法存檔: 無法寫入 folder.tobrik");
    EXPECT_FALSE(shell.editing.HasFileName());
    EXPECT_EQ(shell.document.GetObjectCount(), 1);
}

TEST_F(ScriptCommands, BrokenScriptIsLoadedAsFarAsItGoesAndEndsTheEditor)
{
    std::ofstream("broken.tobrik") << "ZULScreen { Word { Stage 0 { WordText = \"a\" ; } Stage 1 { WordText = ";
    EXPECT_TRUE(LoadScreenScript("broken.tobrik"));
    EXPECT_EQ(shell.editing.GetObjectCount(), 1);
    ASSERT_GE(desktop.DebugMessages().size(), 3U);
    EXPECT_EQ(RunToTheEnd(), 16);
}

TEST_F(ScriptCommands, LoadingStopsAtTheFirstObjectThatCannotBeBuilt)
{
    std::ofstream("half.tobrik") << "ZULScreen { Word { Stage 0 { WordText = \"a\" ; } }"
                                    " CheckBox { Stage 0 { CheckBoxText = \"b\" ; } Stage 1 { } }"
                                    " Selectbox { Stage 0 { SelectboxText = \"c\" ; } } }";
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
