#include "platform/User.h"
#include "shell/FramePresentation.h"
#include "tests/shell/EditorTest.h"

#include <algorithm>

namespace {

constexpr uint32_t red = 0xFF0000;
constexpr uint32_t white = 0xFFFFFF;

class FramePresentation : public EditorTest {
protected:
    // Rows of the status panel that hold ink, in steps of the line height.
    int LinesInThePanel() const
    {
        int lines = 0;
        for (int top = 400; top < 600; top += 20) {
            bool ink = false;
            for (int y = top; y < top + 20; ++y)
                for (int x = 810; x < 1000; ++x)
                    ink = ink || desktop.Pixel(x, y) != white;
            lines += ink ? 1 : 0;
        }
        return lines;
    }
};

TEST_F(FramePresentation, OutlinesASelectedObjectOnTheInsideOfItsVisiblePart)
{
    AddPicture({ 100, 50 }, { 40, 30 });
    shell.editing.SelectOnly(0, { 100, 50 });
    PresentFrame();
    for (const POINT inside : { POINT { 100, 50 }, { 139, 50 }, { 100, 79 }, { 139, 79 }, { 120, 50 }, { 100, 60 } })
        EXPECT_EQ(desktop.Pixel(inside.x, inside.y), red) << inside.x << "," << inside.y;
    for (const POINT outside : { POINT { 99, 50 }, { 140, 79 }, { 120, 80 }, { 120, 49 }, { 101, 51 } })
        EXPECT_NE(desktop.Pixel(outside.x, outside.y), red) << outside.x << "," << outside.y;

    const uint16_t* frame = shell.lastFrame;
    EXPECT_TRUE(std::none_of(frame, frame + 800 * 600, [](uint16_t pixel) { return pixel == 0x7C00; }));
}

TEST_F(FramePresentation, SkipsASelectedIndexThatNamesNoObject)
{
    shell.editing.SelectOnly(5, { 0, 0 });
    PresentFrame();
    EXPECT_NE(desktop.Pixel(0, 0), red);
}

TEST_F(FramePresentation, FitsADraggedObjectBeforeItOutlinesIt)
{
    AddPicture({ 0, 0 }, { 40, 30 });
    desktop.Drag({ 10, 10 }, { -10, 590 });
    Play();
    EXPECT_EQ(ObjectAt(0).GetPos(), vec(0, 580));
    EXPECT_EQ(ObjectAt(0).GetView(), vec(20, 20));
    EXPECT_EQ(desktop.Pixel(19, 599), red);
    EXPECT_NE(desktop.Pixel(20, 599), red);
}

TEST_F(FramePresentation, TellsThreeMoreLinesOnceAnObjectIsCurrent)
{
    PresentFrame();
    EXPECT_EQ(LinesInThePanel(), 2);
    AddPicture({ 0, 0 }, { 40, 30 });
    desktop.MoveTo(5, 5);
    Play();
    EXPECT_EQ(LinesInThePanel(), 5);
    EXPECT_EQ(desktop.Pixel(805, 450), white); // the strip beside the panel keeps the window colour
}

TEST_F(FramePresentation, LeavesThePanelOutBeforeItHasAPlace)
{
    EXPECT_TRUE(shell.editing.DrawStatusPanel());
    shell.editing.SetPanelOrigin({ 0, 0 });
    EXPECT_FALSE(shell.editing.DrawStatusPanel());
    shell.editing.SetPanelOrigin({ 810, 400 });
    shell.editing.SetWindow(nullptr);
    EXPECT_FALSE(shell.editing.DrawStatusPanel());
}

} // namespace
