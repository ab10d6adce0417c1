#include "platform/Big5Literal.h"
#include "platform/Path.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace platform;

namespace {

TEST(NativePath, DecodesBeforeItTurnsSeparators)
{
    const TemporaryFolder folder;
    // The second byte of the name's first character is a backslash.
    EXPECT_EQ(NativePath(u8"圖\\功能.bmp"_big5), "圖/功能.bmp");
    EXPECT_EQ(NativePath("C:\\a\\b.bmp"), "/a/b.bmp");
    EXPECT_EQ(NativePath("c:b.bmp"), "b.bmp");
    EXPECT_EQ(NativePath("..\\b/c.bmp"), "../b/c.bmp");
}

TEST(NativePath, FindsNamesThatDifferInCaseComponentByComponent)
{
    const TemporaryFolder folder;
    for (const char* name : { "Image/Sub/Logo.BMP", "Image/功.bmp", "A.bmp", "a.bmp", "A.BMP" })
        folder.Write(name, "");
    EXPECT_EQ(NativePath("image\\SUB\\logo.bmp"), "Image/Sub/Logo.BMP");
    EXPECT_EQ(NativePath(u8"IMAGE\\功.BMP"_big5), "Image/功.bmp");
    EXPECT_EQ(NativePath("image\\"), "Image/");
    EXPECT_EQ(NativePath("a.bmp"), "a.bmp") << "the exact name comes first";
    EXPECT_EQ(NativePath("a.BMP"), "A.BMP") << "then the first in byte order";
    EXPECT_EQ(NativePath("D:" + folder.Path() + "\\IMAGE"), folder.Path() + "/Image");
}

TEST(NativePath, FoldsTheLettersOfThePageAndNothingElse)
{
    const TemporaryFolder folder;
    for (const char* name : { "ａ字ｚ", "α字ω", "ⅰ字ⅹ", "ＡＺ.bmp", "｀｛", "`{" })
        folder.Write(name, "");
    for (const auto& [asked, found] : { std::pair("Ａ字Ｚ", "ａ字ｚ"), { "Α字Ω", "α字ω" }, { "Ⅰ字Ⅹ", "ⅰ字ⅹ" },
             { "ａｚ.BMP", "ＡＺ.bmp" }, { "＠", "＠" }, { "@[", "@[" } })
        EXPECT_EQ(NativePath(CodePageFromUtf8(asked)), found);
    EXPECT_EQ(FoldCase("ЁАЯ\xD0Z😀"), "ёая\xD0z😀");
}

TEST(NativePath, LooksIntoEveryFolderThatMatches)
{
    const TemporaryFolder folder;
    for (const char* name : { "DIR", "Dir/g.bmp", "dir/F.BMP", "dir/sub/x.bmp" })
        folder.Write(name, "");
    for (const auto& [asked, found] : { std::pair("DIR\\f.bmp", "dir/F.BMP"), { "Dir\\F.BMP", "dir/F.BMP" },
             { "DIR\\G.bmp", "Dir/g.bmp" }, { "dIR\\SUB\\new.bmp", "dir/sub/new.bmp" },
             { "dIR\\new.bmp", "Dir/new.bmp" }, { "dir\\new.bmp", "dir/new.bmp" } })
        EXPECT_EQ(NativePath(asked), found);
    for (const char* link : { "L", "l" })
        std::filesystem::create_directory_symlink(".", link);
    const char* endless = "L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/L/missing";
    EXPECT_EQ(NativePath(endless), endless);
}

TEST(NativePath, IsEmptyForWhatCannotBeAFileName)
{
    using namespace std::string_view_literals;
    for (const std::string_view name : { ""sv, "C:"sv, "a\xA4"sv, "\xA4\x30.bmp"sv, "\xFF.bmp"sv, "a\0.bmp"sv })
        EXPECT_EQ(NativePath(name), "") << testing::PrintToString(name);
}

TEST(CodePagePath, IsAbsoluteAndComesBack)
{
    const TemporaryFolder folder;
    folder.Write("圖/功能.bmp", "");
    const auto path = CodePagePath("圖/../圖/./功能.bmp");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->front(), '\\');
    EXPECT_TRUE(path->ends_with(u8"\\圖\\功能.bmp"_big5));
    EXPECT_EQ(NativePath(*path), folder.Path() + "/圖/功能.bmp");
}

TEST(CodePagePath, RefusesWhatWouldNotComeBack)
{
    EXPECT_TRUE(CodePagePath("╞?.bmp"));
    for (const char* name : { "", "堃.bmp", "a\\b.bmp", "\xFF.bmp" })
        EXPECT_FALSE(CodePagePath(name)) << name;
    for (const auto& [name, misread] : { std::pair("x/Z:b", true), { "a\\b/c", true }, { "a:/1:ab:c", false } })
        EXPECT_EQ(IsMisread(name), misread) << name;
}

TEST(DesktopPath, TurnsSeparatorsAndNoSecondBytes)
{
    EXPECT_EQ(DesktopPath(u8"C:\\圖\\功能\\a/許.tobrik"_big5), u8"/圖/功能/a/許.tobrik"_big5);
    EXPECT_EQ(DesktopPath("\\\xA4\x30\\\xA4"), "/\xA4\x30/\xA4");
}

} // namespace
