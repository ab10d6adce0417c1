#include "gfx/BlendTab.h"
#include "gfx/DrawTask.h"
#include "gfx/RunCursor.h"

namespace {

// Pixels of one run, drawn from `row` on at the level of the whole picture.
template <bool mirrored> struct SRunDrawing_ {
    const uint16_t* palette;
    const uint8_t* data;
    int32_t count;
    uint8_t level;

    void Copy_(uint16_t* row) const
    {
        for (int32_t i = 0; i < count; ++i)
            PixelAt_<mirrored>(row, i) = palette[data[i]];
    }

    void Blend_(uint16_t* row) const
    {
        const SBlend_ blend(level);
        for (int32_t i = 0; i < count; ++i) {
            uint16_t& target = PixelAt_<mirrored>(row, i);
            target = blend(palette[data[i]], target);
        }
    }

    // The product with level 31 is the pixel's own level.
    void BlendEach_(uint16_t* row) const
    {
        const uint8_t* combined = SBlendTab_::instance.products[level];
        for (ptrdiff_t i = 0; i < count; ++i) {
            uint16_t& target = PixelAt_<mirrored>(row, i);
            target = SBlend_(combined[data[2 * i + 1]])(palette[data[2 * i]], target);
        }
    }

    void DrawUnlessKey_(uint16_t* row, uint8_t keyIndex) const
    {
        const SBlend_ blend(level);
        for (int32_t i = 0; i < count; ++i) {
            uint16_t& target = PixelAt_<mirrored>(row, i);
            if (data[i] != keyIndex)
                target = level == 31 ? palette[data[i]] : blend(palette[data[i]], target);
        }
    }
};

template <bool mirrored> void DrawRun_(uint16_t* row, const SRunCursor_& cursor, int32_t count, uint8_t level)
{
    const SRunDrawing_<mirrored> run { cursor.palette, cursor.position, count, level };
    switch (static_cast<RunType>(cursor.runType)) {
    case RunZero:
        break;
    case RunNormal:
        level == 31 ? run.Copy_(row) : run.Blend_(row);
        break;
    case RunAlpha:
        run.BlendEach_(row);
        break;
    case RunTrans:
        run.DrawUnlessKey_(row, cursor.keyIndex);
        break;
    }
}

template <bool mirrored> void DrawRows_(const SPic16Sprite_& sprite, const SDrawTask_& task)
{
    SRunCursor_ cursor(sprite);
    cursor.SkipRows_(task.firstRow);
    const int32_t rightMargin = sprite.width - task.firstColumn - task.width;
    for (int32_t row = 0; row < task.height; ++row) {
        cursor.Skip_(task.firstColumn);
        for (int32_t x = 0; x < task.width;) {
            const int32_t taken = cursor.Take_(task.width - x);
            DrawRun_<mirrored>(&PixelAt_<mirrored>(task.Row_(row), x), cursor, taken, task.level);
            cursor.Advance_(taken);
            x += taken;
        }
        cursor.Skip_(rightMargin);
    }
}

} // namespace

void DrawSprite_(const SPic16X_* picture, const SDrawTask_& task)
{
    const auto& sprite = *static_cast<const SPic16Sprite_*>(picture);
    task.mirrored ? DrawRows_<true>(sprite, task) : DrawRows_<false>(sprite, task);
}
