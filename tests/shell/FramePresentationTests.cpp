#include "platform/Gdi.h"
#include "shell/FramePresentation.h"
#include "tests/shell/EditorTest.h"

#include <algorithm>

namespace {

constexpr uint32_t red = 0xFF0000;

class FramePresentation : public EditorTest {
protected:
    // Whether the strip beside the canvas shows these lines in the status panel and, around it, what was there before.
    bool ShowsPanel(const std::vector<std::string>& lines)
    {
        HDC context = GetDC(shell.mainWindow);
        HBRUSH before = CreateSolidBrush(RGB(1, 2, 3));
        const RECT strip { 800, 0, 1000, 600 };
        const RECT panel { 810, 400, 1000, 600 };
        FillRect(context, &strip, before);
        PresentFrame();
        const std::vector<uint32_t> presented = desktop.Screen().pixels;
        FillRect(context, &strip, before);
        FillRect(context, &panel, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        int y = 400 - 20;
        for (const std::string& line : lines)
            TextOutA(context, 810, y += 20, line.c_str(), static_cast<int>(line.size()));
        ReleaseDC(shell.mainWindow, context);
        DeleteObject(before);
        return presented == desktop.Screen().pixels;
    }
};

TEST_F(FramePresentation, OutlinesTheVisiblePartOfASelectedObjectOnTheInside)
{
    AddPicture({ 100, 580 }, { 40, 30 });
    shell.editing.SelectOnly(5, { 0, 0 }); // names no object
    shell.editing.AddToSelection(0, { 100, 580 });
    PresentFrame();
    for (const POINT inside :
        { POINT { 100, 580 }, { 139, 580 }, { 100, 599 }, { 139, 599 }, { 120, 580 }, { 120, 599 } })
        EXPECT_EQ(desktop.Pixel(inside.x, inside.y), red) << inside.x << "," << inside.y;
    for (const POINT outside : { POINT { 99, 580 }, { 140, 599 }, { 120, 579 }, { 101, 581 }, { 138, 598 } })
        EXPECT_NE(desktop.Pixel(outside.x, outside.y), red) << outside.x << "," << outside.y;

    const uint16_t* frame = shell.lastFrame;
    EXPECT_TRUE(std::none_of(frame, frame + 800 * 600, [](uint16_t pixel) { return pixel == 0x7C00; }));
}

TEST_F(FramePresentation, TellsThreeMoreLinesOnceAnObjectIsCurrent)
{
    EXPECT_TRUE(ShowsPanel({ "Mouse Pos : x = 0, y = 0", "Total Layer Number = 0" }));
    AddPicture({ 0, 0 }, { 10, 10 });
    AddPicture({ 100, 580 }, { 40, 30 }).SetPos({ 100, 580 });
    shell.editing.SetObjectCount(7);
    desktop.MoveTo(105, 590);
    Play();
    EXPECT_TRUE(ShowsPanel({ "Mouse Pos : x = 105, y = 590", "Total Layer Number = 7", "Object Layer = 1",
        "Object Position = ( 100, 580 )", "Object PicSize = ( 40, 20 )" }));
}

} // namespace
