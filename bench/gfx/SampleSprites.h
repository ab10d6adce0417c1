#pragma once

#include "gfx/Pic16Sprite.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

// The pictures that are measured: all opaque, a disc on a transparent ground, and one whose edge fades over 16 pixels.
enum class Sample { Opaque, KeyedDisc, SoftDisc };

constexpr const char* sampleNames[] = { "opaque", "keyed disc", "soft disc" };

struct SamplePlanes {
    uint16_t width;
    uint16_t height;
    std::vector<uint8_t> indices;
    std::vector<uint8_t> alphas;

    size_t PixelCount() const { return indices.size(); }
};

SamplePlanes MakePlanes(Sample sample, int width, int height);
SPicOwner_ MakeSprite(const SamplePlanes& planes);

// Nanoseconds per pixel, beside the time of one iteration.
inline void CountPixels(benchmark::State& state, size_t pixels)
{
    state.counters["per_pixel"] = benchmark::Counter(
        static_cast<double>(pixels), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// Arguments: the sample and its size.
inline void EverySample(benchmark::internal::Benchmark* benchmark)
{
    for (const int sample : { 0, 1, 2 })
        for (const auto& [width, height] : { std::pair(64, 64), { 256, 256 }, { 800, 600 } })
            benchmark->Args({ sample, width, height });
}

inline SamplePlanes PlanesOf(benchmark::State& state)
{
    state.SetLabel(sampleNames[state.range(0)]);
    return MakePlanes(
        static_cast<Sample>(state.range(0)), static_cast<int>(state.range(1)), static_cast<int>(state.range(2)));
}
