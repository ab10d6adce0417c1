#include "tests/fuzz/FuzzTargets.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

// Replays the folder "corpus": starting points for the fuzzer, and every input that ever failed.

namespace {

struct Target {
    const char* folder;
    void (*run)(std::string_view bytes);
};

TEST(FuzzCorpus, IsHarmless)
{
    for (const Target& target : { Target { "script", FuzzScript }, { "bmp", FuzzBmp }, { "render", FuzzRender } }) {
        int inputs = 0;
        for (const auto& entry : std::filesystem::directory_iterator(std::string(FUZZ_CORPUS "/") + target.folder)) {
            SCOPED_TRACE(entry.path());
            target.run(ReadBytes(entry.path()));
            ++inputs;
        }
        EXPECT_GT(inputs, 0) << target.folder;
    }
}

} // namespace
