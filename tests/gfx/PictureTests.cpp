#include "gfx/ColorFormats.h"
#include "gfx/Pic16.h"
#include "gfx/Pic16Key.h"
#include "gfx/Pic16Sprite.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace {

TEST(Colors, ConvertBetweenTheFormats)
{
    EXPECT_EQ(ToColor565_(0, 255, 0), 0x07C0);
    EXPECT_EQ(ToColor555_(0, 255, 0), 0x03E0);
    EXPECT_EQ(ToColor565_(255, 255, 255), 0xFFDF);
    EXPECT_EQ(To555From565_(0xFFDF), 0x7FFF);
    EXPECT_EQ(SPic16X_::Color16_(0x00FF0000), 0x001F);
    EXPECT_EQ(SPic16X_::Color16_(0x000000FF), 0x7C00);
    EXPECT_EQ(SPic16X_::Color16_(0xFFFFFFFF), 0x7FFF);
    EXPECT_EQ(SPic16X_::ColorValue_(0x7FFF), 0x00F8F8F8u);
    for (uint32_t color = 0; color < 0x8000; ++color)
        ASSERT_EQ(SPic16X_::Color16_(SPic16X_::ColorValue_(static_cast<uint16_t>(color))), color);
}

TEST(Pictures, ConvertTheirColorsAndNothingElse)
{
    const uint16_t before[] = { 0xFFDF, 0x07C0, 0xF800, 0x001F, 0x0840 };
    const uint16_t after[] = { 0x7FFF, 0x03E0, 0x7C00, 0x001F, 0x0420 };
    SPic16_* plain = SPic16_::New_(5, 1);
    SPic16Key_* keyed = SPic16Key_::New_(1, 5);
    SPic16Sprite_* sprite = SPic16Sprite_::New_(2, 1);
    std::memcpy(plain->Pixels_(), before, sizeof before);
    std::memcpy(keyed->Pixels_(), before, sizeof before);
    keyed->key = before[0];
    sprite->keyIndex = sprite->reserved = 0xDF;
    std::fill_n(sprite->palette, 256, before[0]);
    std::memset(sprite->Stream_(), 0xDF, 6);
    for (SPic16X_* picture : std::initializer_list<SPic16X_*> { plain, keyed, sprite })
        SPic16X_::ConvertTo555_(picture);
    EXPECT_EQ(std::memcmp(plain->Pixels_(), after, sizeof after), 0);
    EXPECT_EQ(std::memcmp(keyed->Pixels_(), after, sizeof after), 0);
    EXPECT_EQ(keyed->key, after[0]);
    EXPECT_EQ(std::count(sprite->palette, sprite->palette + 256, after[0]), 256);
    EXPECT_EQ(sprite->keyIndex, 0xDF);
    EXPECT_EQ(std::count(sprite->Stream_(), sprite->Stream_() + 6, 0xDF), 6);
    for (SPic16X_* picture : std::initializer_list<SPic16X_*> { plain, keyed, sprite })
        SPic16X_::Delete_(picture);
}

TEST(Pictures, AreEmptyUnlessTheirKindIsKnown)
{
    EXPECT_EQ(SPic16X_::Width_(nullptr), 0);
    EXPECT_EQ(SPic16X_::Height_(nullptr), 0);
    SPic16X_::Delete_(nullptr);
    for (const uint16_t kind : std::initializer_list<uint16_t> { 0, 3, 6, 8, 14, 15, 0xFFFF }) {
        SCOPED_TRACE(kind);
        SPic16Sprite_* picture = SPic16Sprite_::New_(4, 2);
        const SPicOwner_ owner(picture);
        picture->kind = kind;
        EXPECT_EQ(SPic16X_::Width_(picture), 0);
        EXPECT_EQ(SPic16X_::Height_(picture), 0);
        picture->palette[0] = 0xFFDF;
        SPic16X_::ConvertTo555_(picture);
        EXPECT_EQ(picture->palette[0], 0xFFDF);
        uint16_t pixel = 0;
        SPic16X_::Draw_(picture, &pixel, 8, 0, 0, 0, 0, 1, 1, 255, 0);
        EXPECT_EQ(pixel, 0);
    }
}

} // namespace
