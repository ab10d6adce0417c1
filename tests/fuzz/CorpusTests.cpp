#include "tests/fuzz/FuzzTargets.h"
#include "tests/script/ScreenText.h"

#include <filesystem>
#include <gtest/gtest.h>

// Replays the folder "corpus": starting points for the fuzzer, and every input that ever failed.

namespace {

struct Target {
    const char* folder;
    void (*run)(std::string_view bytes);
};

class Corpus : public testing::TestWithParam<Target> { };

TEST_P(Corpus, IsHarmless)
{
    int inputs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(FUZZ_CORPUS "/" + std::string(GetParam().folder))) {
        SCOPED_TRACE(entry.path().filename());
        GetParam().run(ReadBytes(entry.path()));
        ++inputs;
    }
    EXPECT_GT(inputs, 0);
}

INSTANTIATE_TEST_SUITE_P(Fuzz, Corpus,
    testing::Values(Target { "script", FuzzScript }, Target { "bmp", FuzzBmp }, Target { "render", FuzzRender }),
    [](const auto& test) { return test.param.folder; });

} // namespace
