#include "platform/DesktopEvents.h"
#include "tests/platform/windows/WindowProgram.h"

#include <algorithm>
#include <tuple>

namespace {

class Messages : public WindowProgram { };

TEST_F(Messages, ComeInOrderAndAQuitRequestLast)
{
    HWND window = OpenWindow();
    PostQuitMessage(16);
    PostMessageA(window, WM_COMMAND, 5, 0);
    PostMessageA(window, WM_COMMAND, 6, 0);
    desktop.Key(VK_LEFT);
    desktop.Press(3, 40);
    desktop.ClickButton(7); // is sent, but does not overtake what is queued
    EXPECT_EQ(Played(), (Log { "command 5", "command 6", "key 37", "press 3 40", "command 7" }));
    MSG quit;
    ASSERT_TRUE(PeekMessageA(&quit, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(quit.message, WM_QUIT);
    EXPECT_EQ(quit.wParam, 16U);
    EXPECT_FALSE(PeekMessageA(&quit, nullptr, 0, 0, PM_REMOVE));
}

TEST_F(Messages, TellADoubleClickOnlyToAClassThatAsksForIt)
{
    HWND window = OpenWindow(CS_DBLCLKS);
    desktop.DoubleClick(1, 20);
    EXPECT_EQ(Played(), (Log { "press 1 20", "release 1 20", "double 1 20", "release 1 20" }));
    window->wantsDoubleClicks = false;
    desktop.DoubleClick(1, 20);
    EXPECT_EQ(Played(), (Log { "press 1 20", "release 1 20", "press 1 20", "release 1 20" }));
}

TEST_F(Messages, FollowTheMouseOutsideAndOverButtonsOnlyWhileItIsCaptured)
{
    OpenWindow();
    for (const bool captures : { false, true }) {
        onWindowMessage = [&](HWND window, UINT message) {
            if (message == WM_LBUTTONDOWN && captures)
                SetCapture(window);
            else if (message == WM_LBUTTONUP)
                ReleaseCapture();
            return LRESULT { 0 };
        };
        desktop.Press(199, 99);
        desktop.MoveTo(19, 9); // on the button
        desktop.MoveTo(-5, 300);
        desktop.Release(-5, 300);
        desktop.MoveTo(200, 50);
        desktop.MoveTo(10, 10); // beside the button
        EXPECT_EQ(Played(),
            captures ? (Log { "press 199 99", "move 19 9", "move -5 300", "release -5 300", "move 10 10" })
                     : (Log { "press 199 99", "move 10 10" }));
        EXPECT_EQ(desktop.Capture(), nullptr);
    }
}

TEST_F(Messages, EraseWithTheClassBrushBeforeTheQueueIsServed)
{
    HWND window = OpenWindow();
    std::fill(window->surface.pixels.begin(), window->surface.pixels.end(), 0U);
    PostMessageA(window, WM_COMMAND, 5, 0);
    InvalidateRect(window, nullptr, TRUE);
    InvalidateRect(window, nullptr, TRUE);
    EXPECT_EQ(Played(), (Log { "erase", "command 5" }));
    EXPECT_EQ(desktop.Pixel(199, 99), 0xFFFFFFU);
    InvalidateRect(window, nullptr, TRUE);
    UpdateWindow(window);
    EXPECT_EQ(TakeLog(), Log { "erase" });
    InvalidateRect(window, nullptr, FALSE);
    EXPECT_EQ(Played(), Log {});
}

TEST_F(Messages, ForADestroyedWindowAreDroppedAndItsHandleIsHarmless)
{
    HWND window = OpenWindow();
    HWND button = GetDlgItem(window, 7);
    bool wasWhole = false;
    onWindowMessage = [&](HWND dying, UINT message) {
        wasWhole = wasWhole || (message == WM_DESTROY && GetDlgItem(dying, 7));
        if (message == WM_DESTROY)
            SendMessageA(dying, WM_CLOSE, 0, 0); // nobody is destroyed twice
        return LRESULT { 0 };
    };
    PostMessageA(window, WM_COMMAND, 5, 0);
    SetFocus(button);
    SetCapture(window);
    SendMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(TakeLog(), (Log { "close", "destroy", "close" }));
    EXPECT_TRUE(wasWhole);
    EXPECT_FALSE(desktop.MainWindow() || desktop.Focus() || desktop.Capture());

    for (HWND dead : { window, button, HWND {} }) {
        const MSG message { .hwnd = dead, .message = WM_CLOSE };
        RECT rectangle;
        POINT point {};
        EXPECT_EQ(DispatchMessageA(&message) | SendMessageA(dead, WM_CLOSE, 0, 0), 0);
        EXPECT_FALSE(ShowWindow(dead, SW_SHOWNORMAL) || UpdateWindow(dead) || InvalidateRect(dead, nullptr, TRUE));
        EXPECT_FALSE(GetClientRect(dead, &rectangle) || ClientToScreen(dead, &point) || SetWindowTextA(dead, "x"));
        EXPECT_FALSE(MoveWindow(dead, 0, 0, 1, 1, TRUE) || SetFocus(dead) || SetCapture(dead) || EndDialog(dead, 1));
        EXPECT_EQ(GetWindowLongA(dead, GWL_HINSTANCE), 0);
        EXPECT_FALSE(GetDlgItem(dead, 7));
    }
    EXPECT_EQ(Played(), Log {});
}

// A handler that is reached from inside the pump (a button's) must not let the next input in before it is done.
TEST_F(Messages, LetNoInputInBesidesTheOneThatIsHandled)
{
    OpenWindow();
    onWindowMessage = [](HWND, UINT message) {
        MSG next;
        EXPECT_FALSE(message == WM_COMMAND && PeekMessageA(&next, nullptr, 0, 0, PM_REMOVE));
        return LRESULT { 0 };
    };
    desktop.ClickButton(7);
    desktop.Key(VK_DELETE);
    EXPECT_EQ(Played(), (Log { "command 7", "key 46" }));
}

TEST_F(Messages, ThatAreSentKeepNobodyWaitingUnlessTheyNeverEnd)
{
    OpenWindow();
    MSG next;
    for (int i = 0; i < 100; ++i)
        desktop.ClickButton(7);
    EXPECT_FALSE(PeekMessageA(&next, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(TakeLog(), Log(100, "command 7"));

    bool goesOn = true;
    const std::function<void()> again = [&] {
        if (goesOn)
            desktop.Do(again);
    };
    desktop.Do(again);
    EXPECT_FALSE(PeekMessageA(&next, nullptr, 0, 0, PM_REMOVE));
    goesOn = false;
    desktop.Key(VK_DELETE);
    EXPECT_EQ(Played(), Log { "key 46" });
}

TEST_F(Messages, BringAMenusChoiceOnceTheMenuIsClosed)
{
    HWND window = OpenWindow();
    HMENU popup = GetSubMenu(LoadMenuA(&testResources, "Colours"), 0);
    ASSERT_TRUE(popup);
    EXPECT_FALSE(GetSubMenu(popup, 0));
    // The window hears of the pointer behind the choice, unless it lies on the button or outside.
    const std::tuple<uint32_t, POINT, Log> choices[]
        = { { 12, { 30, 40 }, { "command 12", "move 30 40", "command 7" } },
              { 0, { 31, 40 }, { "move 31 40", "command 7" } }, { 12, { 5, 5 }, { "command 12", "command 7" } },
              { 0, { -1, 40 }, { "command 7" } } };
    for (const auto& [choice, pointer, expected] : choices) {
        desktop.AnswerMenu(choice, pointer);
        EXPECT_TRUE(TrackPopupMenu(popup, TPM_RIGHTBUTTON, 70, 80, 0, window, nullptr));
        EXPECT_EQ(TakeLog(), Log {});
        desktop.ClickButton(7); // comes after all that
        EXPECT_EQ(Played(), expected);
    }
    EXPECT_EQ(Played(), Log {}); // once only
    ASSERT_EQ(desktop.Menus().size(), 4U);
    EXPECT_EQ(desktop.Menus()[0].items[0].text, "紅");
    EXPECT_EQ(desktop.Menus()[0].at.y, 80);
}

} // namespace
