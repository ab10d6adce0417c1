#include "platform/scripted/ScriptedDesktop.h"
#include "script/ScriptParser.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

std::string Example()
{
    return ReadBytes(SCRIPT_CASES "/example.tobrik");
}

bool Parses(const std::string& script)
{
    const platform::ScriptedDesktop quiet;
    ScriptTokenizer tokens;
    ParsedScreen screen;
    return tokens.TokenizeText(script) && ScriptParser::ParseTokens(tokens, screen);
}

bool Parses(const std::vector<std::string>& tokens)
{
    std::string script;
    for (const auto& token : tokens)
        script += token + " ";
    return Parses(script);
}

TEST(DamagedScript, IsRefusedWhereverItIsCutShortAndHarmlessWithAnyByteChanged)
{
    const std::string example = Example();
    const size_t end = example.rfind('}');
    for (size_t i = 0; i <= end; ++i) {
        const std::string before = example.substr(0, i);
        ASSERT_FALSE(Parses(before)) << i;
        for (const char wrong : { '"', '{', ';', '/', '\0', '\xFF' })
            Parses(before + wrong + example.substr(i + 1));
    }
    EXPECT_TRUE(Parses(example.substr(0, end + 1)));
}

TEST(DamagedScript, IsRefusedWhenATokenIsLostOrDoubled)
{
    ScriptTokenizer tokens;
    ASSERT_TRUE(tokens.TokenizeText(Example()));
    std::vector<std::string> all;
    for (; tokens.Current().type != TokenType::Unknown; tokens.Next())
        all.emplace_back(tokens.Current().text);
    int accepted = 0;
    for (auto at = all.begin(); at != all.end(); ++at) {
        std::vector<std::string> lost(all.begin(), at);
        auto doubled = lost;
        lost.insert(lost.end(), at + 1, all.end());
        doubled.push_back(*at);
        doubled.insert(doubled.end(), at, all.end());
        accepted += Parses(lost) + Parses(doubled);
    }
    // Lost: the closing parenthesis of one of 11 vecs, or the last option (a comma may end the list). Doubled: one of
    // 13 closing braces, which ends the screen early.
    EXPECT_EQ(accepted, 11 + 1 + 13);
}

} // namespace
