#include "gfx/BlendTab.h"
#include "gfx/RowOps.h"

#include <cstring>

namespace {

// Source pixel i of a row, counted in the order in which they land.
template <bool mirrored> ptrdiff_t At_(ptrdiff_t i, ptrdiff_t count)
{
    return mirrored ? count - 1 - i : i;
}

// `colors` is not used: the palette serves as it is.
void ScalePalette_(SSpritePaint_& paint)
{
    if (paint.level == 31)
        return;
    const uint16_t* scaled = SBlendTab_::instance.scaled[paint.level];
    for (int i = 0; i < 256; ++i)
        paint.scaled[i] = scaled[paint.palette[i]];
}

template <bool mirrored> void CopyRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    for (int32_t i = 0; i < count; ++i)
        row[i] = paint.palette[data[At_<mirrored>(i, count)]];
}

template <bool mirrored> void BlendRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    const uint16_t* ofDestination = SBlendTab_::instance.scaled[31 - paint.level];
    for (int32_t i = 0; i < count; ++i)
        row[i] = static_cast<uint16_t>(paint.scaled[data[At_<mirrored>(i, count)]] + ofDestination[row[i]]);
}

// The product with level 31 is the pixel's own level.
template <bool mirrored>
void BlendLevelsRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    const uint8_t* combined = SBlendTab_::instance.products[paint.level];
    for (int32_t i = 0; i < count; ++i) {
        const uint8_t* pixel = data + 2 * At_<mirrored>(i, count);
        row[i] = SBlend_(combined[pixel[1]])(paint.palette[pixel[0]], row[i]);
    }
}

template <bool mirrored>
void CopyRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& /*paint*/)
{
    if constexpr (!mirrored)
        std::memcpy(row, colors, static_cast<size_t>(count) * sizeof *colors);
    else
        for (ptrdiff_t i = 0; i < count; ++i)
            row[i] = colors[At_<mirrored>(i, count)];
}

template <bool mirrored> void BlendRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    const SBlend_ blend(paint.level);
    for (ptrdiff_t i = 0; i < count; ++i)
        row[i] = blend(colors[At_<mirrored>(i, count)], row[i]);
}

// Chooses a value instead of branching, so that the compiler handles many pixels at a time.
template <bool mirrored>
void CopyKeyedRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    for (ptrdiff_t i = 0; i < count; ++i) {
        const uint16_t color = colors[At_<mirrored>(i, count)];
        row[i] = color == paint.key ? row[i] : color;
    }
}

template <bool mirrored>
void BlendKeyedRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    const SBlend_ blend(paint.level);
    for (ptrdiff_t i = 0; i < count; ++i) {
        const uint16_t color = colors[At_<mirrored>(i, count)];
        if (color != paint.key)
            row[i] = blend(color, row[i]);
    }
}

template <bool mirrored>
constexpr SRowOps_::SPerDirection_ ops {
    .copyRun = CopyRun_<mirrored>,
    .blendRun = BlendRun_<mirrored>,
    .blendLevelsRun = BlendLevelsRun_<mirrored>,
    .copyRow = CopyRow_<mirrored>,
    .blendRow = BlendRow_<mirrored>,
    .copyKeyedRow = CopyKeyedRow_<mirrored>,
    .blendKeyedRow = BlendKeyedRow_<mirrored>,
};

} // namespace

constinit const SRowOps_ plainRowOps {
    .name = "plain",
    .prepare = ScalePalette_,
    .inOrder = ops<false>,
    .mirrored = ops<true>,
    .copyFullRuns = RunByRun_<CopyRun_<false>>,
    .blendFullRuns = RunByRun_<BlendRun_<false>>,
};
