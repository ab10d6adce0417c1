#include "platform/headless/HeadlessDesktop.h"
#include "script/ScriptParser.h"
#include "tests/script/ScreenText.h"

#include <gtest/gtest.h>
#include <random>
#include <utility>

namespace {

std::string Example()
{
    return ReadBytes(SCRIPT_CASES "/example.tobrik");
}

bool Parses(const std::string& script)
{
    const platform::HeadlessDesktop quiet;
    ScriptTokenizer tokens;
    ParsedScreen screen;
    return tokens.TokenizeText(script) && ScriptParser::ParseTokens(tokens, screen);
}

std::string Join(const std::vector<std::string>& tokens)
{
    std::string script;
    for (const auto& token : tokens)
        script += token + " ";
    return script;
}

TEST(DamagedScript, IsRefusedWhereverItIsCutShort)
{
    const std::string example = Example();
    const size_t end = example.rfind('}');
    for (size_t length = 0; length <= end; ++length)
        ASSERT_FALSE(Parses(example.substr(0, length))) << length;
    EXPECT_TRUE(Parses(example.substr(0, end + 1)));
}

TEST(DamagedScript, IsRefusedWhenATokenIsLostOrDoubled)
{
    ScriptTokenizer tokens;
    ASSERT_TRUE(tokens.TokenizeText(Example()));
    std::vector<std::string> all;
    for (; tokens.Current().type != TokenType::Unknown; tokens.Next())
        all.emplace_back(tokens.Current().text);
    ASSERT_TRUE(Parses(Join(all)));
    int accepted = 0;
    for (size_t i = 0; i < all.size(); ++i) {
        auto lost = all;
        lost.erase(lost.begin() + static_cast<std::ptrdiff_t>(i));
        auto doubled = all;
        doubled.insert(doubled.begin() + static_cast<std::ptrdiff_t>(i), all[i]);
        accepted += Parses(Join(lost)) + Parses(Join(doubled));
    }
    // Lost: the closing parenthesis of one of 11 vecs, or the last option (a comma may end the list). Doubled: one of
    // 13 closing braces, which ends the screen early.
    EXPECT_EQ(accepted, 11 + 1 + 13);
}

TEST(DamagedScript, IsHarmlessWhateverItsBytes)
{
    std::mt19937 random(20);
    const std::string example = Example();
    const std::string likely = "\"(){};=,/-.9 \r\n";
    int refused = 0;
    for (int round = 0; round < 2000; ++round) {
        std::string script = example;
        for (auto changes = random() % 4 + 1; changes > 0; --changes) {
            const bool any = random() % 2 == 0;
            script[random() % script.size()] = any ? static_cast<char>(random()) : likely[random() % likely.size()];
        }
        refused += !Parses(script);
    }
    EXPECT_GT(refused, 1000);
}

} // namespace
