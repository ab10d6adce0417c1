#pragma once

#include "gfx/Pic16X.h"

#include <cstddef>

// A keyed picture: as a plain one, but pixels of the key colour are not drawn.
//
//   0  kind 2 | 2  width | 4  height | 6  key | 8  pixels...
struct SPic16Key_ : SPic16X_ {
    uint16_t key;

    // Key and pixels are left for the caller. Null when memory is exhausted.
    static SPic16Key_* New_(uint16_t width, uint16_t height);

    uint16_t* Pixels_() { return reinterpret_cast<uint16_t*>(this + 1); }
    const uint16_t* Pixels_() const { return reinterpret_cast<const uint16_t*>(this + 1); }
    size_t PixelCount_() const { return size_t { width } * height; }
};
static_assert(sizeof(SPic16Key_) == 8 && alignof(SPic16Key_) == 2);
