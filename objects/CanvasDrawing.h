#pragma once

#include "gfx/Pic16X.h"
#include "objects/vec.h"

#include <cstdint>

// The two rules that every kind shares about its rectangle on the canvas. Any numbers are safe in both.

// Draws the `view` of the picture that begins at `src` so that it begins at `pos` of the canvas, cut to the picture and
// to the 800 by 600 pixels. `canvas` holds 555 pixels in rows `pitch` bytes apart, an even number. Of `alpha` the low
// byte counts. Every object draws through this. False when there is no picture or no canvas; true although the cut left
// nothing.
bool DrawOnCanvas(const SPic16X_* picture, uint16_t* canvas, int32_t pitch, vec pos, vec src, vec view, uint32_t alpha);

// The rectangle hit rule: no component of the point is negative, and it lies within `extent` of `pos`, right and bottom
// edge included.
bool CoversPoint(vec pos, vec extent, vec point);
