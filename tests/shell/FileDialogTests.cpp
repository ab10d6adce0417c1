#include "platform/User.h"
#include "shell/CommandButtons.h"
#include "tests/shell/EditorTest.h"

namespace {

class FileDialogs : public EditorTest { };

TEST_F(FileDialogs, OfferWhatFitsTheCommandAndRefuseANameThatWillNotDo)
{
    shell.editing.SetFileName("screen"); // without a full stop it is no name: Ctrl+S asks, too
    folder.Write("screen.txt", "x");
    const std::string names[] = { WritePicture("data.bmp", 4, 4), folder.Path() + "/screen.txt" };
    for (const WORD command : { WORD { 0 }, CommandLoadPicture, CommandLoadButton, CommandLoadAnimation,
             CommandLoadScript, CommandSaveScriptAs }) {
        const bool picture = command >= CommandLoadPicture && command <= CommandLoadAnimation;
        desktop.CancelFileDialog();
        desktop.AnswerFileDialog(picture ? names[0] : names[1]);
        for (int i = 0; i < 2; ++i)
            command ? desktop.ClickButton(command) : desktop.Key('S', MK_CONTROL);
        Play();
        const platform::FileRequest& request = desktop.FileDialogs().back();
        EXPECT_EQ(request.label + " " + request.pattern, picture ? "影像檔 *.bmp" : "Tobrik設定檔 *.tobrik");
        EXPECT_EQ(request.mustExist, picture);
        EXPECT_EQ(request.owner, shell.mainWindow);
        EXPECT_EQ(desktop.FileDialogs()[0].folder, folder.Path() + "/Image");
        EXPECT_EQ(LatestMessage(),
            picture ? "無法 Show Alpha file: 請勿點選 *a.bmp 的 alpha 檔案" : "非所設定的資源檔: 請點選 *.tobrik檔案");
        EXPECT_EQ(desktop.MessageBoxes().back().owner, shell.mainWindow);
    }
    EXPECT_EQ(desktop.MessageBoxes().size(), 6U);
    EXPECT_EQ(shell.document.GetObjectCount(), 0);
    EXPECT_EQ(ReadBytes(names[1]), "x");
}

} // namespace
