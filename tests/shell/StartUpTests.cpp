#include "platform/Big5Literal.h"
#include "platform/User.h"
#include "platform/Window.h"
#include "resources/ProgramResources.h"
#include "shell/MainLoop.h"
#include "shell/StartUp.h"
#include "tests/shell/EditorTest.h"

#include <filesystem>

namespace {

class BeforeStartUp : public EditorTest {
    void SetUp() override { }
};

TEST_F(BeforeStartUp, PutsAThousandBySixHundredPixelsInTheMiddleOfTheDisplay)
{
    struct Case {
        SIZE display, frame;
        int left, top; // of the outer rectangle
    };
    for (const Case& each : { Case { { 1921, 1080 }, { 6, 32 }, 460, 240 }, Case { { 800, 480 }, { 0, 0 }, 0, 0 } }) {
        desktop.SetDisplaySize(each.display);
        desktop.SetFrameSize(each.frame);
        ASSERT_TRUE(StartUp(&ProgramResources(), SW_SHOWNORMAL));
        const platform::Window& window = *shell.mainWindow;
        EXPECT_EQ(window.surface.width, 1000);
        EXPECT_EQ(window.surface.height, 600);
        EXPECT_EQ(window.place.left, each.left + each.frame.cx / 2);
        EXPECT_TRUE(window.visible);
        EXPECT_EQ(window.text, u8"編輯畫面輔助器"_big5);
        SendMessageA(shell.mainWindow, WM_CLOSE, 0, 0);
        shell.quit = false;
    }
}

TEST_F(BeforeStartUp, StacksTheNineCommandsBesideTheCanvas)
{
    ASSERT_TRUE(StartUp(&ProgramResources(), SW_SHOWNORMAL));
    const int ids[] = { 100, 101, 102, 103, 105, 106, 110, 111, 104 };
    ASSERT_EQ(shell.mainWindow->children.size(), std::size(ids));
    for (size_t i = 0; i < std::size(ids); ++i) {
        const platform::Window& button = *shell.mainWindow->children[i];
        EXPECT_EQ(button.id, ids[i]);
        EXPECT_EQ(button.place.left, 800);
        EXPECT_EQ(button.place.top, static_cast<int>(i) * 30);
        EXPECT_EQ(button.place.right - button.place.left, 200);
        EXPECT_EQ(button.place.bottom - button.place.top, 30);
    }
    EXPECT_STREQ(shell.mainWindow->children[8]->text.c_str(), u8"開新檔案"_big5);
}

TEST_F(BeforeStartUp, WorksWithoutTheBackgroundPicture)
{
    std::filesystem::remove("Image/Basic_background.bmp");
    ASSERT_TRUE(StartUp(&ProgramResources(), SW_SHOWNORMAL));
    AddPicture({ 10, 10 }, { 40, 30 });
    desktop.Click(20, 20);
    Play();
    EXPECT_EQ(Selected(), std::vector<int32_t> { 0 });
    EXPECT_TRUE(desktop.MessageBoxes().empty());
}

class MainLoop : public EditorTest { };

TEST_F(MainLoop, EndsWhenTheWindowIsDestroyed)
{
    desktop.Key(VK_ESCAPE);
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(desktop.MainWindow(), nullptr);
}

TEST_F(MainLoop, EndsOnAPostedCloseRequestWithTheWindowStanding)
{
    PostMessageA(shell.mainWindow, WM_CLOSE, 0, 0);
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(desktop.MainWindow(), shell.mainWindow);
    EXPECT_FALSE(shell.quit);
}

TEST_F(MainLoop, TakesTheQuitCodeOnceTheQueueIsEmpty)
{
    PostQuitMessage(16);
    PostMessageA(shell.mainWindow, WM_KEYDOWN, VK_DELETE, 0);
    AddPicture({ 0, 0 }, { 40, 30 });
    EXPECT_EQ(RunToTheEnd(), 16);
    EXPECT_EQ(shell.document.GetObjectCount(), 0);
    EXPECT_EQ(desktop.MainWindow(), shell.mainWindow);
}

TEST_F(MainLoop, PresentsFramesOnlyWhenNothingElseIsToDo)
{
    int status = 0;
    while (desktop.HasInput())
        TurnMainLoop(status);
    const uint32_t before = desktop.TickCount();
    const int drawn = desktop.TimesDrawn();
    for (int i = 0; i < 3; ++i)
        desktop.MoveTo(i, i);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(TurnMainLoop(status));
    EXPECT_EQ(desktop.TimesDrawn(), drawn);
    EXPECT_TRUE(TurnMainLoop(status));
    EXPECT_EQ(desktop.TimesDrawn(), drawn + 2); // the panel, then the canvas
    EXPECT_EQ(desktop.TickCount(), before + 100);
}

TEST_F(MainLoop, IgnoresTheSecondPressOfADoubleClick)
{
    AddPicture({ 10, 10 }, { 40, 30 });
    desktop.DoubleClick(20, 20);
    Play();
    EXPECT_EQ(Selected(), std::vector<int32_t> { 0 });
    EXPECT_FALSE(shell.editing.IsDragging());
}

} // namespace
