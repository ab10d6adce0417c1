#include "gfx/RunCursor.h"

void SRunCursor_::Skip_(int64_t pixels)
{
    while (pixels > 0) {
        const int32_t taken = Take_(static_cast<int32_t>(std::min<int64_t>(pixels, SPic16Sprite_::longestRun)));
        Advance_(taken);
        pixels -= taken;
    }
}

void SRunCursor_::SkipRows_(int32_t rows)
{
    Skip_(int64_t { rows } * width);
}
