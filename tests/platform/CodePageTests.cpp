#include "platform/Big5Literal.h"
#include "platform/CodePage.h"

#include <gtest/gtest.h>
#include <iconv.h>
#include <iterator>
#include <map>
#include <set>

using namespace platform;

namespace {

// What the C library by itself makes of a pair, in UTF-8.
std::string ByLibrary(std::string pair)
{
    static const iconv_t converter = iconv_open("UTF-8", "BIG5");
    char bytes[8];
    char* in = pair.data();
    char* out = bytes;
    size_t inLeft = 2;
    size_t outLeft = sizeof bytes;
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    return iconv(converter, &in, &inLeft, &out, &outLeft) == 0 && inLeft == 0 ? std::string(bytes, out) : "\uFFFD";
}

std::string Pair(int code)
{
    return { static_cast<char>(code >> 8), static_cast<char>(code & 0xFF) };
}

template <typename Visit> void ForEachPair(Visit visit)
{
    for (int lead = 0x81; lead <= 0xFE; ++lead)
        for (int trail = 0x40; trail <= 0xFE; ++trail)
            if (trail <= 0x7E || trail >= 0xA1)
                visit(lead << 8 | trail);
}

TEST(CodePage, DecodesTheWholePageAsTheLibraryDoes)
{
    int defined = 0;
    ForEachPair([&](int code) {
        defined += FirstCharacter(Pair(code)).codePoint != 0;
        const bool userDefined = code >= 0xFA40 || code < 0xA100;
        ASSERT_TRUE(userDefined || Utf8FromCodePage(Pair(code)) == ByLibrary(Pair(code))) << std::hex << code;
    });
    EXPECT_EQ(defined, 13911 + 5809);
}

TEST(CodePage, GivesTheUserDefinedRowsTheirPrivateCodePoints)
{
    const std::map<int, uint32_t> rowEnds { { 0xFA40, 0xE000 }, { 0xFAFE, 0xE09C }, { 0xFEFE, 0xE310 },
        { 0x8E40, 0xE311 }, { 0xA0FE, 0xEEB7 }, { 0x8140, 0xEEB8 }, { 0x8DFE, 0xF6B0 }, { 0xC6A1, 0xF6B1 } };
    for (const auto& [code, codePoint] : rowEnds)
        EXPECT_EQ(FirstCharacter(Pair(code)).codePoint, codePoint) << std::hex << code;
}

TEST(CodePage, BringsEveryCharacterBackButTheTenThatStandTwice)
{
    std::set<int> changed;
    ForEachPair([&](int code) {
        const std::string utf8 = Utf8FromCodePage(Pair(code));
        if (utf8 != "\uFFFD" && CodePageFromUtf8(utf8) != Pair(code))
            changed.insert(code);
    });
    EXPECT_EQ(
        changed, (std::set<int> { 0xA2CC, 0xA2CE, 0xA2A4, 0xA2A5, 0xA2A6, 0xA2A7, 0xF9FA, 0xF9FB, 0xF9FC, 0xF9FD }));
}

TEST(CodePage, TakesBrokenCharactersOffWithoutSwallowingANul)
{
    using namespace std::string_view_literals;
    for (const auto text : { "\xA4"sv, "\xA4\0x"sv, "\x80\x40"sv, "\xFF\x40"sv })
        EXPECT_TRUE(FirstCharacter(text).codePoint == 0 && FirstCharacter(text).length == 1) << text;
    for (const auto text : { "\xA4\x30"sv, "\xF9\xFF"sv, "\xA3\xFE"sv })
        EXPECT_TRUE(FirstCharacter(text).codePoint == 0 && FirstCharacter(text).length == 2) << text;
    EXPECT_EQ(Utf8FromCodePage("a\xA4\0b\x80"sv), "a\uFFFD\0b\uFFFD"sv);
}

TEST(CodePage, WritesOneQuestionMarkForWhatItCannotSpell)
{
    EXPECT_EQ(CodePageFromUtf8("a堃é😀b"), "a???b");
    EXPECT_EQ(CodePageFromUtf8("\x80x\xE4\xB8"), "?x??");
    EXPECT_EQ(CodePageFromUtf8("\xED\xA0\x80\xC1\x81"), "?????");
    EXPECT_TRUE(CodePageCanSpell("功能 a?"));
    EXPECT_FALSE(CodePageCanSpell("功能堃"));
    EXPECT_FALSE(CodePageCanSpell("\xE4\xB8"));
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
