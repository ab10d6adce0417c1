#include "gfx/RowOps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <numeric>
#include <random>
#include <vector>

namespace {

using Pixels = std::vector<uint16_t>;
using Bytes = std::vector<uint8_t>;
using PerDirection = SRowOps_::SPerDirection_;

constexpr int runLength = SPic16Sprite_::longestRun;

// Compares a faster set of row operations with the plain one.
class RowOps : public testing::TestWithParam<const char*> {
protected:
    // Null, said aloud, when this processor cannot run the set.
    const SRowOps_* Set() const
    {
        const auto sets = SRowOps_::Available_();
        const auto found = std::ranges::find(sets, std::string(GetParam()), &SRowOps_::name);
        if (found != sets.end())
            return *found;
        std::cout << GetParam() << " was not compared: this processor lacks it\n";
        return nullptr;
    }

    uint32_t Random(uint32_t limit) { return static_cast<uint32_t>(random() % limit); }
    Pixels RandomPixels(size_t count)
    {
        Pixels pixels(count);
        std::ranges::generate(pixels, [&] { return static_cast<uint16_t>(Random(65536)); });
        return pixels;
    }
    // `levels`: in pairs with a level from 0 to 31.
    Bytes RandomRun(int count, bool levels)
    {
        Bytes run;
        for (int i = 0; i < count; ++i) {
            run.push_back(static_cast<uint8_t>(Random(256)));
            if (levels)
                run.push_back(static_cast<uint8_t>(Random(32)));
        }
        return run;
    }

    // What one set makes of the pixels from `first` on: all of the buffer, so that stray writes show.
    using RunOp = SRowOps_::DrawRun_ PerDirection::*;
    Pixels Drawn(const SRowOps_& set, bool mirrored, RunOp op, Pixels buffer, size_t first, const Bytes& run, int count,
        uint8_t level) const
    {
        SSpritePaint_ paint;
        paint.palette = palette.data();
        paint.level = level;
        set.prepare(paint);
        ((mirrored ? set.mirrored : set.inOrder).*op)(buffer.data() + first, run.data(), count, paint);
        return buffer;
    }
    using RowOp = SRowOps_::DrawRow_ PerDirection::*;
    static Pixels Drawn(
        const SRowOps_& set, bool mirrored, RowOp op, Pixels buffer, size_t first, const Pixels& colors, uint8_t level)
    {
        const auto count = static_cast<ptrdiff_t>(colors.size());
        const SRowPaint_ paint { .level = level, .key = colors[colors.size() / 2] };
        ((mirrored ? set.mirrored : set.inOrder).*op)(buffer.data() + first, colors.data(), count, paint);
        return buffer;
    }

    std::mt19937 random { 7 };
    Pixels palette = RandomPixels(256);
};

TEST_P(RowOps, BlendEveryPixelValueAtEveryLevel)
{
    const SRowOps_* set = Set();
    Pixels all(65536);
    std::iota(all.begin(), all.end(), uint16_t { 0 });
    for (int level = 0; set && level <= 31; ++level) {
        std::ranges::shuffle(palette, random);
        const auto l = static_cast<uint8_t>(level);
        const RunOp op = level == 31 ? &PerDirection::copyRun : &PerDirection::blendRun;
        Pixels source = all;
        std::ranges::shuffle(source, random);
        ASSERT_EQ(Drawn(*set, false, &PerDirection::blendRow, all, 0, source, l),
            Drawn(plainRowOps, false, &PerDirection::blendRow, all, 0, source, l));
        for (size_t first = 0; first < all.size(); first += runLength) {
            const Pixels target(
                all.begin() + static_cast<ptrdiff_t>(first), all.begin() + static_cast<ptrdiff_t>(first + runLength));
            const Bytes run = RandomRun(runLength, false);
            ASSERT_EQ(Drawn(*set, false, op, target, 0, run, runLength, l),
                Drawn(plainRowOps, false, op, target, 0, run, runLength, l));
        }
    }
}

// Every channel of source and target with every level of its own: so the products of the two levels are all there too.
TEST_P(RowOps, BlendEveryChannelByEveryPairOfLevels)
{
    const SRowOps_* set = Set();
    for (int level = 1; set && level <= 31; ++level)
        for (int own = 0; own < 32; ++own)
            for (uint16_t channel = 0; channel < 32; ++channel) {
                std::ranges::generate(
                    palette, [&, i = 0]() mutable { return static_cast<uint16_t>(1057 * (i++ & 31)); });
                Bytes run;
                for (int i = 0; i < 32; ++i)
                    run.insert(run.end(),
                        { static_cast<uint8_t>(32 * Random(8) + static_cast<uint32_t>(i)), static_cast<uint8_t>(own) });
                const Pixels target(32, static_cast<uint16_t>(1057 * channel));
                ASSERT_EQ(
                    Drawn(*set, false, &PerDirection::blendLevelsRun, target, 0, run, 32, static_cast<uint8_t>(level)),
                    Drawn(plainRowOps, false, &PerDirection::blendLevelsRun, target, 0, run, 32,
                        static_cast<uint8_t>(level)));
            }
}

TEST_P(RowOps, DrawRunsOfEveryLengthAnywhereInEitherDirection)
{
    const SRowOps_* set = Set();
    for (int count = 1; set && count <= runLength; ++count)
        for (size_t first = 0; first < 34; ++first)
            for (const bool mirrored : { false, true })
                for (const RunOp op :
                    { &PerDirection::copyRun, &PerDirection::blendRun, &PerDirection::blendLevelsRun }) {
                    const auto level = static_cast<uint8_t>(op == &PerDirection::copyRun ? 31 : 1 + Random(30));
                    const Bytes run = RandomRun(count, op == &PerDirection::blendLevelsRun);
                    const Pixels buffer = RandomPixels(first + static_cast<size_t>(count) + Random(40));
                    ASSERT_EQ(Drawn(*set, mirrored, op, buffer, first, run, count, level),
                        Drawn(plainRowOps, mirrored, op, buffer, first, run, count, level))
                        << count << " pixels from " << first << (mirrored ? ", mirrored" : "");
                }
}

TEST_P(RowOps, DrawRowsOfEveryLengthAnywhereInEitherDirection)
{
    const SRowOps_* set = Set();
    for (size_t count = 1; set && count <= 100; ++count)
        for (size_t first = 0; first < 34; ++first)
            for (const bool mirrored : { false, true })
                for (const RowOp op : { &PerDirection::copyRow, &PerDirection::blendRow, &PerDirection::copyKeyedRow,
                         &PerDirection::blendKeyedRow }) {
                    const auto level = static_cast<uint8_t>(1 + Random(30));
                    Pixels colors = RandomPixels(count);
                    for (uint16_t& color : colors)
                        color = Random(3) == 0 ? colors[count / 2] : color;
                    const Pixels buffer = RandomPixels(first + count + Random(40));
                    ASSERT_EQ(Drawn(*set, mirrored, op, buffer, first, colors, level),
                        Drawn(plainRowOps, mirrored, op, buffer, first, colors, level))
                        << count << " pixels from " << first << (mirrored ? ", mirrored" : "");
                }
}

INSTANTIATE_TEST_SUITE_P(Sets, RowOps, testing::Values("AVX2", "AVX-512"),
    [](const auto& set) { return std::string(set.index == 0 ? "Avx2" : "Avx512"); });

} // namespace
