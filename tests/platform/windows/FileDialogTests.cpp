#include "platform/Big5Literal.h"
#include "platform/Comdlg.h"
#include "tests/platform/windows/ScriptedProgram.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

class FileDialogs : public ScriptedProgram {
protected:
    FileDialogs() { owner = OpenWindow(); }

    bool Ask(DWORD flags = OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST, const char* initialFolder = "Image\\")
    {
        const std::string filter = std::string(u8"影像檔"_big5) + '\0' + "*.bmp" + '\0';
        OPENFILENAMEA request;
        request.hwndOwner = owner;
        request.lpstrFilter = filter.c_str();
        request.nFilterIndex = 1;
        request.lpstrFile = path;
        request.nMaxFile = sizeof path;
        request.lpstrInitialDir = initialFolder;
        request.Flags = flags;
        return GetOpenFileNameA(&request) == TRUE;
    }

    std::string Backslashed(std::string native) const
    {
        std::replace(native.begin(), native.end(), '/', '\\');
        return platform::CodePageFromUtf8(native);
    }

    TemporaryFolder folder;
    HWND owner = nullptr;
    char path[260] = "";
};

TEST_F(FileDialogs, MoveTheCurrentFolderToTheChosenFile)
{
    folder.Write("Image/logo.bmp", "");
    folder.Write("功能/許.bmp", "");
    desktop.AnswerFileDialog("logo.bmp");
    ASSERT_TRUE(Ask());
    EXPECT_EQ(path, Backslashed(folder.Path() + "/Image/logo.bmp"));
    EXPECT_EQ(fs::current_path(), folder.Path() + "/Image");
    EXPECT_EQ(desktop.FileDialogs()[0].folder, folder.Path() + "/Image");
    EXPECT_EQ(desktop.FileDialogs()[0].label, "影像檔");
    EXPECT_EQ(desktop.FileDialogs()[0].pattern, "*.bmp");
    EXPECT_TRUE(desktop.FileDialogs()[0].mustExist);

    desktop.AnswerFileDialog("../功能/許.bmp"); // there is no Image folder in this one: the dialog shows where we are
    ASSERT_TRUE(Ask());
    EXPECT_EQ(desktop.FileDialogs()[1].folder, folder.Path() + "/Image");
    EXPECT_EQ(path, Backslashed(folder.Path() + "/功能/許.bmp"));
    EXPECT_EQ(fs::current_path(), folder.Path() + "/功能");
}

TEST_F(FileDialogs, TakeANewNameWhereTheFileNeedNotExist)
{
    desktop.AnswerFileDialog(folder.Path() + "/1:2.tobrik");
    EXPECT_TRUE(Ask(OFN_PATHMUSTEXIST));
    EXPECT_EQ(path, Backslashed(folder.Path() + "/1:2.tobrik"));
    EXPECT_FALSE(desktop.FileDialogs()[0].mustExist);
    EXPECT_TRUE(desktop.MessageBoxes().empty());
}

TEST_F(FileDialogs, LeaveEverythingAsItWasWhenCancelled)
{
    desktop.CancelFileDialog();
    EXPECT_FALSE(Ask());
    EXPECT_STREQ(path, "");
    EXPECT_EQ(fs::current_path(), folder.Path());
    EXPECT_TRUE(desktop.MessageBoxes().empty());
    desktop.Press(50, 50);
    EXPECT_EQ(Played(), Log { "press 50 50 1" });
}

TEST_F(FileDialogs, RefuseWhatTheProgramCannotTake)
{
    const std::string longName = std::string(120, 'x') + "/" + std::string(130, 'y') + ".bmp";
    for (const std::string name : { "堃.bmp", "é/logo.bmp", "\xFF.bmp", "a:b.bmp", "b.bmp", "a\\b.bmp", "c\\d/e.bmp",
             "Logo.tobrik", "Dir/x.tobrik", "dir/y.tobrik", longName.c_str() })
        folder.Write("Image/" + name, "");
    const std::pair<std::string, std::vector<std::string>> refused[]
        = { { "Big5 無法表示", { "堃.bmp", "é/logo.bmp", "\xFF.bmp" } },
              { "冒號", { "a:b.bmp", "a\\b.bmp", "c\\d/e.bmp" } }, { "太長", { longName } },
              { "找不到這個資料夾", { "nowhere/new.tobrik" } }, { "找不到這個檔案", { "new.bmp" } },
              { "這是資料夾", { "dir", "." } }, { "只差大小寫", { "logo.tobrik", "Dir/y.tobrik" } } };
    for (const auto& [reason, answers] : refused)
        for (const std::string& answer : answers) {
            const size_t before = desktop.MessageBoxes().size();
            desktop.AnswerFileDialog(answer);
            EXPECT_FALSE(Ask(OFN_PATHMUSTEXIST | (answer.ends_with(".bmp") ? OFN_FILEMUSTEXIST : 0))) << answer;
            EXPECT_STREQ(path, "");
            EXPECT_EQ(fs::current_path(), folder.Path());
            ASSERT_EQ(desktop.MessageBoxes().size(), before + 1) << answer;
            EXPECT_EQ(desktop.MessageBoxes().back().caption, "無法使用檔名");
            EXPECT_NE(desktop.MessageBoxes().back().text.find(reason), std::string::npos) << answer;
            EXPECT_EQ(desktop.MessageBoxes().back().owner, owner);
        }
}

} // namespace
