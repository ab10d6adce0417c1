#include "tests/shell/EditorTest.h"

#include "platform/User.h"
#include "resources/ProgramResources.h"
#include "shell/FramePresentation.h"
#include "shell/MainLoop.h"
#include "shell/StartUp.h"
#include "tests/support/BmpFile.h"

#include <filesystem>

EditorTest::EditorTest()
{
    std::filesystem::create_directory("Image");
    WritePicture("Basic_background.bmp", ScreenWidth, ScreenHeight);
    WritePicture("ro_chkbox.bmp", 16, 64);
    WritePicture("EditBox.bmp", 120, 20);
    WritePicture("upbutton.bmp", 10, 32);
    WritePicture("downbutton.bmp", 10, 32);
    for (const char* name : { "ro_chkbox.bmp", "EditBox.bmp", "upbutton.bmp", "downbutton.bmp" })
        std::filesystem::copy_file(std::string("Image/") + name, name);
}

void EditorTest::WritePicture(const std::string& name, int width, int height)
{
    constexpr uint8_t grey = 150;
    BmpFile(width, height, grey).Write(std::filesystem::exists("Image") ? "Image/" + name : name);
}

void EditorTest::SetUp() { ASSERT_TRUE(StartUp(&ProgramResources(), SW_SHOWNORMAL)); }

void EditorTest::Play()
{
    desktop.PlayInput();
    PresentFrame();
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

ScreenObject& EditorTest::ObjectAt(int32_t index)
{
    ScreenObject* object = nullptr;
    EXPECT_TRUE(shell.document.GetObject(index, object));
    return *object;
}

std::vector<int32_t> EditorTest::Selected() const
{
    std::vector<int32_t> indexes;
    for (size_t i = 0; i < shell.editing.GetSelectionCount(); ++i)
        indexes.push_back(shell.editing.GetSelectedIndex(i));
    return indexes;
}

std::string EditorTest::LatestMessage() const
{
    if (desktop.MessageBoxes().empty())
        return {};
    return desktop.MessageBoxes().back().caption + ": " + desktop.MessageBoxes().back().text;
}
