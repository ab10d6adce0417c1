#pragma once

#include "gfx/Pic16X.h"

#include <cstddef>

// One call of SPic16X_::Draw_ worked out in storage order: the stored rectangle is walked forwards, the destination
// backwards where the picture is mirrored or flipped.
struct SDrawTask_ {
    int32_t firstRow; // of the stored rectangle
    int32_t firstColumn;
    int32_t width;
    int32_t height;
    uint16_t* destination; // where the first stored pixel lands
    ptrdiff_t rowStep; // bytes to where the next stored row begins
    uint8_t level; // 1 to 31
    bool mirrored; // the next stored pixel lands one pixel to the left

    uint16_t* Row_(int32_t row) const
    {
        return reinterpret_cast<uint16_t*>(reinterpret_cast<char*>(destination) + rowStep * row);
    }
    // The row's first pixel in a picture that stores its pixels uncompressed.
    template <class Picture> const uint16_t* StoredRow_(const Picture& picture, int32_t row) const
    {
        return picture.Pixels_() + (ptrdiff_t { firstRow } + row) * picture.width + firstColumn;
    }
};

// The destination of stored pixel i of a row whose first pixel lands at `row`.
template <bool mirrored> uint16_t& PixelAt_(uint16_t* row, ptrdiff_t i)
{
    return mirrored ? row[-i] : row[i];
}

// The drawing of the three kinds. The rectangles are trusted.
void DrawPlain_(const SPic16X_* picture, const SDrawTask_& task);
void DrawKeyed_(const SPic16X_* picture, const SDrawTask_& task);
void DrawSprite_(const SPic16X_* picture, const SDrawTask_& task);
