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

template <class Picture> void ExpectInkOnPaper(const Picture& picture)
{
    const uint16_t* end = picture.Pixels_() + picture.PixelCount_();
    const auto inked = std::count(picture.Pixels_(), end, ink);
    EXPECT_GT(inked, 20);
    EXPECT_EQ(std::count(picture.Pixels_(), end, paper), end - picture.Pixels_() - inked);
}

TEST(TextPictures, ShowTheTextInItsColorOnTheBackground)
{
    const HFONT small = CreateFontA(14, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, nullptr);
    const SPicOwner_ keyed = TextPicture(u8"文字 abc"_big5, 1, 1, small);
    ASSERT_TRUE(keyed && keyed->kind == PicKeyed);
    EXPECT_EQ(keyed->height, 14);
    EXPECT_EQ(static_cast<const SPic16Key_&>(*keyed).key, paper);
    ExpectInkOnPaper(static_cast<const SPic16Key_&>(*keyed));
    const SPicOwner_ plain = TextPicture(u8"文字 abc"_big5, 1, 0);
    ASSERT_TRUE(plain && plain->kind == PicPlain);
    EXPECT_EQ(plain->height, 16);
    ExpectInkOnPaper(static_cast<const SPic16_&>(*plain));
    EXPECT_TRUE(DeleteObject(small)); // selected nowhere any more
}

TEST(TextPictures, AreAsWideAsTheTextRoundedUp)
{
    const char* text = u8"字字字ab"_big5;
    const HDC context = CreateCompatibleDC(nullptr);
    for (const int spacing : { 0, 1, 2, 3, 4 }) {
        SetTextCharacterExtra(context, spacing);
        SIZE measured {};
        ASSERT_TRUE(GetTextExtentPoint32A(context, text, 8, &measured));
        EXPECT_EQ(TextPicture(text, spacing)->width, (measured.cx + 3) / 4 * 4);
    }
    DeleteDC(context);
    EXPECT_EQ(TextPicture(text, 4)->width, TextPicture(text, 0)->width + 4 * 5);
}

TEST(TextPictures, AreMissingForTextsWithoutASize)
{
    for (const char* text : { static_cast<const char*>(nullptr), "" })
        EXPECT_FALSE(TextPicture(text));
    for (const int spacing : { -1000, 40000, std::numeric_limits<int>::max() })
        EXPECT_FALSE(TextPicture("ab", spacing));
    const HDC context = CreateCompatibleDC(nullptr);
    SIZE measured {};
    ASSERT_TRUE(GetTextExtentPoint32A(context, "a", 1, &measured));
    DeleteDC(context);
    EXPECT_EQ(TextPicture("a", 65532 - measured.cx)->width, 65532); // the widest
    EXPECT_FALSE(TextPicture("a", 65533 - measured.cx));
    EXPECT_TRUE(TextPicture("\xA4")); // half a character
    EXPECT_TRUE(TextPicture(std::string(259, 'W').c_str()));
}

} // namespace
