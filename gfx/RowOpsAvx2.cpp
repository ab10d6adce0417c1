#include "gfx/LevelTables.h"
#include "gfx/RowOps.h"

#include <immintrin.h>

// Needs AVX2. Channels are scaled by multiplication; a palette's colours are fetched one by one, which is faster here
// than to gather them. What is left over of 16 pixels is drawn by the plain operations.
//
// Everything here is internal to this file: an inline function that the linker could share with other files would take
// these instructions to processors that lack them.

namespace {

constexpr ptrdiff_t blockLength = 16;

// ---- Channels scaled by a level -------------------------------------------------------------------------------------

__m256i Load_(const uint16_t* words)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(words));
}

void Store_(uint16_t* words, __m256i value)
{
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(words), value);
}

// The channels of 16 colours, each colour scaled by a factor of its own. One with bit 15 set counts as black: shifting
// its sign down by 15 gives a word of ones, which clears it.
struct SScaling_ {
    __m256i colors;
    __m256i factors;

    SScaling_(__m256i ofColors, __m256i byFactors)
        : colors(_mm256_andnot_si256(_mm256_srai_epi16(ofColors, 15), ofColors))
        , factors(byFactors)
    {
    }
    // mulhrs multiplies, divides by 32768 and rounds.
    __m256i Channel_(int shift) const
    {
        const __m256i channel = _mm256_and_si256(_mm256_srli_epi16(colors, shift), _mm256_set1_epi16(31));
        return _mm256_mulhrs_epi16(channel, factors);
    }
};

__m256i Joined_(__m256i red, __m256i green, __m256i blue)
{
    return _mm256_or_si256(_mm256_or_si256(_mm256_slli_epi16(red, 10), _mm256_slli_epi16(green, 5)), blue);
}

__m256i Scaled_(const SScaling_& scaling)
{
    return Joined_(scaling.Channel_(10), scaling.Channel_(5), scaling.Channel_(0));
}

__m256i Sum_(const SScaling_& a, const SScaling_& b)
{
    const auto channel = [&](int shift) { return _mm256_add_epi16(a.Channel_(shift), b.Channel_(shift)); };
    return Joined_(channel(10), channel(5), channel(0));
}

__m256i Factor_(int level)
{
    return _mm256_set1_epi16(levelFactors.of[level]);
}

// ---- Runs of indices ------------------------------------------------------------------------------------------------

// `colors` is not used: the palette serves as it is.
void ScalePalette_(SSpritePaint_& paint)
{
    if (paint.level == 31)
        return;
    const __m256i factor = Factor_(paint.level);
    for (int i = 0; i < 256; i += blockLength)
        Store_(paint.scaled + i, Scaled_({ Load_(paint.palette + i), factor }));
}

// The pixels of a run in the order in which they land, each `bytes` long.
template <bool mirrored, int bytes> struct SRun_ {
    const uint8_t* data;
    int32_t count;

    const uint8_t* operator[](int32_t i) const { return data + ptrdiff_t { bytes } * (mirrored ? count - 1 - i : i); }

    // The table's entries for 16 pixels from i on, each selected by one byte of its pixel: 0 the index, 1 the level.
    template <class Table> __m256i LookUp_(const Table* table, int32_t i, int byte = 0) const
    {
        const auto at = [&](int32_t k) { return static_cast<int16_t>(table[(*this)[i + k][byte]]); };
        return _mm256_setr_epi16(at(0), at(1), at(2), at(3), at(4), at(5), at(6), at(7), at(8), at(9), at(10), at(11),
            at(12), at(13), at(14), at(15));
    }
    // The source of the pixels from i to the end.
    const uint8_t* Rest_(int32_t i) const { return mirrored ? data : data + ptrdiff_t { bytes } * i; }
};

template <bool mirrored> const SRowOps_::SPerDirection_& PlainOps_()
{
    return mirrored ? plainRowOps.mirrored : plainRowOps.inOrder;
}

template <bool mirrored> void CopyRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    const SRun_<mirrored, 1> run { data, count };
    int32_t i = 0;
    for (; i + blockLength <= count; i += blockLength)
        Store_(row + i, run.LookUp_(paint.palette, i));
    if (i < count)
        PlainOps_<mirrored>().copyRun(row + i, run.Rest_(i), count - i, paint);
}

template <bool mirrored> void BlendRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    const SRun_<mirrored, 1> run { data, count };
    const __m256i factor = Factor_(31 - paint.level);
    int32_t i = 0;
    for (; i + blockLength <= count; i += blockLength)
        Store_(row + i, _mm256_add_epi16(run.LookUp_(paint.scaled, i), Scaled_({ Load_(row + i), factor })));
    if (i < count)
        PlainOps_<mirrored>().blendRun(row + i, run.Rest_(i), count - i, paint);
}

template <bool mirrored>
void BlendLevelsRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    // Most runs of this type are the few pixels of a soft edge: nothing is set up for them.
    if (count < blockLength)
        return PlainOps_<mirrored>().blendLevelsRun(row, data, count, paint);
    const SRun_<mirrored, 2> run { data, count };
    const SLevelFactors_::SCombined_& factors = levelFactors.combined[paint.level];
    int32_t i = 0;
    for (; i + blockLength <= count; i += blockLength) {
        const SScaling_ source(run.LookUp_(paint.palette, i), run.LookUp_(factors.source, i, 1));
        const SScaling_ target(Load_(row + i), run.LookUp_(factors.target, i, 1));
        Store_(row + i, Sum_(source, target));
    }
    if (i < count)
        PlainOps_<mirrored>().blendLevelsRun(row + i, run.Rest_(i), count - i, paint);
}

// ---- Rows of colours ------------------------------------------------------------------------------------------------

// Within each half of the register, then the halves.
__m256i Reversed_(__m256i words)
{
    const __m256i inHalf = _mm256_setr_epi8(
        14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1, 14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1);
    return _mm256_permute4x64_epi64(_mm256_shuffle_epi8(words, inHalf), _MM_SHUFFLE(1, 0, 3, 2));
}

// Draws whole blocks by draw(row, 16 colours) and the rest by a plain operation.
template <bool mirrored, class Draw>
void DrawBlocks_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint,
    SRowOps_::DrawRow_ SRowOps_::SPerDirection_::*plainOp, Draw draw)
{
    ptrdiff_t i = 0;
    for (; i + blockLength <= count; i += blockLength) {
        if constexpr (mirrored)
            draw(row + i, Reversed_(Load_(colors + count - i - blockLength)));
        else
            draw(row + i, Load_(colors + i));
    }
    if (i < count)
        (PlainOps_<mirrored>().*plainOp)(row + i, mirrored ? colors : colors + i, count - i, paint);
}

template <bool mirrored> void CopyRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    DrawBlocks_<mirrored>(row, colors, count, paint, &SRowOps_::SPerDirection_::copyRow, Store_);
}

// Blends rows of colours by the level of the paint.
struct SRowBlend_ {
    __m256i sourceFactor;
    __m256i targetFactor;

    explicit SRowBlend_(const SRowPaint_& paint)
        : sourceFactor(Factor_(paint.level))
        , targetFactor(Factor_(31 - paint.level))
    {
    }
    __m256i operator()(__m256i source, __m256i target) const
    {
        return Sum_({ source, sourceFactor }, { target, targetFactor });
    }
};

template <bool mirrored> void BlendRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    const SRowBlend_ blend(paint);
    DrawBlocks_<mirrored>(row, colors, count, paint, &SRowOps_::SPerDirection_::blendRow,
        [&](uint16_t* target, __m256i source) { Store_(target, blend(source, Load_(target))); });
}

// Where the source has the key colour, the target's own pixel is written back.
void StoreUnlessKey_(uint16_t* target, __m256i source, const SRowPaint_& paint, __m256i result)
{
    const __m256i key = _mm256_set1_epi16(static_cast<int16_t>(paint.key));
    Store_(target, _mm256_blendv_epi8(result, Load_(target), _mm256_cmpeq_epi16(source, key)));
}

template <bool mirrored>
void CopyKeyedRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    DrawBlocks_<mirrored>(row, colors, count, paint, &SRowOps_::SPerDirection_::copyKeyedRow,
        [&](uint16_t* target, __m256i source) { StoreUnlessKey_(target, source, paint, source); });
}

template <bool mirrored>
void BlendKeyedRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    const SRowBlend_ blend(paint);
    DrawBlocks_<mirrored>(
        row, colors, count, paint, &SRowOps_::SPerDirection_::blendKeyedRow, [&](uint16_t* target, __m256i source) {
            StoreUnlessKey_(target, source, paint, blend(source, Load_(target)));
        });
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

constinit const SRowOps_ avx2RowOps {
    .name = "AVX2",
    .prepare = ScalePalette_,
    .inOrder = ops<false>,
    .mirrored = ops<true>,
    .copyFullRuns = RunByRun_<CopyRun_<false>>,
    .blendFullRuns = RunByRun_<BlendRun_<false>>,
};
