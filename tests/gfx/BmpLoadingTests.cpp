#include "gfx/BmpReader.h"
#include "gfx/Pic16Sprite.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Grids.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Bytes = std::vector<uint8_t>;

constexpr uint32_t green = 0x00FF00;

class BmpLoading : public testing::Test {
protected:
    bool LoadKey(uint8_t keyGreen = 255)
    {
        picture.reset(SPic16X_::LoadBmpKey_("p.bmp", 0, keyGreen, 0, 0, &size, nullptr, nullptr));
        return picture != nullptr;
    }
    bool LoadAlpha()
    {
        picture.reset(SPic16X_::LoadBmpAlpha_("p.bmp", "pa.bmp", 0, &size));
        return picture != nullptr;
    }
    const SPic16Sprite_& Sprite() const { return static_cast<const SPic16Sprite_&>(*picture); }
    Bytes Stream() const { return { Sprite().Stream_(), Sprite().Stream_() + size - SPic16Sprite_::headBytes }; }

    const TemporaryFolder folder;
    SPicOwner_ picture;
    uint32_t size = 0;
};

TEST_F(BmpLoading, TakesOpacityFromTheCompanion)
{
    BmpFile colors(3, 2);
    colors.indices = { 1, 2, 3, 4, 5, 6 };
    colors.palette[6] = 0x123456;
    colors.Write("p.bmp");
    BmpFile alphas(3, 2);
    alphas.indices = { 255, 0, 128, 7, 8, 248 };
    alphas.palette[8] = 0xFFFF08; // only blue counts
    alphas.Write("pa.bmp");
    ASSERT_TRUE(LoadAlpha());
    EXPECT_EQ(picture->kind, PicSprite);
    EXPECT_EQ(picture->width, 3);
    EXPECT_EQ(picture->height, 2);
    EXPECT_EQ(Stream(), (Bytes { 0x40, 1, 0x00, 0x80, 3, 16, 0x00, 0x80, 5, 1, 0x40, 6 }));
    EXPECT_EQ(Sprite().palette[6], 0x118A); // 565 without the lowest green bit
    for (const auto& [columns, rows] : { std::pair(2, 3), { 3, 1 }, { 4, 2 } }) {
        BmpFile(columns, rows).Write("pa.bmp");
        EXPECT_FALSE(LoadAlpha());
    }
}

TEST_F(BmpLoading, MakesTheHighestGreenIndexTransparent)
{
    BmpFile bmp(3, 1);
    bmp.indices = { 3, 200, 4 };
    const auto streamWith = [&](uint32_t color3, uint32_t color200) {
        bmp.palette[3] = color3;
        bmp.palette[200] = color200;
        bmp.Write("p.bmp");
        return LoadKey() ? Stream() : Bytes {};
    };
    EXPECT_EQ(streamWith(green, 0), (Bytes { 0x00, 0x41, 200, 4 }));
    EXPECT_EQ(streamWith(green, 0x07F807), (Bytes { 0x40, 3, 0x00, 0x40, 4 })); // equal in 16 bits
    EXPECT_EQ(streamWith(0x08FF00, 0x00F700), (Bytes { 0x42, 3, 200, 4 }));
}

TEST_F(BmpLoading, LooksForTheKeyOnlyAmongDefinedColors)
{
    BmpFile bmp(2, 1);
    bmp.indices = { 15, 255 };
    bmp.palette.assign(16, 0xFFFFFF);
    bmp.Write("p.bmp");
    ASSERT_TRUE(LoadKey(0));
    EXPECT_EQ(Stream(), (Bytes { 0x41, 15, 255 }));
    bmp.palette.clear(); // stands for 256 black entries
    bmp.Write("p.bmp");
    ASSERT_TRUE(LoadKey(0));
    EXPECT_EQ(Stream(), (Bytes { 0x40, 15, 0x00 }));
}

TEST_F(BmpLoading, FindsThePaletteByTheHeaderSizes)
{
    BmpFile bmp(2, 2, 1);
    bmp.palette = { 0, 0xFF0000, 0x0000FF };
    for (const uint32_t headerSize : { 40u, 108u, 124u }) {
        bmp.infoHeaderSize = headerSize;
        std::string bytes = bmp.Bytes();
        bytes.insert(14 + headerSize + 4 * 3, "\xFF\xFF\xFF"); // part of an entry
        PutLong(bytes, 10, 14 + headerSize + 15);
        WriteBytes("p.bmp", bytes);
        ASSERT_TRUE(LoadKey());
        EXPECT_EQ(Sprite().palette[1], 0xF800);
        EXPECT_EQ(Sprite().palette[2], 0x001F);
        EXPECT_EQ(Sprite().palette[3], 0);
    }
}

TEST_F(BmpLoading, TrimsOnRequest)
{
    const struct {
        Grid whole;
        int width, height, left, top;
        Bytes trimmed;
    } cases[] = {
        { { "...", "..a", "...", "b.c", "..." }, 3, 3, 0, 1, { 0x01, 0x40, 'a', 0x02, 0x40, 'b', 0x00, 0x40, 'c' } },
        { { "...a", "....", ".b.." }, 3, 3, 1, 0, { 0x01, 0x40, 'a', 0x02, 0x40, 'b', 0x01 } },
        { { "ab", "cd" }, 2, 2, 0, 0, { 0x43, 'a', 'b', 'c', 'd' } },
        { { "...", "..a" }, 1, 1, 2, 1, { 0x40, 'a' } },
        { { "...", "..." }, 0, 0, 0, 0, {} },
    };
    for (const auto& [whole, width, height, left, top, trimmed] : cases) {
        BmpFile bmp(static_cast<int>(whole[0].size()), static_cast<int>(whole.size()));
        bmp.indices = PlaneOf(whole, [](char letter) { return letter; });
        bmp.palette['.'] = green;
        bmp.Write("p.bmp");
        uint16_t cutLeft = 99, cutTop = 99;
        picture.reset(SPic16X_::LoadBmpKey_("p.bmp", 0, 255, 0, 1, &size, &cutLeft, &cutTop));
        ASSERT_TRUE(picture);
        const int results[] = { picture->width, picture->height, cutLeft, cutTop };
        EXPECT_TRUE(std::ranges::equal(results, std::initializer_list<int> { width, height, left, top }));
        EXPECT_EQ(Stream(), trimmed);
    }
}

} // namespace
