#include "tests/platform/drawing/MemoryCanvas.h"
#include "tests/platform/windows/ScriptedProgram.h"

#include <climits>

namespace {

TEST(Painting, LiesInsideItsRectangle)
{
    const HBRUSH brush = CreateSolidBrush(RGB(255, 0, 7));
    MemoryCanvas framed(8, 4);
    MemoryCanvas cut(8, 4);
    const RECT inside { 1, 0, 6, 4 };
    EXPECT_NE(FrameRect(framed.context, &inside, brush), 0);
    EXPECT_EQ(framed.Pixels(0x7C00), (Grid { ".#####..", ".#...#..", ".#...#..", ".#####.." }));
    // The last two have no width and are turned round.
    for (const RECT& frame : { RECT { INT_MIN, -5, 3, 2 }, RECT { 4, 0, 4, 4 }, RECT { 6, 3, 0, 0 } })
        FrameRect(cut.context, &frame, brush);
    for (const RECT& area : { RECT { 5, 3, INT_MAX, INT_MAX }, RECT { 4, 0, 4, 4 }, RECT { 6, 3, 0, 0 } })
        FillRect(cut.context, &area, brush);
    EXPECT_EQ(cut.Pixels(0x7C00), (Grid { "..#.....", "###.....", "........", ".....###" }));
    DeleteObject(brush);
}

class CopyingBits : public testing::Test {
protected:
    Grid Copy(int x, int y, DWORD width, DWORD height, int sourceX, int sourceY, UINT first, UINT lines)
    {
        MemoryCanvas canvas(6, 4);
        copied = SetDIBitsToDevice(
            canvas.context, x, y, width, height, sourceX, sourceY, first, lines, bits, &info, DIB_RGB_COLORS);
        return canvas.Pixels(0);
    }

    BITMAPINFO info = BitmapOf(3, -3);
    // Rows are padded to an even number of pixels.
    uint16_t bits[12] = { 'a', 'b', 'c', 0, 'd', 'e', 'f', 0, 'g', 'h', 'i', 0 };
    int copied = 0;
};

TEST_F(CopyingBits, PlacesTheSourceRectangle)
{
    EXPECT_EQ(Copy(1, 1, 3, 3, 0, 0, 0, 3), (Grid { "......", ".abc..", ".def..", ".ghi.." }));
    EXPECT_EQ(copied, 3);
    EXPECT_EQ(Copy(0, 0, 2, 1, 1, 1, 0, 3), (Grid { "ef....", "......", "......", "......" }));
    // The lines at hand begin with the second one of the bitmap.
    EXPECT_EQ(Copy(0, 0, 3, 3, 0, 0, 1, 2), (Grid { "......", "abc...", "def...", "......" }));
    EXPECT_EQ(copied, 2);
}

TEST_F(CopyingBits, CutsAtEveryEdge)
{
    EXPECT_EQ(Copy(-1, -2, 3, 3, 0, 0, 0, 3), (Grid { "hi....", "......", "......", "......" }));
    EXPECT_EQ(Copy(5, 2, UINT_MAX, UINT_MAX, 0, 0, 0, UINT_MAX), (Grid { "......", "......", ".....a", ".....d" }));
    EXPECT_EQ(Copy(3, 1, 9, 9, -1, -1, 0, 3), (Grid { "......", "......", "....ab", "....de" }));
    const Grid nothing(4, "......");
    EXPECT_EQ(Copy(INT_MAX, INT_MIN, UINT_MAX, UINT_MAX, INT_MIN, INT_MAX, UINT_MAX, UINT_MAX), nothing);
    EXPECT_EQ(Copy(INT_MIN, INT_MIN, 3, 3, 0, 0, 0, 3), nothing);
    info.bmiHeader.biHeight = 3; // rows from the bottom
    EXPECT_EQ(Copy(0, 0, 3, 3, 0, 0, 0, 3), nothing);
    EXPECT_EQ(copied, 0);
}

class WindowContext : public ScriptedProgram { };

TEST_F(WindowContext, WidensFiveBitsToEightAndIsShownWhenItIsGivenBack)
{
    const HWND window = OpenWindow();
    const int timesDrawn = desktop.TimesDrawn();
    const BITMAPINFO info = BitmapOf(2, -1);
    const uint16_t bits[] = { 0x8000 | 31 << 10 | 1 << 5 | 16, 4 << 10 | 30 << 5 };
    const HDC context = GetDC(window);
    EXPECT_EQ(SetDIBitsToDevice(context, 7, 8, 2, 1, 0, 0, 0, 1, bits, &info, DIB_RGB_COLORS), 1);
    EXPECT_EQ(desktop.Pixel(7, 8), 0x00FF0884u);
    EXPECT_EQ(desktop.Pixel(8, 8), 0x0021F700u);
    EXPECT_EQ(ReleaseDC(nullptr, context), 0);
    EXPECT_EQ(ReleaseDC(window, context), 1);
    EXPECT_EQ(desktop.TimesDrawn(), timesDrawn + 1);
}

TEST_F(WindowContext, DrawsNowhereOnceItsWindowIsGone)
{
    const HWND window = OpenWindow();
    const HDC context = GetDC(window);
    SendMessageA(window, WM_CLOSE, 0, 0);
    const int timesDrawn = desktop.TimesDrawn();
    const RECT area { 0, 0, 9, 9 };
    FillRect(context, &area, GetSysColorBrush(COLOR_WINDOW));
    EXPECT_TRUE(TextOutA(context, 0, 0, "abc", 3));
    EXPECT_EQ(ReleaseDC(window, context), 1);
    EXPECT_EQ(desktop.TimesDrawn(), timesDrawn);
    EXPECT_FALSE(GetDC(window));
}

TEST(Objects, ComeBackWhenAnotherOneOfTheirKindIsSelected)
{
    const HDC context = CreateCompatibleDC(nullptr);
    const HFONT font = CreateFontA(14, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 3, 2, nullptr);
    const HGDIOBJ defaultFont = SelectObject(context, font);
    ASSERT_NE(defaultFont, nullptr);
    EXPECT_FALSE(DeleteObject(font)) << "a selected object stays";
    EXPECT_EQ(SelectObject(context, defaultFont), font);
    EXPECT_TRUE(DeleteObject(font));
    EXPECT_TRUE(DeleteObject(defaultFont)) << "one of the system's: nothing happens";
    EXPECT_TRUE(DeleteDC(context));
}

TEST(Objects, BitmapsOfOtherFormsOrUnbearableSizesAreRefused)
{
    const auto make = [](const BITMAPINFO& info) {
        void* bits = nullptr;
        return DeleteObject(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)) && bits;
    };
    EXPECT_TRUE(make(BitmapOf(3, -2)));
    for (const BITMAPINFO& bad : { BitmapOf(3, 2), BitmapOf(3, -2, 24), BitmapOf(0, -2), BitmapOf(-3, -2),
             BitmapOf(INT_MAX, INT_MIN), BitmapOf(INT_MAX, -INT_MAX) })
        EXPECT_FALSE(make(bad)) << bad.bmiHeader.biWidth << ' ' << bad.bmiHeader.biHeight;
    EXPECT_FALSE(make(BitmapOf(65536, -65536)));
}

} // namespace
