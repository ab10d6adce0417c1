#pragma once

#include "gfx/Pic16X.h"

#include <cstddef>

// A plain picture: 555 or 565 pixels, row after row from the top, no padding.
//
//   0  kind 1 | 2  width | 4  height | 6  pixels...
struct SPic16_ : SPic16X_ {
    // Pixels are left for the caller. Null when memory is exhausted.
    static SPic16_* New_(uint16_t width, uint16_t height);

    uint16_t* Pixels_() { return reinterpret_cast<uint16_t*>(this + 1); }
    const uint16_t* Pixels_() const { return reinterpret_cast<const uint16_t*>(this + 1); }
    size_t PixelCount_() const { return size_t { width } * height; }
};
static_assert(sizeof(SPic16_) == 6 && alignof(SPic16_) == 2);
