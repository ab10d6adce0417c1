#include "tests/platform/windows/ScriptedProgram.h"

#include <algorithm>

namespace {

class Messages : public ScriptedProgram { };

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

TEST_F(Messages, OfADestroyedWindowReachNobody)
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
    EXPECT_FALSE(desktop.MainWindow());
    EXPECT_FALSE(desktop.Focus());
    EXPECT_FALSE(desktop.Capture());

    for (HWND dead : { window, button, HWND {} }) {
        const MSG message { .hwnd = dead, .message = WM_CLOSE };
        RECT rectangle;
        POINT point {};
        EXPECT_EQ(DispatchMessageA(&message), 0);
        EXPECT_EQ(SendMessageA(dead, WM_CLOSE, 0, 0), 0);
        const bool answers[] = { ShowWindow(dead, SW_SHOWNORMAL) != FALSE, UpdateWindow(dead) != FALSE,
            InvalidateRect(dead, nullptr, TRUE) != FALSE, GetClientRect(dead, &rectangle) != FALSE,
            ClientToScreen(dead, &point) != FALSE, SetWindowTextA(dead, "x") != FALSE,
            MoveWindow(dead, 0, 0, 1, 1, TRUE) != FALSE, SetFocus(dead) != nullptr, SetCapture(dead) != nullptr,
            EndDialog(dead, 1) != FALSE };
        for (size_t call = 0; call < std::size(answers); ++call)
            EXPECT_FALSE(answers[call]) << "call " << call;
        EXPECT_EQ(GetWindowLongA(dead, GWL_HINSTANCE), 0);
        EXPECT_FALSE(GetDlgItem(dead, 7));
    }
    EXPECT_EQ(Played(), Log {});
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

} // namespace
