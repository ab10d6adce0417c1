#include "platform/CodePage.h"
#include "platform/Gdi.h"
#include "platform/User.h"
#include "resources/ProgramResources.h"
#include "shell/CommandButtons.h"
#include "shell/FramePresentation.h"
#include "shell/MainLoop.h"
#include "shell/StartUp.h"
#include "tests/shell/EditorTest.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace {

// The relative luminance of a colour 0x00RRGGBB, 0 to 1.
double Luminance(uint32_t color)
{
    const auto light = [&](int shift) { return std::pow((color >> shift & 0xFF) / 255.0, 2.2); };
    return 0.2126 * light(16) + 0.7152 * light(8) + 0.0722 * light(0);
}

class StartingUp : public EditorTest {
    void SetUp() override { }
};

TEST_F(StartingUp, PutsAThousandBySixHundredPixelsInTheMiddleOfTheDisplay)
{
    struct Case {
        SIZE display, frame;
        POINT client; // the corner of the client area
    };
    for (const Case& each :
        { Case { { 1921, 1081 }, { 6, 32 }, { 463, 269 } }, Case { { 800, 480 }, { 0, 0 }, { 0, 0 } } }) {
        desktop.SetDisplaySize(each.display);
        desktop.SetFrameSize(each.frame);
        ASSERT_TRUE(StartUp(&ProgramResources(), SW_SHOWNORMAL));
        EXPECT_EQ(desktop.Screen().width, 1000);
        EXPECT_EQ(desktop.Screen().height, 600);
        EXPECT_EQ(shell.mainWindow->place.left, each.client.x);
        EXPECT_EQ(shell.mainWindow->place.top, each.client.y);
        SendMessageA(shell.mainWindow, WM_CLOSE, 0, 0);
        std::filesystem::remove("Image/Basic_background.bmp"); // it can be done without
    }
    EXPECT_EQ(LatestMessage(), "");
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
    EXPECT_GE((darkest + 0.05) / (Luminance(0x0000FF) + 0.05), 5); // the contrast of a new word, which is blue
}

TEST_F(StartingUp, EndsWithZeroWhenTheWindowCannotBeMade)
{
    WNDCLASSEXA refusing;
    refusing.lpszClassName = "Tobrik"; // the editor's own class cannot be registered then
    refusing.lpfnWndProc = [](HWND, UINT message, WPARAM, LPARAM) { return LRESULT { message == WM_CREATE ? -1 : 0 }; };
    RegisterClassExA(&refusing);
    EXPECT_EQ(RunEditor(&ProgramResources(), SW_SHOWNORMAL), 0);
    EXPECT_EQ(desktop.TickCount(), 0U); // the loop never ran
}

class MainWindow : public EditorTest { };

TEST_F(MainWindow, CanBeToldFromOtherPrograms)
{
    EXPECT_EQ(platform::Utf8FromCodePage(shell.mainWindow->text), "編輯畫面輔助器");
    EXPECT_EQ(shell.mainWindow->largeIcon->id, LargeIconId);
    EXPECT_EQ(shell.mainWindow->smallIcon->id, SmallIconId);
}

TEST_F(MainWindow, StandsPaintedOnTheDisplay)
{
    EXPECT_TRUE(shell.mainWindow->closeBox);
    EXPECT_TRUE(shell.mainWindow->visible);
    EXPECT_FALSE(shell.mainWindow->erasePending);
}

TEST_F(MainWindow, PresentsAFrameWhenItIsErasedOrMoved)
{
    HDC context = GetDC(shell.mainWindow);
    std::fill(shell.mainWindow->surface.pixels.begin(), shell.mainWindow->surface.pixels.end(), 0U);
    int drawn = desktop.TimesDrawn();
    EXPECT_EQ(SendMessageA(shell.mainWindow, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0), TRUE);
    EXPECT_EQ(desktop.TimesDrawn(), drawn + DrawingsOfAFrame);
    EXPECT_EQ(desktop.Pixel(900, 350), 0xFFFFFFU); // erased by the default handler
    ReleaseDC(shell.mainWindow, context);
    drawn = desktop.TimesDrawn();
    desktop.MoveWindowTo(5, 5);
    desktop.PlayInput();
    EXPECT_EQ(desktop.TimesDrawn(), drawn + DrawingsOfAFrame);
}

TEST_F(MainWindow, ReadsACommandFromTheLowHalfOfTheWord)
{
    SendMessageA(shell.mainWindow, WM_COMMAND, 5 << 16 | CommandInsertSelectbox, 0);
    EXPECT_EQ(shell.document.GetObjectCount(), 1);
}

TEST_F(MainWindow, HasTheFocusAfterEveryCommand)
{
    constexpr WORD unassigned[] = { 107, 108, 109, 112, 32773 };
    for (const WORD id : unassigned) {
        SetFocus(GetDlgItem(shell.mainWindow, CommandNew));
        SendMessageA(shell.mainWindow, WM_COMMAND, id, 0);
        EXPECT_EQ(desktop.Focus(), shell.mainWindow);
        EXPECT_EQ(shell.document.GetObjectCount(), 0);
    }
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
        desktop.ClickButton(CommandNew); // is sent
    EXPECT_TRUE(TurnMainLoop(status));
    EXPECT_EQ(desktop.TimesDrawn(), drawn + DrawingsOfAFrame);
    EXPECT_EQ(desktop.TickCount(), before + 100);
}

} // namespace
