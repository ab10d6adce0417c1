#include "bench/gfx/SampleSprites.h"

namespace {

void EncodeSprite(benchmark::State& state)
{
    const SamplePlanes planes = PlanesOf(state);
    std::vector<uint8_t> stream(3 * planes.PixelCount());
    for (auto _ : state)
        benchmark::DoNotOptimize(SPic16Sprite_::Encode_(
            stream.data(), planes.indices.data(), planes.width, planes.height, planes.alphas.data()));
    CountPixels(state, planes.PixelCount());
}
BENCHMARK(EncodeSprite)->Apply(EverySample);

void MakeMask(benchmark::State& state)
{
    const SamplePlanes planes = PlanesOf(state);
    const SPicOwner_ sprite = MakeSprite(planes);
    std::vector<uint8_t> mask(SPic16X_::MaskSize_(sprite.get()));
    for (auto _ : state)
        benchmark::DoNotOptimize(SPic16X_::MakeMask_(sprite.get(), mask.data(), 31));
    CountPixels(state, planes.PixelCount());
}
BENCHMARK(MakeMask)->Apply(EverySample);

} // namespace
