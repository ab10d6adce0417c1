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

} // namespace
