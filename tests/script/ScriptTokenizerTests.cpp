#include "platform/scripted/ScriptedDesktop.h"
#include "script/ScriptTokenizer.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

TEST(ScriptTokenizer, ReadsFilesOfAnyLengthButNothingElse)
{
    const TemporaryFolder folder;
    std::string script = "}";
    for (int i = 0; i < 700000; ++i)
        script += "\r\nvec"; // line ends fall on every kind of boundary
    folder.Write("long.tobrik", script);
    ScriptTokenizer tokens;
    ASSERT_TRUE(tokens.Tokenize("LONG.tobrik"));
    int count = 0;
    for (tokens.Next(); tokens.Current().type == TokenType::Vec; tokens.Next())
        ++count;
    EXPECT_EQ(count, 700000);
    for (const char* name : { ".", "missing.tobrik", "\\dev\\zero" })
        EXPECT_FALSE(tokens.Tokenize(name)) << name;
}

TEST(ScriptTokenizer, KeepsTheTokensBeforeAFailure)
{
    const platform::ScriptedDesktop quiet;
    ScriptTokenizer tokens;
    ASSERT_FALSE(tokens.TokenizeText("\r\nStage // a\r\r\n\r\n\"b\r\nc\"\n(\r\nab 5"));
    for (const auto& [text, offset] : { std::pair("Stage", 2U), { "\"b\nc\"", 17U }, { "(", 24U } }) {
        EXPECT_EQ(tokens.Current().text, text);
        EXPECT_EQ(tokens.Current().offset, offset) << text;
        tokens.Next();
    }
    EXPECT_EQ(tokens.Current().text, ""); // the end
    tokens.RefuseCurrent(); // the first error stays
    EXPECT_EQ(tokens.GetError()->problem, ScriptProblem::UnknownWord);
    EXPECT_EQ(tokens.Current().offset, 27U);
    EXPECT_EQ(tokens.GetError()->offset, 27U);
    ASSERT_TRUE(tokens.TokenizeText("Stage"));
    EXPECT_FALSE(tokens.GetError());
}

} // namespace
