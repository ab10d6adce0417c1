#include "gfx/Pic16.h"
#include "gfx/Pic16Key.h"
#include "platform/Big5Literal.h"
#include "platform/Gdi.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace {

constexpr uint16_t ink = 0x7C1F;
constexpr uint16_t paper = 0x03E0;

SPicOwner_ TextPicture(const char* text, int32_t spacing = 1, uint32_t keyed = 1, HFONT font = nullptr)
{
    return SPicOwner_(SPic16X_::NewText_(text, font, ink, paper, keyed, spacing));
}

std::vector<uint16_t> PixelsOf(const SPicOwner_& picture)
{
    const uint16_t* pixels = picture->kind == PicKeyed ? static_cast<const SPic16Key_&>(*picture).Pixels_()
                                                       : static_cast<const SPic16_&>(*picture).Pixels_();
    return { pixels, pixels + picture->width * picture->height };
}

TEST(TextPictures, ShowTheTextInItsColorOnTheKey)
{
    const HFONT small = CreateFontA(14, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, nullptr);
    for (const HFONT font : { small, HFONT { nullptr } }) {
        const SPicOwner_ picture = TextPicture(u8"文字 abc"_big5, 1, 1, font);
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->kind, PicKeyed);
        EXPECT_EQ(picture->height, font ? 14 : 16);
        EXPECT_EQ(static_cast<const SPic16Key_&>(*picture).key, paper);
        const std::vector<uint16_t> pixels = PixelsOf(picture);
        const auto inked = std::count(pixels.begin(), pixels.end(), ink);
        EXPECT_GT(inked, 20);
        EXPECT_EQ(static_cast<size_t>(inked + std::count(pixels.begin(), pixels.end(), paper)), pixels.size());
    }
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

TEST(TextPictures, KeepTheirBackgroundWithoutAKey)
{
    const SPicOwner_ plain = TextPicture("abc", 1, 0);
    EXPECT_EQ(plain->kind, PicPlain);
    EXPECT_EQ(PixelsOf(plain), PixelsOf(TextPicture("abc")));
}

TEST(TextPictures, AreMissingForTextsWithoutASize)
{
    for (const char* text : { static_cast<const char*>(nullptr), "" })
        EXPECT_FALSE(TextPicture(text));
    for (const int spacing : { -1000, 40000, std::numeric_limits<int>::max() })
        EXPECT_FALSE(TextPicture("ab", spacing));
    EXPECT_TRUE(TextPicture("\xA4")); // half a character
    EXPECT_TRUE(TextPicture(std::string(259, 'W').c_str()));
}

} // namespace
