#pragma once

#include "gfx/Pic16Sprite.h"

#include <algorithm>
#include <cstddef>

// A place in a sprite's run stream. It only moves forwards, and trusts the stream to hold the pixels that are asked
// for.
struct SRunCursor_ {
    uint32_t width;
    uint32_t height;
    const uint16_t* palette;
    const uint8_t* position; // the next unread byte
    int32_t remaining = 0; // pixels left in the current run; 0: fetch the next one
    uint8_t runType = 0; // a RunType
    uint8_t keyIndex;

    // At the first pixel. The sprite must outlive the cursor.
    explicit SRunCursor_(const SPic16Sprite_& sprite)
        : width(sprite.width)
        , height(sprite.height)
        , palette(sprite.palette)
        , position(sprite.Stream_())
        , keyIndex(sprite.keyIndex)
    {
    }

    // Reads the next control byte when the current run is used up.
    void Fetch_()
    {
        if (remaining >= 1)
            return;
        remaining = (*position & 0x3F) + 1;
        runType = *position & 0xC0;
        ++position;
    }

    // Takes up to `wanted` (at least 1) pixels of one run and returns their number. Their bytes start at `position`;
    // the caller calls Advance_ with that number when it has read them.
    int32_t Take_(int32_t wanted)
    {
        Fetch_();
        const int32_t taken = std::min(wanted, remaining);
        remaining -= taken;
        return taken;
    }

    void Advance_(int32_t pixels) { position += BytesPerPixel_() * pixels; }

    // Nothing for counts below 1.
    void Skip_(int64_t pixels);
    void SkipRows_(int32_t rows);

private:
    ptrdiff_t BytesPerPixel_() const { return runType == RunZero ? 0 : runType == RunAlpha ? 2 : 1; }
};
