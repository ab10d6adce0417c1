#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/ScreenDocument.h"
#include "objects/SelectboxObject.h"
#include "objects/WordObject.h"
#include "platform/Big5Literal.h"
#include "platform/Types.h"
#include "tests/support/BmpFile.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <system_error>

namespace {

std::string TwentyCharacters()
{
    return u8"編輯畫面輔助器第一個選項到第五個選項新增"_big5;
}

void RenderWord(benchmark::State& state)
{
    WordObject word;
    for (auto _ : state)
        benchmark::DoNotOptimize(word.SetText(TwentyCharacters()));
}
// One turn, with the search for the face and the drawing of the glyphs in it; only when no text came before it in the
// process: run it alone.
BENCHMARK(RenderWord)->Name("RenderWordColdFace")->Iterations(1)->Unit(benchmark::kMicrosecond);
BENCHMARK(RenderWord)->Name("RenderWordWarmFace")->Unit(benchmark::kMicrosecond);

// A current folder with the pictures of all kinds, for as long as a benchmark runs.
class PictureFolder {
public:
    PictureFolder()
    {
        std::filesystem::create_directories(folder);
        std::filesystem::current_path(folder);
        BmpFile(64, 64, 120).Write("picture.bmp");
        BmpFile(512, 64, 90).Write("strip.bmp");
        BmpFile(16, 64, 200).Write("ro_chkbox.bmp");
        BmpFile(120, 24, 220).Write("EditBox.bmp");
        BmpFile(40, 10, 60).Write("upbutton.bmp");
        BmpFile(40, 10, 60).Write("downbutton.bmp");
    }
    PictureFolder(const PictureFolder&) = delete;
    PictureFolder& operator=(const PictureFolder&) = delete;
    ~PictureFolder()
    {
        std::error_code ignored;
        std::filesystem::current_path(before, ignored);
        std::filesystem::remove_all(folder, ignored);
    }

private:
    std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "bench-object-kinds";
};

template <class Picture> std::unique_ptr<Picture> LoadedFrom(const char* file)
{
    auto picture = std::make_unique<Picture>();
    picture->SetFileName(file);
    static_cast<void>(picture->Load());
    return picture;
}

// One object of every kind.
void AddEveryKind(ScreenDocument& document)
{
    document.AddPicture(LoadedFrom<PictureObject>("picture.bmp"));
    document.AddButton(LoadedFrom<ButtonObject>("strip.bmp"));
    auto animation = LoadedFrom<AnimationObject>("strip.bmp");
    animation->Play();
    document.AddAnimation(std::move(animation));
    auto word = std::make_unique<WordObject>();
    static_cast<void>(word->SetText(TwentyCharacters()));
    document.AddWord(std::move(word));
    auto checkBox = std::make_unique<CheckBoxObject>();
    checkBox->SetLabelText(TwentyCharacters());
    static_cast<void>(checkBox->Build());
    document.AddCheckBox(std::move(checkBox));
    auto selectbox = std::make_unique<SelectboxObject>();
    selectbox->AddString(u8"第一個選項"_big5);
    static_cast<void>(selectbox->Build());
    document.AddSelectbox(std::move(selectbox));
}

// Fills the document until it has at least `count` objects, all over the canvas. False when the pictures are missing.
bool Fill(ScreenDocument& document, int64_t count)
{
    const PictureFolder pictures;
    std::mt19937 random(1);
    while (document.GetObjectCount() < count)
        AddEveryKind(document);
    for (const auto& object : document.GetObjects())
        object->SetPos({ static_cast<int32_t>(random() % ScreenWidth), static_cast<int32_t>(random() % ScreenHeight) });
    return document.GetObjects()[0]->GetSize() == vec(64, 64);
}

template <class Step> void OnFullScreen(benchmark::State& state, Step step)
{
    ScreenDocument document;
    if (!Fill(document, state.range(0))) {
        state.SkipWithError("cannot load the pictures");
        return;
    }
    state.counters["objects"] = document.GetObjectCount();
    for (auto _ : state)
        step(document);
}

// Argument: the number of objects.
void RenderEveryKind(benchmark::State& state)
{
    OnFullScreen(state, [](ScreenDocument& document) { benchmark::DoNotOptimize(document.Render()); });
}
BENCHMARK(RenderEveryKind)->Arg(600)->Unit(benchmark::kMillisecond);

void DispatchMove(benchmark::State& state)
{
    int x = 0;
    OnFullScreen(state, [&x](ScreenDocument& document) {
        x = (x + 1) % ScreenWidth;
        document.Dispatch(MsgMouseMove, 0, static_cast<uint32_t>(MAKELPARAM(x, 300)));
    });
}
BENCHMARK(DispatchMove)->Arg(1000)->Unit(benchmark::kMicrosecond);

} // namespace
