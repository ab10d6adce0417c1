#include "script/ScriptTokenizer.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

TEST(ScriptTokenizer, ReadsFilesOfAnyLengthButNoFolders)
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
    EXPECT_FALSE(tokens.Tokenize("."));
    EXPECT_FALSE(tokens.Tokenize("missing.tobrik"));
}

TEST(ScriptTokenizer, KeepsTokensAsTheyStand)
{
    ScriptTokenizer tokens;
    ASSERT_TRUE(tokens.TokenizeText("Filename=\"a\r\nb//\"\"\";007 1.2.3 - 5//5 \"\n{vec(1"));
    std::string list;
    for (; tokens.Current().type != TokenType::Unknown; tokens.Next())
        list
            += std::to_string(static_cast<int>(tokens.Current().type)) + ":" + std::string(tokens.Current().text) + " ";
    EXPECT_EQ(list, "17:Filename 6:= 0:\"a\nb//\" 0:\"\" 1:; 10:007 9:1.2.3 8:- 10:5 4:{ 11:vec 2:( 10:1 ");
}

} // namespace
