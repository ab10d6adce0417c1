#include "gfx/Pic16.h"
#include "gfx/Pic16Key.h"
#include "platform/Big5Literal.h"
#include "platform/Gdi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>

namespace {

constexpr uint16_t ink = 0x7C1F;
constexpr uint16_t paper = 0x03E0;

SPicOwner_ TextPicture(const char* text, int32_t spacing = 1, uint32_t keyed = 1, HFONT font = nullptr)
{
    return SPicOwner_(SPic16X_::NewText_(text, font, ink, paper, keyed, spacing));
}

template <class Picture> void ExpectInkOnPaper(const SPicOwner_& text, PicKind kind, int height)
{
    ASSERT_TRUE(text);
    ASSERT_EQ(text->kind, kind);
    EXPECT_EQ(text->height, height);
    const auto& picture = static_cast<const Picture&>(*text);
    const uint16_t* end = picture.Pixels_() + picture.PixelCount_();
    const auto inked = std::count(picture.Pixels_(), end, ink);
    EXPECT_GT(inked, 20);
    EXPECT_EQ(std::count(picture.Pixels_(), end, paper), end - picture.Pixels_() - inked);
}

TEST(TextPictures, ShowTheTextInItsColorOnTheBackground)
{
    const HFONT small = CreateFontA(14, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, nullptr);
    const SPicOwner_ keyed = TextPicture(u8"文字 abc"_big5, 1, 1, small);
    ExpectInkOnPaper<SPic16Key_>(keyed, PicKeyed, 14);
    EXPECT_EQ(static_cast<const SPic16Key_&>(*keyed).key, paper);
    ExpectInkOnPaper<SPic16_>(TextPicture(u8"文字 abc"_big5, 1, 0), PicPlain, 16);
    EXPECT_TRUE(DeleteObject(small)); // selected nowhere any more
}

TEST(TextPictures, AreAsWideAsTheirFiveCharactersWithSpacingRoundedUp)
{
    // 50 pixels without spacing: 50, 55, 60, 65 and 70 with it.
    for (const auto& [spacing, width] : { std::pair(0, 52), { 1, 56 }, { 2, 60 }, { 3, 68 }, { 4, 72 } })
        EXPECT_EQ(TextPicture(u8"字字字ab"_big5, spacing)->width, width) << spacing;
}

TEST(TextPictures, AreMissingForTextsWithoutASize)
{
    for (const char* text : { static_cast<const char*>(nullptr), "" })
        EXPECT_FALSE(TextPicture(text));
    for (const int spacing : { -1000, 40000, std::numeric_limits<int>::max() })
        EXPECT_FALSE(TextPicture("ab", spacing));
    std::vector<int> widths;
    for (int spacing = 65500; const SPicOwner_ picture = TextPicture("a", spacing); ++spacing)
        widths.push_back(picture->width);
    EXPECT_EQ(std::vector(widths.end() - 5, widths.end()), (std::vector { 65528, 65532, 65532, 65532, 65532 }));
    EXPECT_TRUE(TextPicture("\xA4")); // half a character
    EXPECT_TRUE(TextPicture(std::string(259, 'W').c_str()));
}

} // namespace
