#include "objects/CanvasDrawing.h"

#include "objects/ScreenObject.h"

#include <algorithm>

namespace {

// One axis of a rectangle that is drawn: `length` pixels from `picture` in the picture to `canvas` on the canvas.
struct Segment {
    int64_t canvas;
    int64_t picture;
    int64_t length;
};

Segment CutSegment(Segment wanted, int64_t canvasLength, int64_t pictureLength)
{
    const int64_t first = std::max({ int64_t { 0 }, -wanted.canvas, -wanted.picture });
    const int64_t end = std::min({ wanted.length, canvasLength - wanted.canvas, pictureLength - wanted.picture });
    return { wanted.canvas + first, wanted.picture + first, end - first };
}

int32_t Narrow(int64_t value)
{
    return static_cast<int32_t>(value);
}

} // namespace

bool DrawOnCanvas(const SPic16X_* picture, uint16_t* canvas, int32_t pitch, vec pos, vec src, vec view, uint32_t alpha)
{
    if (!picture || !canvas || pitch < 1)
        return false;
    const int64_t rowPixels = std::min(ScreenWidth, pitch / int32_t { sizeof(uint16_t) });
    const Segment columns = CutSegment({ pos.x, src.x, view.x }, rowPixels, SPic16X_::Width_(picture));
    const Segment rows = CutSegment({ pos.y, src.y, view.y }, ScreenHeight, SPic16X_::Height_(picture));
    // Only the low byte of an alpha counts: a screen script may hold any number.
    if (columns.length > 0 && rows.length > 0)
        SPic16X_::Draw_(picture, canvas, pitch, Narrow(columns.canvas), Narrow(rows.canvas), Narrow(columns.picture),
            Narrow(rows.picture), Narrow(columns.length), Narrow(rows.length), static_cast<uint8_t>(alpha), 0);
    return true;
}

bool CoversPoint(vec pos, vec extent, vec point)
{
    if (point.x < 0 || point.y < 0)
        return false;
    const int64_t localX = int64_t { point.x } - pos.x;
    const int64_t localY = int64_t { point.y } - pos.y;
    return localX >= 0 && localX <= extent.x && localY >= 0 && localY <= extent.y;
}
