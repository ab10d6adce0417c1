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
    // when the caller has read them, it moves on by Advance_ with that number, or sets `position` itself.
    int32_t Take_(int32_t wanted)
    {
        Fetch_();
        if (remaining <= wanted) [[likely]] {
            const int32_t taken = remaining;
            remaining = 0;
            return taken;
        }
        remaining -= wanted;
        return wanted;
    }

    // How many full opaque runs start here, one behind the other, with all of their pixels wanted. 0 within a run.
    int32_t FullRuns_(int32_t wanted) const
    {
        constexpr uint8_t control = RunNormal | (SPic16Sprite_::longestRun - 1);
        int32_t runs = 0;
        while (remaining == 0 && (runs + 1) * SPic16Sprite_::longestRun <= wanted
            && position[fullRunBytes * runs] == control)
            ++runs;
        return runs;
    }
    // Moves behind that many of them and returns the number of their pixels.
    int32_t SkipFullRuns_(int32_t runs)
    {
        position += fullRunBytes * runs;
        return runs * SPic16Sprite_::longestRun;
    }

    // Moves `position` over pixels of the current run.
    void Advance_(int32_t pixels) { position += BytesPerPixel_() * pixels; }

    // Over any number of runs. Nothing for counts below 1.
    void Skip_(int64_t pixels)
    {
        while (pixels > 0) {
            const int32_t taken = Take_(static_cast<int32_t>(std::min<int64_t>(pixels, SPic16Sprite_::longestRun)));
            Advance_(taken);
            pixels -= taken;
        }
    }
    void SkipRows_(int32_t rows) { Skip_(int64_t { rows } * width); }

private:
    static constexpr ptrdiff_t fullRunBytes = 1 + SPic16Sprite_::longestRun;

    ptrdiff_t BytesPerPixel_() const { return runType == RunZero ? 0 : runType == RunAlpha ? 2 : 1; }
};
