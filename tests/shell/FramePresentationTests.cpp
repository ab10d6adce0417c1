#include "shell/FramePresentation.h"
#include "tests/shell/EditorTest.h"

#include <algorithm>

namespace {

constexpr uint32_t red = 0xFF0000;
constexpr uint32_t white = 0xFFFFFF;

class FramePresentation : public EditorTest {
protected:
    // Whether the status panel has a text on this line, counted from 1.
    bool HasLine(int number) const
    {
        for (int y = 380 + 20 * number; y < 400 + 20 * number; ++y)
            for (int x = 810; x < 1000; ++x)
                if (desktop.Pixel(x, y) != white)
                    return true;
        return false;
    }
};

TEST_F(FramePresentation, FitsASelectedObjectAndOutlinesItsVisiblePartOnTheInside)
{
    AddPicture({ 100, 580 }, { 40, 30 });
    shell.editing.SelectOnly(5, { 0, 0 }); // names no object
    shell.editing.AddToSelection(0, { 100, 580 });
    PresentFrame();
    for (const POINT inside :
        { POINT { 100, 580 }, { 139, 580 }, { 100, 599 }, { 139, 599 }, { 120, 580 }, { 100, 590 } })
        EXPECT_EQ(desktop.Pixel(inside.x, inside.y), red) << inside.x << "," << inside.y;
    for (const POINT outside : { POINT { 99, 580 }, { 140, 599 }, { 120, 579 }, { 101, 581 }, { 138, 598 } })
        EXPECT_NE(desktop.Pixel(outside.x, outside.y), red) << outside.x << "," << outside.y;

    const uint16_t* frame = shell.lastFrame;
    EXPECT_TRUE(std::none_of(frame, frame + 800 * 600, [](uint16_t pixel) { return pixel == 0x7C00; }));
}

TEST_F(FramePresentation, TellsThreeMoreLinesOnceAnObjectIsCurrent)
{
    PresentFrame();
    EXPECT_TRUE(HasLine(2) && !HasLine(3));
    AddPicture({ 0, 0 }, { 40, 30 });
    desktop.MoveTo(5, 5);
    Play();
    EXPECT_TRUE(HasLine(5) && !HasLine(6));
}

} // namespace
