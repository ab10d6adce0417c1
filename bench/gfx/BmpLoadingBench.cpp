#include "bench/gfx/SampleSprites.h"
#include "tests/support/BmpFile.h"

#include <filesystem>
#include <string>

namespace {

// A picture and its companion in a folder of their own, which is the current one meanwhile.
class SampleFiles {
public:
    explicit SampleFiles(benchmark::State& state)
        : before(std::filesystem::current_path())
        , folder(std::filesystem::temp_directory_path() / "tobrik-bench")
    {
        const SamplePlanes planes = PlanesOf(state);
        std::filesystem::create_directories(folder);
        std::filesystem::current_path(folder);
        BmpFile picture(planes.width, planes.height);
        picture.indices = planes.indices;
        picture.Write("picture.bmp");
        picture.indices = planes.alphas;
        picture.Write("picturea.bmp");
    }
    SampleFiles(const SampleFiles&) = delete;
    SampleFiles& operator=(const SampleFiles&) = delete;
    ~SampleFiles()
    {
        std::filesystem::current_path(before);
        std::filesystem::remove_all(folder);
    }

private:
    std::filesystem::path before;
    std::filesystem::path folder;
};

void LoadWithCompanion(benchmark::State& state)
{
    const SampleFiles files(state);
    for (auto _ : state) {
        const SPicOwner_ picture(SPic16X_::LoadBmpAlpha_("picture.bmp", "picturea.bmp", 0, nullptr));
        if (!picture)
            state.SkipWithError("the picture does not load");
    }
}
BENCHMARK(LoadWithCompanion)->Apply(EverySample)->Unit(benchmark::kMicrosecond);

void LoadWithKey(benchmark::State& state)
{
    const SampleFiles files(state);
    for (auto _ : state) {
        const SPicOwner_ picture(SPic16X_::LoadBmpKey_("picture.bmp", 0, 255, 0, 0, nullptr, nullptr, nullptr));
        if (!picture)
            state.SkipWithError("the picture does not load");
    }
}
BENCHMARK(LoadWithKey)
    ->Args({ 0, 64, 64 })
    ->Args({ 0, 256, 256 })
    ->Args({ 0, 800, 600 })
    ->Unit(benchmark::kMicrosecond);

} // namespace
