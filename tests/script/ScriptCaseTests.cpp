#include "platform/headless/HeadlessDesktop.h"
#include "script/ScriptParser.h"
#include "script/ScriptWriter.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/script/ScreenText.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

// Each script in the folder "cases" has beside it what reading it gives ("NAME.txt": the result, the objects, the
// messages of the developer log) and, where that is of interest, what is written from it ("NAME.written").

namespace {

std::string CasePath(const std::string& file)
{
    return SCRIPT_CASES "/" + file;
}

std::vector<std::string> CasesWith(const std::string& extension)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(SCRIPT_CASES)) {
        if (entry.path().extension() == extension)
            names.push_back(entry.path().stem());
    }
    std::sort(names.begin(), names.end());
    return names;
}

// Writes what the script describes and returns the bytes.
std::string Rewrite(const std::string& script)
{
    const TemporaryFolder folder;
    folder.Write("in.tobrik", script);
    ScriptTokenizer tokens;
    ParsedScreen screen;
    EXPECT_TRUE(ScriptParser::Parse(tokens, "in.tobrik", screen));
    const auto objects = TakeObjects(std::move(screen));
    EXPECT_TRUE(ScriptWriter().Write({ .size = { 1000, 600 }, .objects = objects }, "out.tobrik"));
    return ReadBytes("out.tobrik");
}

class ScriptReading : public testing::TestWithParam<std::string> { };
class ScriptWriting : public testing::TestWithParam<std::string> { };

TEST_P(ScriptReading, GivesTheExpectedObjectsAndMessages)
{
    platform::HeadlessDesktop desktop;
    ScriptTokenizer tokens;
    ParsedScreen screen;
    const bool complete = ScriptParser::Parse(tokens, CasePath(GetParam() + ".tobrik"), screen);
    std::string outcome = (complete ? "true\n" : "false\n") + Describe(screen);
    for (const auto& message : desktop.DebugMessages())
        outcome += "log " + (message.text == "\n" ? "(line feed)" : message.text) + "\n";
    EXPECT_EQ(outcome, ReadBytes(CasePath(GetParam() + ".txt")));
}

TEST_P(ScriptWriting, GivesTheExpectedBytesAgainAndAgain)
{
    const std::string written = Rewrite(ReadBytes(CasePath(GetParam() + ".tobrik")));
    EXPECT_EQ(written, ReadBytes(CasePath(GetParam() + ".written")));
    EXPECT_EQ(Rewrite(written), written);
}

const auto caseName = [](const auto& test) { return test.param; };
INSTANTIATE_TEST_SUITE_P(Cases, ScriptReading, testing::ValuesIn(CasesWith(".tobrik")), caseName);
INSTANTIATE_TEST_SUITE_P(Cases, ScriptWriting, testing::ValuesIn(CasesWith(".written")), caseName);

} // namespace
