#include "platform/Big5Literal.h"
#include "platform/windows/WindowTable.h"
#include "tests/platform/windows/ScriptedProgram.h"

#include <climits>

namespace {

class Windows : public ScriptedProgram { };

TEST_F(Windows, CannotBeMadeOfAnUnknownClassOrAgainstTheirOwnWill)
{
    EXPECT_FALSE(CreateWindowExA(0, "Nobody", "", 0, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
    EXPECT_FALSE(CreateWindowExA(0, "BUTTON", "", WS_CHILD, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr));
    onWindowMessage = [](HWND, UINT message) { return message == WM_CREATE ? LRESULT { -1 } : 0; };
    EXPECT_EQ(OpenWindow(), nullptr);
    EXPECT_TRUE(platform::RootWindows().empty());
    EXPECT_EQ(desktop.MainWindow(), nullptr);
}

TEST_F(Windows, ArePlacedByTheirOuterRectangle)
{
    HWND window = OpenWindow();
    EXPECT_EQ(window->place.left, 50);
    EXPECT_EQ(window->place.top, 60);
    MoveWindow(window, 100, 200, 306, 82, TRUE);
    EXPECT_EQ(TakeLog(), Log { "placed" });
    RECT client;
    ASSERT_TRUE(GetClientRect(window, &client));
    EXPECT_EQ(client.right, 300);
    EXPECT_EQ(client.bottom, 50);
    EXPECT_EQ(window->surface.pixels.size(), 300U * 50U);
    POINT corner { 1, 2 };
    ClientToScreen(window, &corner);
    EXPECT_EQ(corner.x, 104);
    EXPECT_EQ(corner.y, 231);
    EXPECT_EQ(Played(), Log { "erase" });
}

TEST_F(Windows, StayInRangeWhateverTheyAreAskedFor)
{
    HWND window = OpenWindow();
    for (const int extreme : { INT_MIN, -1, 0, INT_MAX }) {
        MoveWindow(window, extreme, extreme, extreme, extreme, FALSE);
        EXPECT_GE(window->surface.width, 0);
        POINT point { extreme, extreme };
        ClientToScreen(window, &point);
        MoveWindow(window, 0, 0, 10, extreme == INT_MAX ? 40 : extreme, FALSE);
    }
    EXPECT_EQ(window->surface.width, 4);
    EXPECT_EQ(window->surface.height, 8);
}

TEST_F(Windows, HearWhenTheUserMovesThemAndWhenTheyAreShown)
{
    HWND window = OpenWindow();
    desktop.MoveWindowTo(300, 400);
    desktop.MoveWindowTo(300, 400);
    EXPECT_EQ(Played(), Log { "placed" });
    EXPECT_EQ(window->place.bottom, 500);
    EXPECT_TRUE(ShowWindow(window, 0));
    InvalidateRect(window, nullptr, TRUE);
    EXPECT_EQ(Played(), Log { "placed" }); // what is hidden is not erased
    EXPECT_FALSE(ShowWindow(window, SW_SHOWNORMAL));
    EXPECT_TRUE(ShowWindow(window, SW_SHOWNORMAL));
    EXPECT_EQ(Played(), (Log { "placed", "erase" }));
}

TEST_F(Windows, HandOutWholeCharactersOnly)
{
    HWND window = OpenWindow();
    SetWindowTextA(window, u8"a許功"_big5);
    char text[8] = "";
    EXPECT_EQ(GetWindowTextA(window, text, 5), 3);
    EXPECT_STREQ(text, u8"a許"_big5);
    EXPECT_EQ(GetWindowTextA(window, text, 6), 5);
    EXPECT_STREQ(text, u8"a許功"_big5);
    EXPECT_EQ(GetWindowTextA(window, text, 1), 0);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(GetWindowTextA(window, text, 0), 0);
}

} // namespace
