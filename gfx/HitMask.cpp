#include "gfx/RunCursor.h"

#include <algorithm>
#include <cstddef>

namespace {

uint32_t MaskRowBytes_(uint32_t width)
{
    return (width + 7) >> 3;
}

// Sets `count` bits from bit x on, whole bytes at once.
void SetBits_(uint8_t* row, uint32_t x, uint32_t count)
{
    const uint32_t end = x + count;
    while (x < end) {
        const uint32_t bit = x & 7;
        const uint32_t bits = std::min(8 - bit, end - x);
        row[x >> 3] |= static_cast<uint8_t>(((1U << bits) - 1) << bit);
        x += bits;
    }
}

void MarkRun_(uint8_t* row, uint32_t x, const SRunCursor_& cursor, uint32_t count, uint8_t threshold)
{
    const uint8_t* data = cursor.position;
    switch (static_cast<RunType>(cursor.runType)) {
    case RunZero:
        break;
    case RunNormal:
        SetBits_(row, x, count);
        break;
    case RunAlpha:
        for (uint32_t i = 0; i < count; ++i)
            SetBits_(row, x + i, data[2 * i + 1] >= threshold ? 1 : 0);
        break;
    case RunTrans:
        for (uint32_t i = 0; i < count; ++i)
            SetBits_(row, x + i, data[i] != cursor.keyIndex ? 1 : 0);
        break;
    }
}

} // namespace

uint32_t SPic16X_::MaskSize_(const SPic16X_* picture)
{
    return MaskRowBytes_(picture->width) * picture->height;
}

uint32_t SPic16X_::MakeMask_(const SPic16X_* picture, uint8_t* mask, uint8_t threshold)
{
    SRunCursor_ cursor(*static_cast<const SPic16Sprite_*>(picture));
    const uint32_t rowBytes = MaskRowBytes_(cursor.width);
    std::fill_n(mask, size_t { rowBytes } * cursor.height, uint8_t { 0 });
    for (uint32_t y = 0; y < cursor.height; ++y) {
        for (uint32_t x = 0; x < cursor.width;) {
            const int32_t taken = cursor.Take_(static_cast<int32_t>(cursor.width - x));
            MarkRun_(mask + size_t { rowBytes } * y, x, cursor, static_cast<uint32_t>(taken), threshold);
            cursor.Advance_(taken);
            x += static_cast<uint32_t>(taken);
        }
    }
    return 1;
}

bool SPic16X_::MaskBit_(const uint8_t* mask, uint16_t width, uint16_t x, uint16_t y)
{
    return (mask[size_t { y } * MaskRowBytes_(width) + (x >> 3)] & (1 << (x & 7))) != 0;
}
