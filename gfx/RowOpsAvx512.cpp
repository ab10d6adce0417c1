#include "gfx/LevelTables.h"
#include "gfx/RowOps.h"

#include <immintrin.h>

// Needs AVX-512 F, BW, VL and VBMI. All look-ups stay in registers: a channel of a colour selects one of 32 words, an
// index one of 256 bytes.
//
// Everything here is internal to this file: an inline function that the linker could share with other files would take
// these instructions to processors that lack them.

namespace {

// ---- Channels scaled by a level -------------------------------------------------------------------------------------

__m512i Or3_(__m512i a, __m512i b, __m512i c)
{
    return _mm512_ternarylogic_epi32(a, b, c, 0xFE);
}

// Where bit 15 is clear.
__mmask32 Valid_(__m512i colors)
{
    return _mm512_testn_epi16_mask(colors, _mm512_set1_epi16(INT16_MIN));
}

// 0 to 31.
__m512i WordNumbers_()
{
    alignas(64) static constexpr uint16_t numbers[32] { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17,
        18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31 };
    return _mm512_load_si512(numbers);
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

    // A look-up takes the lowest five bits of each word.
    __m512i operator()(__m512i colors) const
    {
        const __mmask32 valid = Valid_(colors);
        return Or3_(_mm512_maskz_permutexvar_epi16(valid, _mm512_srli_epi16(colors, 10), red),
            _mm512_maskz_permutexvar_epi16(valid, _mm512_srli_epi16(colors, 5), green),
            _mm512_maskz_permutexvar_epi16(valid, colors, blue));
    }

private:
    __m512i red;
    __m512i green;
    __m512i blue;
};

struct CBlend_ {
    CScale_ ofSource;
    CScale_ ofTarget;

    explicit CBlend_(int level)
        : ofSource(level)
        , ofTarget(31 - level)
    {
    }
    __m512i operator()(__m512i source, __m512i target) const
    {
        return _mm512_add_epi16(ofSource(source), ofTarget(target));
    }
};

// ---- Two ends of a run ----------------------------------------------------------------------------------------------

// A run of N to 2N pixels (N: a power of two up to 32) is handled as its first N and its last N pixels, which may
// overlap: both are read before either is written. So no access needs a mask, and no pixel a loop.

// As words: up to 16 of the first ones in the lower half of `low` and as many of the last ones in its upper half, or
// 32 of the first ones in `low` and 32 of the last ones in `high`.
struct SEnds_ {
    __m512i low;
    __m512i high = _mm512_setzero_si512();
};

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

// ---- Runs of indices ------------------------------------------------------------------------------------------------

// Which byte of the loaded indices goes where, so that the look-up's results can be unpacked to words in their order.
struct SOrder_ {
    alignas(64) uint8_t from[64] {};

    constexpr SOrder_(int n, bool mirrored)
    {
        const int endBytes = n == 32 ? 32 : 16; // from the first indices to the last ones in the loaded register
        for (int end = 0; end < 2; ++end)
            for (int i = 0; i < n; ++i) {
                const int word = n == 32 ? i : 16 * end + i;
                const int to = word / 8 * 16 + word % 8 + (n == 32 ? 8 * end : 0);
                const int source = mirrored ? endBytes * (1 - end) + n - 1 - i : endBytes * end + i;
                from[to] = static_cast<uint8_t>(source);
            }
    }
};
template <int N, bool mirrored> constexpr SOrder_ order(N, mirrored);

template <int N, bool mirrored> __m512i LoadIndices_(const uint8_t* data, int32_t count)
{
    const __m256i first = Load_<N>(data);
    const __m256i last = Load_<N>(data + (count - N));
    const __m512i loaded = N == 32
        ? Join_(first, last)
        : _mm512_castsi256_si512(_mm256_inserti128_si256(first, _mm256_castsi256_si128(last), 1));
    return _mm512_permutexvar_epi8(_mm512_load_si512(order<N, mirrored>.from), loaded);
}

// One byte of each index's colour; the plane holds that byte of all 256.
__m512i LookUp_(const uint16_t* plane, __m512i indices)
{
    const __m512i ofLower = _mm512_permutex2var_epi8(_mm512_load_si512(plane), indices, _mm512_load_si512(plane + 32));
    const __m512i ofUpper
        = _mm512_permutex2var_epi8(_mm512_load_si512(plane + 64), indices, _mm512_load_si512(plane + 96));
    return _mm512_mask_blend_epi8(_mm512_movepi8_mask(indices), ofLower, ofUpper);
}

// Two planes: the low bytes of a palette's colours, then their high bytes.
using SPlanes_ = const uint16_t (&)[256];

template <int N, bool mirrored> SEnds_ Colors_(const uint8_t* data, int32_t count, SPlanes_ planes)
{
    const __m512i indices = LoadIndices_<N, mirrored>(data, count);
    const __m512i lowBytes = LookUp_(planes, indices);
    const __m512i highBytes = LookUp_(planes + 128, indices);
    return { _mm512_unpacklo_epi8(lowBytes, highBytes), _mm512_unpackhi_epi8(lowBytes, highBytes) };
}

struct SEvenNumbers_ {
    alignas(64) uint8_t number[64] {};

    constexpr SEvenNumbers_()
    {
        for (int i = 0; i < 64; ++i)
            number[i] = static_cast<uint8_t>(2 * i);
    }
};
constexpr SEvenNumbers_ evenNumbers;

void StorePlanes_(uint16_t* planes, int firstColor, __m512i low, __m512i high)
{
    const __m512i lowBytes = _mm512_load_si512(evenNumbers.number);
    const __m512i highBytes = _mm512_add_epi8(lowBytes, _mm512_set1_epi8(1));
    _mm512_store_si512(planes + firstColor / 2, _mm512_permutex2var_epi8(low, lowBytes, high));
    _mm512_store_si512(planes + 128 + firstColor / 2, _mm512_permutex2var_epi8(low, highBytes, high));
}

void MakePlanes_(SSpritePaint_& paint)
{
    const CScale_ scale(paint.level);
    for (int i = 0; i < 256; i += 64) {
        const __m512i low = _mm512_loadu_si512(paint.palette + i);
        const __m512i high = _mm512_loadu_si512(paint.palette + i + 32);
        StorePlanes_(paint.colors, i, low, high);
        if (paint.level != 31)
            StorePlanes_(paint.scaled, i, scale(low), scale(high));
    }
}

template <bool mirrored> void CopyRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    ForSize_(count, [&]<int N>() { StoreEnds_<N>(row, count, Colors_<N, mirrored>(data, count, paint.colors)); });
}

template <bool mirrored> void BlendRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    const CScale_ scale(31 - paint.level);
    ForSize_(count, [&]<int N>() {
        const SEnds_ source = Colors_<N, mirrored>(data, count, paint.scaled);
        const SEnds_ target = LoadEnds_<N>(row, count);
        SEnds_ result { _mm512_add_epi16(source.low, scale(target.low)) };
        if constexpr (N == 32)
            result.high = _mm512_add_epi16(source.high, scale(target.high));
        StoreEnds_<N>(row, count, result);
    });
}

// ---- Runs of indices with levels ------------------------------------------------------------------------------------

// Turns the words round and the ends too.
template <int N> SEnds_ Mirrored_(const SEnds_& ends)
{
    const __m512i fromLast = _mm512_sub_epi16(_mm512_set1_epi16(N - 1), WordNumbers_());
    if constexpr (N == 32)
        return { _mm512_permutexvar_epi16(fromLast, ends.high), _mm512_permutexvar_epi16(fromLast, ends.low) };
    else // Pixel i of the lower half comes from N - 1 - i of the upper one, and the other way round.
        return { _mm512_permutexvar_epi16(_mm512_add_epi16(fromLast, _mm512_set1_epi16(16)), ends.low) };
}

// The colour for the low byte of each word.
__m512i LookUpWords_(SPlanes_ planes, __m512i words)
{
    const __m512i highBytes = _mm512_slli_epi16(LookUp_(planes + 128, words), 8);
    return _mm512_mask_blend_epi8(0xAAAAAAAAAAAAAAAA, LookUp_(planes, words), highBytes);
}

// For each pixel its colour by its index, the low byte, and its level, the high byte.
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
        const __m512i colors = LookUpWords_(planes, pixels);
        const SSide_ source { colors, _mm512_maskz_permutexvar_epi16(Valid_(colors), level, sourceFactors) };
        const SSide_ kept { target, _mm512_maskz_permutexvar_epi16(Valid_(target), level, targetFactors) };
        return Or3_(_mm512_slli_epi16(_mm512_add_epi16(source.Red_(), kept.Red_()), 10),
            _mm512_slli_epi16(_mm512_add_epi16(source.Green_(), kept.Green_()), 5),
            _mm512_add_epi16(source.Blue_(), kept.Blue_()));
    }

private:
    // Colours with bit 15 set have the factor 0.
    struct SSide_ {
        __m512i colors;
        __m512i factors;

        __m512i Red_() const { return Scaled_(_mm512_srli_epi16(colors, 10)); }
        __m512i Green_() const
        {
            return Scaled_(_mm512_and_si512(_mm512_srli_epi16(colors, 5), _mm512_set1_epi16(31)));
        }
        __m512i Blue_() const { return Scaled_(_mm512_and_si512(colors, _mm512_set1_epi16(31))); }
        __m512i Scaled_(__m512i channel) const { return _mm512_mulhrs_epi16(channel, factors); }
    };

    SPlanes_ planes;
    __m512i sourceFactors;
    __m512i targetFactors;
};

template <bool mirrored>
void BlendLevelsRun_(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint)
{
    const CLevelsBlend_ blend(paint);
    ForSize_(count, [&]<int N>() {
        SEnds_ pixels = LoadEnds_<N>(data, count);
        if constexpr (mirrored)
            pixels = Mirrored_<N>(pixels);
        const SEnds_ target = LoadEnds_<N>(row, count);
        SEnds_ result { blend(pixels.low, target.low) };
        if constexpr (N == 32)
            result.high = blend(pixels.high, target.high);
        StoreEnds_<N>(row, count, result);
    });
}

// ---- Rows of colours ------------------------------------------------------------------------------------------------

// Up to 32 pixels of a row at a time: those of `lanes`, whose first one is at `row`.
struct SBlock_ {
    __mmask32 lanes;
    uint16_t* row;
    __m512i colors; // the source, in the order in which it lands

    __m512i Target_() const { return _mm512_maskz_loadu_epi16(lanes, row); }
    void Store_(__m512i pixels) const { _mm512_mask_storeu_epi16(row, lanes, pixels); }
    void StoreUnlessKey_(__m512i pixels, __m512i key) const
    {
        _mm512_mask_storeu_epi16(row, _mm512_mask_cmpneq_epi16_mask(lanes, colors, key), pixels);
    }
};

template <bool mirrored, class Draw>
void ForEachBlock_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, Draw draw)
{
    for (ptrdiff_t i = 0; i < count; i += 32) {
        const ptrdiff_t length = count - i < 32 ? count - i : 32;
        const auto lanes = static_cast<__mmask32>(0xFFFFFFFFU >> (32 - length));
        __m512i source = _mm512_maskz_loadu_epi16(lanes, colors + (mirrored ? count - i - length : i));
        if constexpr (mirrored) {
            const __m512i last = _mm512_set1_epi16(static_cast<int16_t>(length - 1));
            source = _mm512_permutexvar_epi16(_mm512_sub_epi16(last, WordNumbers_()), source);
        }
        draw(SBlock_ { lanes, row + i, source });
    }
}

template <bool mirrored>
void CopyRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& /*paint*/)
{
    ForEachBlock_<mirrored>(row, colors, count, [](const SBlock_& block) { block.Store_(block.colors); });
}

template <bool mirrored> void BlendRow_(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint)
{
    const CBlend_ blend(paint.level);
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
    const CBlend_ blend(paint.level);
    const __m512i keys = _mm512_set1_epi16(static_cast<int16_t>(paint.key));
    ForEachBlock_<mirrored>(row, colors, count,
        [&](const SBlock_& block) { block.StoreUnlessKey_(blend(block.colors, block.Target_()), keys); });
}

template <bool mirrored>
constexpr SRowOps_::SPerDirection_ ops { CopyRun_<mirrored>, BlendRun_<mirrored>, BlendLevelsRun_<mirrored>,
    CopyRow_<mirrored>, BlendRow_<mirrored>, CopyKeyedRow_<mirrored>, BlendKeyedRow_<mirrored> };

} // namespace

constinit const SRowOps_ avx512RowOps { "AVX-512", MakePlanes_, DrawFullRuns_<CopyRun_<false>>,
    DrawFullRuns_<BlendRun_<false>>, ops<false>, ops<true> };
