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

} // namespace
