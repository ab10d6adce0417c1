#include "platform/User.h"
#include "resources/ProgramResources.h"
#include "shell/FramePresentation.h"
#include "shell/MainLoop.h"
#include "shell/StartUp.h"
#include "tests/shell/EditorTest.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace {

class StartingUp : public EditorTest {
    void SetUp() override { }
};

TEST_F(StartingUp, PutsAThousandBySixHundredPixelsInTheMiddleOfTheDisplay)
{
    struct Case {
        SIZE display, frame;
        int left; // of the outer rectangle
    };
    for (const Case& each : { Case { { 1921, 1080 }, { 6, 32 }, 460 }, Case { { 800, 480 }, { 0, 0 }, 0 } }) {
        desktop.SetDisplaySize(each.display);
        desktop.SetFrameSize(each.frame);
        ASSERT_TRUE(StartUp(&ProgramResources(), SW_SHOWNORMAL));
        EXPECT_EQ(desktop.Screen().width, 1000);
        EXPECT_EQ(desktop.Screen().height, 600);
        EXPECT_EQ(shell.mainWindow->place.left, each.left + each.frame.cx / 2);
        EXPECT_EQ(GetDlgItem(shell.mainWindow, 104)->place.top, 240); // the last of the nine commands
        SendMessageA(shell.mainWindow, WM_CLOSE, 0, 0);
        std::filesystem::remove("Image/Basic_background.bmp"); // it can be done without
    }
    EXPECT_EQ(LatestMessage(), "");
}

// The luminance of a colour 0x00RRGGBB, 0 to 1.
double Luminance(uint32_t colour)
{
    const auto light = [&](int shift) { return std::pow((colour >> shift & 0xFF) / 255.0, 2.2); };
    return 0.2126 * light(16) + 0.7152 * light(8) + 0.0722 * light(0);
}

TEST_F(StartingUp, ShowsABackgroundOnWhichANewWordCanBeRead)
{
    std::filesystem::copy_file(SAMPLE_WORKSPACE "/Image/Basic_background.bmp", "Image/Basic_background.bmp",
        std::filesystem::copy_options::overwrite_existing);
    ASSERT_TRUE(StartUp(&ProgramResources(), SW_SHOWNORMAL));
    PresentFrame();
    EXPECT_NE(desktop.Pixel(799, 300), desktop.Pixel(400, 300)); // leather and paper: it is there
    double darkest = 1;
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 300; ++x)
            darkest = std::min(darkest, Luminance(desktop.Pixel(x, y)));
    EXPECT_GE((darkest + 0.05) / (Luminance(0x0000FF) + 0.05), 5);
}

class MainLoop : public EditorTest { };

TEST_F(MainLoop, EndsWhenTheWindowIsDestroyed)
{
    desktop.Key(VK_ESCAPE);
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(desktop.MainWindow(), nullptr);
}

TEST_F(MainLoop, PresentsNothingMoreOnceTheCloseBoxWasPressed)
{
    desktop.CloseBox();
    const uint32_t before = desktop.TickCount();
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(desktop.MainWindow(), nullptr);
    EXPECT_EQ(desktop.TickCount(), before); // no pause, so no frame before it
}

TEST_F(MainLoop, TakesAQuitOrCloseRequestWithTheWindowStanding)
{
    PostQuitMessage(16);
    PostMessageA(shell.mainWindow, WM_KEYDOWN, VK_DELETE, 0);
    AddPicture({ 0, 0 }, { 40, 30 });
    EXPECT_EQ(RunToTheEnd(), 16);
    EXPECT_EQ(shell.document.GetObjectCount(), 0); // the queue came first
    PostMessageA(shell.mainWindow, WM_CLOSE, 0, 0);
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(desktop.MainWindow(), shell.mainWindow);
}

TEST_F(MainLoop, PresentsFramesOnlyWhenNothingElseIsToDo)
{
    int status = 0;
    const uint32_t before = desktop.TickCount();
    const int drawn = desktop.TimesDrawn();
    for (int i = 0; i < 3; ++i)
        desktop.MoveTo(i, i);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(TurnMainLoop(status));
    EXPECT_EQ(desktop.TimesDrawn(), drawn);
    for (int i = 0; i < 50; ++i)
        desktop.ClickButton(104); // is sent
    EXPECT_TRUE(TurnMainLoop(status));
    EXPECT_EQ(desktop.TimesDrawn(), drawn + 2); // the panel, then the canvas
    EXPECT_EQ(desktop.TickCount(), before + 100);
}

} // namespace
