#include "tests/shell/EditorTest.h"

#include "platform/User.h"
#include "resources/ProgramResources.h"
#include "shell/CommandButtons.h"
#include "shell/FramePresentation.h"
#include "shell/MainLoop.h"
#include "shell/StartUp.h"
#include "tests/support/BmpFile.h"

#include <filesystem>

EditorTest::EditorTest()
{
    std::filesystem::create_directory("Image");
    WritePicture("Basic_background.bmp", ScreenWidth, ScreenHeight, 60);
    WritePicture("ro_chkbox.bmp", 16, 64);
    WritePicture("EditBox.bmp", 120, 20);
    WritePicture("upbutton.bmp", 10, 32);
    WritePicture("downbutton.bmp", 10, 32);
    std::filesystem::copy("Image", "."); // the control pictures are found from either folder
}

std::string EditorTest::WritePicture(const std::string& name, int width, int height, uint8_t grey)
{
    const std::string path = std::filesystem::absolute(std::filesystem::exists("Image") ? "Image/" + name : name);
    BmpFile(width, height, grey).Write(path);
    return path;
}

void EditorTest::SetUp()
{
    ASSERT_TRUE(StartUp(&ProgramResources(), SW_SHOWNORMAL));
}

void EditorTest::Play()
{
    desktop.PlayInput();
    PresentFrame();
}

void EditorTest::Run(WORD command)
{
    desktop.ClickButton(command);
    Play();
}

void EditorTest::Insert(WORD command, const std::string& text)
{
    desktop.OnDialog([text](platform::DialogDriver& dialog) {
        dialog.SetText(WordTextField, text);
        dialog.Press(ConfirmButton);
    });
    Run(command);
}

int EditorTest::RunToTheEnd()
{
    int exitStatus = 0;
    while (!shell.quit && TurnMainLoop(exitStatus)) { }
    return exitStatus;
}

PictureObject& EditorTest::AddPicture(vec pos, vec size)
{
    const std::string name = "p" + std::to_string(size.x) + "x" + std::to_string(size.y) + ".bmp";
    WritePicture(name, size.x, size.y);
    auto picture = std::make_unique<PictureObject>();
    PictureObject& added = *picture;
    picture->SetFileName("Image\\" + name);
    EXPECT_TRUE(picture->Load());
    picture->SetPos(pos);
    shell.document.AddPicture(std::move(picture));
    return added;
}

std::string EditorTest::LatestMessage() const
{
    if (desktop.MessageBoxes().empty())
        return {};
    return desktop.MessageBoxes().back().caption + ": " + desktop.MessageBoxes().back().text;
}

void EditorTest::MakeAllKinds()
{
    const std::string strip = WritePicture("strip.bmp", 320, 40);
    for (const WORD command : { CommandLoadPicture, CommandLoadButton, CommandLoadAnimation }) {
        desktop.AnswerFileDialog(strip);
        Run(command);
    }
    Insert(CommandInsertWord, "開始遊戲");
    Insert(CommandInsertCheckBox, "音樂");
    Run(CommandInsertSelectbox);
    for (int32_t i = 0; i < shell.document.GetObjectCount(); ++i)
        ObjectAt(i).SetPos({ 10, 10 + 80 * i });
    PresentFrame();
}
