#include "bench/gfx/SampleSprites.h"
#include "gfx/Pic16.h"
#include "gfx/Pic16Key.h"

namespace {

constexpr int canvasWidth = 800;
constexpr int canvasHeight = 600;

std::vector<uint16_t> MakeCanvas()
{
    std::vector<uint16_t> canvas;
    for (uint32_t i = 0; i < canvasWidth * canvasHeight; ++i)
        canvas.push_back(static_cast<uint16_t>(i * 40503 >> 4 & 0x7FFF));
    return canvas;
}

// Draws the whole picture again and again.
void DrawWhole(benchmark::State& state, const SPic16X_* picture, uint8_t alpha)
{
    std::vector<uint16_t> canvas = MakeCanvas();
    const int32_t width = picture->width;
    const int32_t height = picture->height;
    for (auto _ : state) {
        SPic16X_::Draw_(picture, canvas.data(), 2 * canvasWidth, canvasWidth - width, canvasHeight - height, 0, 0,
            width, height, alpha, 0);
        benchmark::ClobberMemory();
    }
    CountPixels(state, static_cast<size_t>(width) * static_cast<size_t>(height));
}

template <uint8_t alpha> void DrawSprite(benchmark::State& state)
{
    const SPicOwner_ sprite = MakeSprite(PlanesOf(state));
    DrawWhole(state, sprite.get(), alpha);
}
BENCHMARK(DrawSprite<255>)->Apply(EverySample);
BENCHMARK(DrawSprite<128>)->Apply(EverySample);

void FillPixels(uint16_t* pixels, size_t count)
{
    for (size_t i = 0; i < count; ++i)
        pixels[i] = static_cast<uint16_t>(i * 1103 & 0x7FFF);
}

template <uint8_t alpha> void DrawPlainPicture(benchmark::State& state)
{
    SPic16_* picture = SPic16_::New_(256, 256);
    const SPicOwner_ owner(picture);
    FillPixels(picture->Pixels_(), picture->PixelCount_());
    DrawWhole(state, picture, alpha);
}
BENCHMARK(DrawPlainPicture<255>);
BENCHMARK(DrawPlainPicture<128>);

// Three quarters of the picture are of the key colour, in stretches as between the strokes of a text.
template <uint8_t alpha> void DrawKeyedPicture(benchmark::State& state)
{
    SPic16Key_* picture = SPic16Key_::New_(256, 256);
    const SPicOwner_ owner(picture);
    picture->key = 0x03E0;
    FillPixels(picture->Pixels_(), picture->PixelCount_());
    for (size_t i = 0; i < picture->PixelCount_(); ++i)
        if (i * 2654435761 >> 18 & 3)
            picture->Pixels_()[i] = picture->key;
    DrawWhole(state, picture, alpha);
}
BENCHMARK(DrawKeyedPicture<255>);
BENCHMARK(DrawKeyedPicture<128>);

} // namespace
