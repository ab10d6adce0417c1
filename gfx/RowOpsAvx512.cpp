#include "gfx/LevelTables.h"
#include "gfx/RowOps.h"

#include <immintrin.h>

// Needs AVX-512 F, BW, VL and VBMI. All look-ups stay in registers: a channel of a colour selects one of 32 words, an
// index one of 256 bytes.
//
// A register (__m512i) holds 32 words, one for each pixel, or 64 bytes; element 0 is the one at the lowest address. An
// intrinsic's name ends in the size of its elements in bits (epi16: words); _mm256_ and _mm_ instead of _mm512_ stand
// for the lower half and quarter of a register. The look-ups are
//
//   permutexvar(selectors, table)            each element is the one of the table that its selector numbers
//   permutex2var(table, selectors, more)     the same with a table of two registers
//
// and heed only as many of a selector's lowest bits as its table needs. A mask has one bit for each element: where it
// is clear, maskz_ gives 0, and a masked load or store does not touch the memory, which need not even be there.
//
// Everything here is internal to this file: an inline function that the linker could share with other files would take
// these instructions to processors that lack them.

namespace {

// ---- Channels scaled by a level -------------------------------------------------------------------------------------

__m512i Or3_(__m512i a, __m512i b, __m512i c)
{
    constexpr int truthTable = 0xFE; // of a | b | c: only three zeros give 0
    return _mm512_ternarylogic_epi32(a, b, c, truthTable);
}

// The colours whose bit 15 is clear.
__mmask32 Valid_(__m512i colors)
{
    return _mm512_testn_epi16_mask(colors, _mm512_set1_epi16(INT16_MIN));
}

// Scales 32 colours by one level. A colour with bit 15 set becomes 0.
class CScale_ {
public:
    explicit CScale_(int level)
        : red(_mm512_load_si512(levelProducts.of[level].red))
        , green(_mm512_load_si512(levelProducts.of[level].green))
        , blue(_mm512_load_si512(levelProducts.of[level].blue))
    {
    }

    // A selector's lowest five bits count, so that the channels above need not be cut off.
    __m512i operator()(__m512i colors) const
    {
        const __mmask32 valid = Valid_(colors);
        return Or3_(_mm512_maskz_permutexvar_epi16(valid, _mm512_srli_epi16(colors, 10), red),
            _mm512_maskz_permutexvar_epi16(valid, _mm512_srli_epi16(colors, 5), green),
            _mm512_maskz_permutexvar_epi16(valid, colors, blue));
    }

private:
    __m512i red; // by channel, in its place in a colour
    __m512i green;
    __m512i blue;
};

// Blends 32 colours over 32 others by one level.
struct SBlend32_ {
    CScale_ ofSource;
    CScale_ ofTarget;

    explicit SBlend32_(int level)
        : ofSource(level)
        , ofTarget(31 - level)
    {
    }
    __m512i operator()(__m512i source, __m512i target) const
    {
        return _mm512_add_epi16(ofSource(source), ofTarget(target));
    }
};

// Word `last` first, then the ones before it; before word 0 comes word 31.
__m512i Backwards_(__m512i words, ptrdiff_t last)
{
    alignas(64) static constexpr uint16_t numbers[32] { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17,
        18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31 };
    const __m512i fromLast
        = _mm512_sub_epi16(_mm512_set1_epi16(static_cast<int16_t>(last)), _mm512_load_si512(numbers));
    return _mm512_permutexvar_epi16(fromLast, words);
}

// ---- The two ends of a run ------------------------------------------------------------------------------------------

// A run is drawn without loops and masks: as its first N pixels and its last N, where N is the power of two, up to 32,
// that fits once but not more than twice. The ends may overlap, since both are read before either is written:
//
//   six pixels, N = 4    first  0 1 2 3
//                        last       2 3 4 5

// A word for each pixel of both ends. Ends of up to 16 pixels are both in `low`, the first one from word 0 on, the last
// one from word 16 on, and the words between hold anything; of 32 pixels, the last end is in `high`.
struct SEnds_ {
    __m512i low;
    __m512i high = _mm512_setzero_si512();
};

// Applies an operation on 32 words of both.
template <int N, class Operation> SEnds_ Combine_(const SEnds_& a, const SEnds_& b, Operation operation)
{
    SEnds_ result { operation(a.low, b.low) };
    if constexpr (N == 32)
        result.high = operation(a.high, b.high);
    return result;
}

// Turns each end round and exchanges the two.
template <int N> SEnds_ Mirror_(const SEnds_& ends)
{
    if constexpr (N == 32)
        return { Backwards_(ends.high, 31), Backwards_(ends.low, 31) };
    else // Word 16 + N - 1 is the last one of both; 16 words further on come those of the first end.
        return { Backwards_(ends.low, 16 + N - 1) };
}

// N bytes, a power of two up to 32; the rest of the register is not defined.
template <int N> __m256i Load_(const void* data)
{
    if constexpr (N == 32)
        return _mm256_loadu_si256(static_cast<const __m256i*>(data));
    else if constexpr (N == 16)
        return _mm256_castsi128_si256(_mm_loadu_si128(static_cast<const __m128i*>(data)));
    else if constexpr (N == 8)
        return _mm256_castsi128_si256(_mm_loadu_si64(data));
    else if constexpr (N == 4)
        return _mm256_castsi128_si256(_mm_loadu_si32(data));
    else if constexpr (N == 2)
        return _mm256_castsi128_si256(_mm_loadu_si16(data));
    else
        return _mm256_castsi128_si256(_mm_cvtsi32_si128(*static_cast<const uint8_t*>(data)));
}

// N bytes, a power of two from 2 to 32.
template <int N> void Store_(void* target, __m256i value)
{
    const __m128i low = _mm256_castsi256_si128(value);
    if constexpr (N == 32)
        _mm256_storeu_si256(static_cast<__m256i*>(target), value);
    else if constexpr (N == 16)
        _mm_storeu_si128(static_cast<__m128i*>(target), low);
    else if constexpr (N == 8)
        _mm_storeu_si64(target, low);
    else if constexpr (N == 4)
        _mm_storeu_si32(target, low);
    else
        _mm_storeu_si16(target, low);
}

__m512i Join_(__m256i low, __m256i high)
{
    return _mm512_inserti64x4(_mm512_castsi256_si512(low), high, 1);
}

template <int N> SEnds_ LoadEnds_(const void* words, int32_t count)
{
    const char* first = static_cast<const char*>(words);
    const char* last = first + ptrdiff_t { 2 } * (count - N);
    if constexpr (N == 32)
        return { _mm512_loadu_si512(first), _mm512_loadu_si512(last) };
    else
        return { Join_(Load_<2 * N>(first), Load_<2 * N>(last)) };
}

template <int N> void StoreEnds_(uint16_t* row, int32_t count, const SEnds_& ends)
{
    uint16_t* last = row + (count - N);
    if constexpr (N == 32) {
        _mm512_storeu_si512(row, ends.low);
        _mm512_storeu_si512(last, ends.high);
    } else {
        Store_<2 * N>(row, _mm512_castsi512_si256(ends.low));
        Store_<2 * N>(last, _mm512_extracti64x4_epi64(ends.low, 1));
    }
}

// Calls draw<N>() with the N that fits the count, 1 to 64.
template <class Draw> void ForSize_(int32_t count, Draw draw)
{
    if (count >= 32)
        draw.template operator()<32>();
    else if (count >= 16)
        draw.template operator()<16>();
    else if (count >= 8)
        draw.template operator()<8>();
    else if (count >= 4)
        draw.template operator()<4>();
    else if (count >= 2)
        draw.template operator()<2>();
    else
        draw.template operator()<1>();
}

// ---- Palettes as planes ---------------------------------------------------------------------------------------------

// A table of a sprite's paint holds its 256 colours as two planes: the low bytes of all, then their high bytes. A plane
// fills four registers.
using Planes_ = const uint16_t (&)[256];

const uint8_t* LowBytes_(Planes_ planes)
{
    return reinterpret_cast<const uint8_t*>(planes);
}

const uint8_t* HighBytes_(Planes_ planes)
{
    return LowBytes_(planes) + 256;
}

// Places 64 colours, given in two registers, in the planes of a table.
void StoreColors_(uint16_t (&planes)[256], int firstColor, __m512i low, __m512i high)
{
    uint8_t* const lowBytes = reinterpret_cast<uint8_t*>(planes) + firstColor;
    _mm512_store_si512(lowBytes, Join_(_mm512_cvtepi16_epi8(low), _mm512_cvtepi16_epi8(high)));
    _mm512_store_si512(lowBytes + 256,
        Join_(_mm512_cvtepi16_epi8(_mm512_srli_epi16(low, 8)), _mm512_cvtepi16_epi8(_mm512_srli_epi16(high, 8))));
}

void MakePlanes_(SSpritePaint_& paint)
{
    const CScale_ scale(paint.level);
    for (int i = 0; i < 256; i += 64) {
        const __m512i low = _mm512_loadu_si512(paint.palette + i);
        const __m512i high = _mm512_loadu_si512(paint.palette + i + 32);
        StoreColors_(paint.colors, i, low, high);
        if (paint.level != 31)
            StoreColors_(paint.scaled, i, scale(low), scale(high));
    }
}

// What 64 indices have in a plane. Two registers are a table for the lower seven bits; the highest bit, of which
// movepi8 makes a mask, tells the lower half of the plane from the upper one.
__m512i LookUp_(const uint8_t* plane, __m512i indices)
{
    const auto part = [plane](int number) { return _mm512_load_si512(plane + ptrdiff_t { 64 } * number); };
    const __m512i ofLowerHalf = _mm512_permutex2var_epi8(part(0), indices, part(1));
    const __m512i ofUpperHalf = _mm512_permutex2var_epi8(part(2), indices, part(3));
    return _mm512_mask_blend_epi8(_mm512_movepi8_mask(indices), ofLowerHalf, ofUpperHalf);
}

// ---- Runs of indices ------------------------------------------------------------------------------------------------

// Both ends, in an order that suits Colors_. A letter stands for eight indices, a capital one for some of the last end:
//
//   N = 32      loaded a b c d A B C D    result a A b B c C d D
//   N <= 16     loaded a b A B            result a . b . A . B .
template <int N> __m512i LoadIndices_(const uint8_t* data, int32_t count)
{
    const __m256i first = Load_<N>(data);
    const __m256i last = Load_<N>(data + (count - N));
    if constexpr (N == 32)
        return _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 4, 1, 5, 2, 6, 3, 7), Join_(first, last));
    const __m256i both = _mm256_inserti128_si256(first, _mm256_castsi256_si128(last), 1);
    return _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 0, 1, 1, 2, 2, 3, 3), _mm512_castsi256_si512(both));
}

// Unpacking puts the two bytes of each colour together. It works on each quarter of the register for itself:
// unpacklo takes its lower eight bytes, unpackhi the upper eight. So N = 32 gets a b c d and A B C D, and a smaller N
// gets a b A B.
template <int N, bool mirrored> SEnds_ Colors_(const uint8_t* data, int32_t count, Planes_ planes)
{
    const __m512i indices = LoadIndices_<N>(data, count);
    const __m512i lowBytes = LookUp_(LowBytes_(planes), indices);
    const __m512i highBytes = LookUp_(HighBytes_(planes), indices);
    const SEnds_ colors { _mm512_unpacklo_epi8(lowBytes, highBytes), _mm512_unpackhi_epi8(lowBytes, highBytes) };
    return mirrored ? Mirror_<N>(colors) : colors;
}

template <bool mirrored> void CopyRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    ForSize_(count, [&]<int N>() { StoreEnds_<N>(row, count, Colors_<N, mirrored>(data, count, paint.colors)); });
}

template <bool mirrored> void BlendRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    const CScale_ scale(31 - paint.level);
    const auto blend = [&](__m512i scaled, __m512i target) { return _mm512_add_epi16(scaled, scale(target)); };
    ForSize_(count, [&]<int N>() {
        const SEnds_ source = Colors_<N, mirrored>(data, count, paint.scaled);
        StoreEnds_<N>(row, count, Combine_<N>(source, LoadEnds_<N>(row, count), blend));
    });
}

// ---- Runs of indices with levels ------------------------------------------------------------------------------------

// Blends pixels, each a word with the index in its low byte and the level in its high byte, over 32 colours.
class CLevelsBlend_ {
public:
    explicit CLevelsBlend_(const SSpritePaint_& paint)
        : planes(paint.colors)
        , sourceFactors(_mm512_load_si512(levelFactors.combined[paint.level].source))
        , targetFactors(_mm512_load_si512(levelFactors.combined[paint.level].target))
    {
    }

    __m512i operator()(__m512i pixels, __m512i target) const
    {
        const __m512i level = _mm512_srli_epi16(pixels, 8);
        const SScaling_ source(ColorsOf_(pixels), level, sourceFactors);
        const SScaling_ kept(target, level, targetFactors);
        return Or3_(_mm512_slli_epi16(_mm512_add_epi16(source.Red_(), kept.Red_()), 10),
            _mm512_slli_epi16(_mm512_add_epi16(source.Green_(), kept.Green_()), 5),
            _mm512_add_epi16(source.Blue_(), kept.Blue_()));
    }

private:
    // The channels of 32 colours, each colour scaled by a factor of its own. One with bit 15 set gets the factor 0.
    struct SScaling_ {
        __m512i colors;
        __m512i factors;

        SScaling_(__m512i ofColors, __m512i level, __m512i factorsByLevel)
            : colors(ofColors)
            , factors(_mm512_maskz_permutexvar_epi16(Valid_(ofColors), level, factorsByLevel))
        {
        }
        __m512i Red_() const { return Scaled_(_mm512_srli_epi16(colors, 10)); }
        __m512i Green_() const { return Scaled_(LowestFive_(_mm512_srli_epi16(colors, 5))); }
        __m512i Blue_() const { return Scaled_(LowestFive_(colors)); }
        static __m512i LowestFive_(__m512i words) { return _mm512_and_si512(words, _mm512_set1_epi16(31)); }
        // mulhrs multiplies, divides by 32768 and rounds.
        __m512i Scaled_(__m512i channel) const { return _mm512_mulhrs_epi16(channel, factors); }
    };

    // The levels, as high bytes, select bytes of the planes too; those are left out.
    __m512i ColorsOf_(__m512i pixels) const
    {
        const __m512i lowBytes = LookUp_(LowBytes_(planes), pixels);
        const __m512i highBytes = _mm512_slli_epi16(LookUp_(HighBytes_(planes), pixels), 8);
        constexpr __mmask64 oddBytes = 0xAAAAAAAAAAAAAAAA;
        return _mm512_mask_blend_epi8(oddBytes, lowBytes, highBytes);
    }

    Planes_ planes;
    __m512i sourceFactors; // by level
    __m512i targetFactors;
};

template <bool mirrored>
void BlendLevelsRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    const CLevelsBlend_ blend(paint);
    ForSize_(count, [&]<int N>() {
        const SEnds_ stored = LoadEnds_<N>(data, count);
        const SEnds_ pixels = mirrored ? Mirror_<N>(stored) : stored;
        StoreEnds_<N>(row, count, Combine_<N>(pixels, LoadEnds_<N>(row, count), blend));
    });
}

// ---- Rows of colours ------------------------------------------------------------------------------------------------

// Up to 32 pixels of a row: those of `lanes`, the first one at `row`.
struct SBlock_ {
    __mmask32 lanes;
    uint16_t* row;
    __m512i colors; // the source, in the order in which it lands

    __m512i Target_() const { return _mm512_maskz_loadu_epi16(lanes, row); }
    void Store_(__m512i pixels) const { _mm512_mask_storeu_epi16(row, lanes, pixels); }
    void StoreUnlessKey_(__m512i pixels, __m512i keys) const
    {
        _mm512_mask_storeu_epi16(row, _mm512_mask_cmpneq_epi16_mask(lanes, colors, keys), pixels);
    }
};

template <bool mirrored, class Draw>
void ForEachBlock_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, Draw draw)
{
    for (ptrdiff_t i = 0; i < count; i += 32) {
        const ptrdiff_t length = count - i < 32 ? count - i : 32;
        const auto lanes = static_cast<__mmask32>(0xFFFFFFFFU >> (32 - length));
        const __m512i stored = _mm512_maskz_loadu_epi16(lanes, colors + (mirrored ? count - i - length : i));
        draw(SBlock_ { lanes, row + i, mirrored ? Backwards_(stored, length - 1) : stored });
    }
}

template <bool mirrored>
void CopyRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& /*paint*/)
{
    ForEachBlock_<mirrored>(row, colors, count, [](const SBlock_& block) { block.Store_(block.colors); });
}

template <bool mirrored> void BlendRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    const SBlend32_ blend(paint.level);
    ForEachBlock_<mirrored>(
        row, colors, count, [&](const SBlock_& block) { block.Store_(blend(block.colors, block.Target_())); });
}

template <bool mirrored>
void CopyKeyedRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    const __m512i keys = _mm512_set1_epi16(static_cast<int16_t>(paint.key));
    ForEachBlock_<mirrored>(
        row, colors, count, [&](const SBlock_& block) { block.StoreUnlessKey_(block.colors, keys); });
}

template <bool mirrored>
void BlendKeyedRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    const SBlend32_ blend(paint.level);
    const __m512i keys = _mm512_set1_epi16(static_cast<int16_t>(paint.key));
    ForEachBlock_<mirrored>(row, colors, count,
        [&](const SBlock_& block) { block.StoreUnlessKey_(blend(block.colors, block.Target_()), keys); });
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

constinit const SRowOps_ avx512RowOps {
    .name = "AVX-512",
    .prepare = MakePlanes_,
    .inOrder = ops<false>,
    .mirrored = ops<true>,
    .copyFullRuns = RunByRun_<CopyRun_<false>>,
    .blendFullRuns = RunByRun_<BlendRun_<false>>,
};
