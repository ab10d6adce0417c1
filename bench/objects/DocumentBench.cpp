#include "objects/PictureObject.h"
#include "objects/ScreenDocument.h"
#include "platform/Path.h"
#include "tests/support/BmpFile.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <system_error>

namespace {

constexpr int pictureSide = 64;

// The BMP of a disc on green ground, on disk for as long as a benchmark runs.
class DiscFile {
public:
    DiscFile()
    {
        constexpr int radius = pictureSide / 2;
        BmpFile file(pictureSide, pictureSide);
        file.palette[0] = 0x00FF00;
        for (int y = 0; y < pictureSide; ++y)
            for (int x = 0; x < pictureSide; ++x)
                if ((x - radius) * (x - radius) + (y - radius) * (y - radius) < radius * radius)
                    file.At(x, y) = static_cast<uint8_t>(100 + x);
        file.Write(path);
    }
    DiscFile(const DiscFile&) = delete;
    DiscFile& operator=(const DiscFile&) = delete;
    ~DiscFile()
    {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
    }
    std::string Name() const { return platform::CodePagePath(path).value_or(""); }

private:
    std::string path = (std::filesystem::temp_directory_path() / "bench-disc.bmp").string();
};

// Pictures all over the canvas, some hanging over an edge. False when the picture could not be loaded.
bool Fill(ScreenDocument& document, int64_t count)
{
    const DiscFile disc;
    std::mt19937 random(1);
    for (int64_t i = 0; i < count; ++i) {
        auto picture = std::make_unique<PictureObject>();
        picture->SetFileName(disc.Name());
        if (!picture->Load())
            return false;
        picture->SetPos({ static_cast<int32_t>(random() % ScreenWidth) - pictureSide / 2,
            static_cast<int32_t>(random() % ScreenHeight) - pictureSide / 2 });
        document.AddPicture(std::move(picture));
    }
    return true;
}

// Argument: the number of picture objects.
void RenderPictures(benchmark::State& state)
{
    ScreenDocument document;
    if (!Fill(document, state.range(0))) {
        state.SkipWithError("cannot load the picture");
        return;
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(document.Render());
}
BENCHMARK(RenderPictures)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

// Objects without a picture: only their bookkeeping takes time.
void FillWithUnloaded(ScreenDocument& document, int64_t count)
{
    for (int64_t i = 0; i < count; ++i)
        document.AddPicture(std::make_unique<PictureObject>());
}

// Argument: the number of objects. One goes to the top and back to the bottom.
void MoveToTheEnds(benchmark::State& state)
{
    ScreenDocument document;
    FillWithUnloaded(document, state.range(0));
    for (auto _ : state)
        for (const bool down : { false, true })
            document.MoveToEnd(0, down);
}
BENCHMARK(MoveToTheEnds)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

// The same by single steps, each of which looks for its neighbour.
void StepToTheEnds(benchmark::State& state)
{
    ScreenDocument document;
    FillWithUnloaded(document, state.range(0));
    for (auto _ : state)
        for (const bool down : { false, true })
            while (document.MoveLayer(0, down)) { }
}
BENCHMARK(StepToTheEnds)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

// Argument: the number of objects whose effects run while a frame is drawn.
void RunEffects(benchmark::State& state)
{
    ScreenDocument document;
    FillWithUnloaded(document, state.range(0));
    for (int32_t i = 0; i < document.GetObjectCount(); ++i) {
        document.GetObjects()[static_cast<size_t>(i)]->SetEffect(EffectFadeOut); // never ends
        document.StartEffect(i);
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(document.Render());
}
BENCHMARK(RunEffects)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace
