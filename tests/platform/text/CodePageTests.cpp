#include "platform/Big5Literal.h"
#include "platform/CodePage.h"

#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>

using namespace platform;

namespace {

std::string Pair(int code)
{
    return { static_cast<char>(code >> 8), static_cast<char>(code & 0xFF) };
}

TEST(CodePage, HasTheSymbolsAndTheUserDefinedRowsOfTheWholePage)
{
    const std::map<int, uint32_t> characters { { 0xA145, 0x2027 }, { 0xA150, 0x00B7 }, { 0xA1E3, 0xFF5E },
        { 0xA1FC, 0x2225 }, { 0xA244, 0xFFE5 }, { 0xA2CC, 0x5341 }, { 0xA3E1, 0x20AC }, { 0xA440, 0x4E00 },
        { 0xF9D6, 0x7881 }, { 0xF9F9, 0x2550 }, { 0xFA40, 0xE000 }, { 0xFAFE, 0xE09C }, { 0xFEFE, 0xE310 },
        { 0x8E40, 0xE311 }, { 0xA0FE, 0xEEB7 }, { 0x8140, 0xEEB8 }, { 0x8DFE, 0xF6B0 }, { 0xC6A1, 0xF6B1 } };
    for (const auto& [code, codePoint] : characters)
        EXPECT_EQ(FirstCharacter(Pair(code)).codePoint, codePoint) << std::hex << code;
}

TEST(CodePage, BringsEveryCharacterBackButTheTenThatStandTwice)
{
    int defined = 0;
    std::set<int> changed;
    for (int code = 0x8140; code <= 0xFEFE; ++code) {
        if (FirstCharacter(Pair(code)).codePoint == 0)
            continue;
        ++defined;
        if (CodePageFromUtf8(Utf8FromCodePage(Pair(code))) != Pair(code))
            changed.insert(code);
    }
    EXPECT_EQ(defined, 13911 + 5809);
    EXPECT_EQ(
        changed, (std::set<int> { 0xA2CC, 0xA2CE, 0xA2A4, 0xA2A5, 0xA2A6, 0xA2A7, 0xF9FA, 0xF9FB, 0xF9FC, 0xF9FD }));
}

// How many bytes it takes; 0 for a character that is whole.
int BrokenLength(std::string_view text)
{
    const auto first = FirstCharacter(text);
    return first.codePoint == 0 ? first.length : 0;
}

TEST(CodePage, TakesBrokenCharactersOffWithoutSwallowingANul)
{
    using namespace std::string_view_literals;
    for (const auto text : { "\xA4"sv, "\xA4\0x"sv, "\xFF\x40"sv })
        EXPECT_EQ(BrokenLength(text), 1) << text;
    for (const auto text : { "\xA4\x30"sv, "\xF9\xFF"sv, "\xA3\xFE"sv })
        EXPECT_EQ(BrokenLength(text), 2) << text;
    EXPECT_EQ(Utf8FromCodePage("a\xA4\0b\xFF\x80@"sv), "a\uFFFD\0b\uFFFD\u0080@"sv);
}

TEST(CodePage, WritesOneQuestionMarkForWhatItCannotSpell)
{
    EXPECT_EQ(CodePageFromUtf8("a堃é😀b"), "a???b");
    EXPECT_EQ(CodePageFromUtf8("\x80x\xE4\xB8"), "?x??");
    EXPECT_EQ(CodePageFromUtf8("\xED\xA0\x80\xC1\x81"), "?????");
    EXPECT_EQ(CodePageFromUtf8("\u0080\u0081"), "\x80?");
    EXPECT_STREQ(u8"功a"_big5, "\xA5\\a");
}

TEST(CodePage, CutsBetweenCharacters)
{
    const std::string text = u8"功能a功"_big5;
    const size_t kept[] = { 0, 0, 2, 2, 4, 5, 5, 7, 7 };
    for (size_t limit = 0; limit < std::size(kept); ++limit)
        EXPECT_EQ(CutToBytes(text, limit), text.substr(0, kept[limit])) << limit;
}

} // namespace
