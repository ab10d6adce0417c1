#include "platform/windows/WindowPlacement.h"

#include "platform/Desktop.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace platform {

namespace {

constexpr int maxClientEdge = 4096; // pixels; a surface of that size still fits in memory easily

struct Frame {
    int side = 0;
    int above = 0;
    int width = 0;
    int height = 0;
};

Frame FrameOf(const Window& window)
{
    const SIZE size = InstalledDesktop()->FrameSize(window);
    return { size.cx / 2, size.cy - size.cx / 2, size.cx, size.cy };
}

// The start of a piece that lies in the middle of another one, moved into 0 to `limit` as far as it fits.
int Centre(int start, int extent, int pieceExtent, int limit)
{
    const int middle = AddCoordinates(start, (extent - pieceExtent) / 2);
    return std::max(0, std::min(middle, limit - pieceExtent));
}

} // namespace

int AddCoordinates(int one, int other)
{
    using Range = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<int64_t>(int64_t { one } + other, Range::min(), Range::max()));
}

RECT PlaceAt(int x, int y, int width, int height)
{
    return { x, y, AddCoordinates(x, width), AddCoordinates(y, height) };
}

void PlaceClient(Window& window, int x, int y, int width, int height)
{
    width = std::clamp(width, 0, maxClientEdge);
    height = std::clamp(height, 0, maxClientEdge);
    window.place = PlaceAt(x, y, width, height);
    const Surface& surface = window.surface;
    if (window.kind == WindowKind::TopLevel && (surface.width != width || surface.height != height))
        window.surface.Resize(width, height);
}

void PlaceOuter(Window& window, int x, int y, int width, int height)
{
    const Frame frame = FrameOf(window);
    PlaceClient(window, AddCoordinates(x, frame.side), AddCoordinates(y, frame.above),
        AddCoordinates(width, -frame.width), AddCoordinates(height, -frame.height));
}

void PlaceDialog(Window& dialog, int width, int height)
{
    const SIZE display = InstalledDesktop()->DisplaySize();
    const Frame frame = FrameOf(dialog);
    const RECT around = dialog.parent ? dialog.parent->place : RECT { 0, 0, display.cx, display.cy };
    const int outerWidth = width + frame.width;
    const int outerHeight = height + frame.height;
    PlaceOuter(dialog, Centre(around.left, around.right - around.left, outerWidth, display.cx),
        Centre(around.top, around.bottom - around.top, outerHeight, display.cy), outerWidth, outerHeight);
}

} // namespace platform
