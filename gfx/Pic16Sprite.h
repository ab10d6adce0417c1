#pragma once

#include "gfx/Pic16X.h"

// A compressed sprite: palette indices in runs, each transparent, opaque or with a level of its own per pixel.
//
//   0  kind 7 | 2  width | 4  height | 6  key index | 7  reserved | 8  palette, 256 colours | 520  run stream...
//
// The stream holds width * height pixels in row order; a run may go on into the next row. It starts with a control
// byte: the type in bits 7 and 6, the number of pixels (1 to 64) minus 1 in the others. Then follow, for each pixel:
//
//   00  zero    nothing; transparent
//   40  normal  index; opaque
//   80  alpha   index, level; blended with the level, 0 to 31
//   C0  trans   index; transparent where it is the key index, else opaque
enum RunType : uint8_t { RunZero = 0x00, RunNormal = 0x40, RunAlpha = 0x80, RunTrans = 0xC0 };

struct SPic16Sprite_ : SPic16X_ {
    static constexpr uint32_t headBytes = 520;
    static constexpr int32_t longestRun = 64;

    uint8_t keyIndex;
    uint8_t reserved;
    uint16_t palette[256];

    // A working sprite with room for the longest stream, 3 bytes a pixel. Key index, palette and stream are left for
    // the caller. Null when memory is exhausted.
    static SPic16Sprite_* New_(uint16_t width, uint16_t height);
    // Room for a finished stream of that length; only the kind is set.
    static SPic16Sprite_* NewSized_(uint32_t streamBytes);

    // In gfx/SpriteEncoding.cpp. Writes the stream of the two planes of width * height bytes (palette indices; alpha 0
    // to 255). Makes alpha runs with levels 1 to 30 and no trans runs. Returns its length, 0 for a null buffer or index
    // plane and without pixels.
    static uint32_t Encode_(
        uint8_t* stream, const uint8_t* indices, uint16_t width, uint16_t height, const uint8_t* alphas);

    // Cuts both planes, in place, and the sprite's size to the rectangle around the pixels with an alpha of 8 or more;
    // its left and top edge go to the offsets. Without such pixels the size becomes 0 by 0 and nothing else changes.
    static void Trim_(SPic16Sprite_* sprite, uint8_t* indices, uint8_t* alphas, uint16_t* left, uint16_t* top);

    uint8_t* Stream_() { return reinterpret_cast<uint8_t*>(this + 1); }
    const uint8_t* Stream_() const { return reinterpret_cast<const uint8_t*>(this + 1); }
};
static_assert(sizeof(SPic16Sprite_) == SPic16Sprite_::headBytes && alignof(SPic16Sprite_) == 2);
