#include "gfx/RowOps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <numeric>
#include <random>
#include <type_traits>
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
    using RowOp = SRowOps_::DrawRow_ PerDirection::*;
    template <class Op, class Source>
    Pixels Drawn(const SRowOps_& set, bool mirrored, Op op, Pixels buffer, size_t first, const Source& source,
        int count, uint8_t level) const
    {
        const auto draw = (mirrored ? set.mirrored : set.inOrder).*op;
        if constexpr (std::is_same_v<Op, RunOp>) {
            SSpritePaint_ paint;
            paint.palette = palette.data();
            paint.level = level;
            set.prepare(paint);
            draw(buffer.data() + first, source.data(), count, paint);
        } else
            draw(buffer.data() + first, source.data(), count, { .level = level, .key = source[source.size() / 2] });
        return buffer;
    }
    template <class... Arguments> bool DrawsAlike(const SRowOps_& set, const Arguments&... arguments) const
    {
        return Drawn(set, arguments...) == Drawn(plainRowOps, arguments...);
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
        ASSERT_TRUE(DrawsAlike(*set, false, &PerDirection::blendRow, all, size_t { 0 }, source, 65536, l)) << level;
        for (size_t first = 0; first < all.size(); first += runLength) {
            const Pixels target(&all[first], &all[first] + runLength);
            ASSERT_TRUE(DrawsAlike(*set, false, op, target, size_t { 0 }, RandomRun(runLength, false), runLength, l))
                << level;
        }
    }
}

// A grey has the same value in all three channels: every value of the source meets every one of the target.
TEST_P(RowOps, BlendEveryChannelByEveryPairOfLevels)
{
    const SRowOps_* set = Set();
    const auto grey = [](uint32_t value) { return static_cast<uint16_t>(value << 10 | value << 5 | value); };
    for (uint32_t index = 0; index < 256; ++index)
        palette[index] = grey(index % 32);
    for (uint8_t level = 1; set && level <= 31; ++level)
        for (uint32_t i = 0; i < 32 * 32; ++i) {
            Bytes run;
            for (uint32_t value = 0; value < 32; ++value) // by one of the eight indices that have it
                run.insert(run.end(), { static_cast<uint8_t>(32 * Random(8) + value), static_cast<uint8_t>(i / 32) });
            const Pixels target(32, grey(i % 32));
            ASSERT_TRUE(DrawsAlike(*set, false, &PerDirection::blendLevelsRun, target, size_t { 0 }, run, 32, level))
                << i;
        }
}

TEST_P(RowOps, DrawRunsAndRowsOfEveryLengthAnywhereInEitherDirection)
{
    const SRowOps_* set = Set();
    for (size_t i = 0; set && i < size_t { 140 } * 34 * 2; ++i) {
        const int count = 1 + static_cast<int>(i / 68);
        const size_t first = i / 2 % 34;
        const bool mirrored = i % 2 != 0;
        SCOPED_TRACE(testing::Message() << count << " from " << first << ", " << mirrored);
        const Pixels buffer = RandomPixels(first + static_cast<size_t>(count) + Random(40));
        for (const RunOp op : { &PerDirection::copyRun, &PerDirection::blendRun, &PerDirection::blendLevelsRun }) {
            const auto level = static_cast<uint8_t>(op == &PerDirection::copyRun ? 31 : 1 + Random(30));
            const Bytes run = RandomRun(count, op == &PerDirection::blendLevelsRun);
            ASSERT_TRUE(DrawsAlike(*set, mirrored, op, buffer, first, run, std::min(count, runLength), level));
        }
        Pixels colors = RandomPixels(static_cast<size_t>(count));
        for (uint16_t& color : colors)
            color = Random(3) == 0 ? colors[colors.size() / 2] : color;
        for (const RowOp op : { &PerDirection::copyRow, &PerDirection::blendRow, &PerDirection::copyKeyedRow,
                 &PerDirection::blendKeyedRow })
            ASSERT_TRUE(
                DrawsAlike(*set, mirrored, op, buffer, first, colors, count, static_cast<uint8_t>(1 + Random(30))));
    }
}

INSTANTIATE_TEST_SUITE_P(Sets, RowOps, testing::Values("AVX2", "AVX-512"),
    [](const auto& set) { return std::string(set.index == 0 ? "Avx2" : "Avx512"); });

} // namespace
