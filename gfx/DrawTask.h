#pragma once

#include "gfx/Pic16X.h"

#include <cstddef>

// One call of SPic16X_::Draw_ worked out in storage order: the stored rows are walked forwards, the destination's
// upwards where the picture is flipped. A mirrored row, or a piece of one, lands with its last stored pixel leftmost.
struct SDrawTask_ {
    int32_t firstRow; // of the stored rectangle
    int32_t firstColumn;
    int32_t width;
    int32_t height;
    uint16_t* destination; // the left end of where the first stored row lands
    ptrdiff_t rowStep; // bytes to where the next stored row begins
    uint8_t level; // 1 to 31
    bool mirrored;

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
