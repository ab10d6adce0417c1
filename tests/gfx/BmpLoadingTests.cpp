#include "gfx/Pic16Sprite.h"
#include "tests/support/BmpFile.h"
#include "tests/support/Grids.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Bytes = std::vector<uint8_t>;

constexpr uint32_t green = 0x00FF00;

// Loads "p.bmp", alone or with "pa.bmp", and answers with its run stream; empty on failure.
class BmpLoading : public testing::Test {
protected:
    Bytes Take(SPic16X_* loaded)
    {
        picture.reset(loaded);
        return loaded ? Bytes(Sprite().Stream_(), Sprite().Stream_() + size - SPic16Sprite_::headBytes) : Bytes();
    }
    Bytes LoadKey(uint8_t keyGreen = 255, uint32_t trim = 0)
    {
        return Take(SPic16X_::LoadBmpKey_("p.bmp", 0, keyGreen, 0, trim, &size, &left, &top));
    }
    Bytes LoadAlpha(uint32_t trim = 0) { return Take(SPic16X_::LoadBmpAlpha_("p.bmp", "pa.bmp", trim, &size)); }
    std::vector<int> Head() const { return { picture->kind, picture->width, picture->height, left, top }; }
    const SPic16Sprite_& Sprite() const { return static_cast<const SPic16Sprite_&>(*picture); }

    const TemporaryFolder folder;
    SPicOwner_ picture;
    uint32_t size = 0;
    uint16_t left = 99;
    uint16_t top = 99;
};

TEST_F(BmpLoading, TakesOpacityFromTheCompanion)
{
    BmpFile colors(3, 2);
    colors.indices = { 1, 2, 3, 4, 5, 6 };
    colors.palette[255] = 0x123456;
    colors.Write("p.bmp");
    BmpFile alphas(3, 2);
    std::reverse(alphas.palette.begin(), alphas.palette.end());
    alphas.indices = { 0, 255, 127, 248, 247, 7 };
    alphas.palette[247] = 0xFFFF08; // only blue counts
    alphas.Write("pa.bmp");
    EXPECT_EQ(LoadAlpha(), (Bytes { 0x40, 1, 0x00, 0x80, 3, 16, 0x00, 0x80, 5, 1, 0x40, 6 }));
    ASSERT_TRUE(picture);
    EXPECT_EQ(Head(), (std::vector<int> { PicSprite, 3, 2, 99, 99 }));
    EXPECT_EQ(Sprite().palette[255], 0x118A); // 565 without the lowest green bit
    alphas.indices = { 248, 255, 248, 248, 247, 248 };
    alphas.Write("pa.bmp");
    EXPECT_EQ(LoadAlpha(1), (Bytes { 0x80, 5, 1 })) << "visible from 8";
    EXPECT_EQ(LoadAlpha(2), (Bytes { 0x03, 0x80, 5, 1, 0x00 })) << "only 1 trims";
    BmpFile(2, 3).Write("pa.bmp");
    EXPECT_TRUE(LoadAlpha().empty());
}

TEST_F(BmpLoading, MakesTheHighestKeyedIndexTransparent)
{
    BmpFile bmp(3, 1);
    bmp.indices = { 3, 200, 4 };
    const auto streamWith = [&](uint32_t color3, uint32_t color200) {
        bmp.palette[3] = color3;
        bmp.palette[200] = color200;
        bmp.Write("p.bmp");
        return LoadKey();
    };
    EXPECT_EQ(streamWith(green, 0), (Bytes { 0x00, 0x41, 200, 4 }));
    EXPECT_EQ(streamWith(green, 0x07F807), (Bytes { 0x40, 3, 0x00, 0x40, 4 })); // equal in 16 bits
    EXPECT_EQ(streamWith(0x08FF00, 0x00F700), (Bytes { 0x42, 3, 200, 4 }));
    bmp.indices[0] = 255;
    bmp.palette.assign(16, 0xFFFFFF); // 255 is undefined: black, but not to be found
    bmp.Write("p.bmp");
    EXPECT_EQ(LoadKey(0), (Bytes { 0x42, 255, 200, 4 }));
    bmp.palette.clear(); // stands for 256 black entries
    bmp.Write("p.bmp");
    EXPECT_EQ(LoadKey(0), (Bytes { 0x00, 0x41, 200, 4 }));
    bmp.palette = { green, 0 };
    bmp.indices = { 0, 1, 0 };
    bmp.Write("p.bmp");
    EXPECT_EQ(LoadKey(), (Bytes { 0x00, 0x40, 1, 0x00 })) << "the lowest index";
    EXPECT_EQ(LoadKey(8), (Bytes { 0x42, 0, 1, 0 })) << "none";
    EXPECT_EQ(Sprite().keyIndex, 0);
}

TEST_F(BmpLoading, TakesSidesUpTo65535InBlocksUpTo32Bits)
{
    std::string bytes = BmpFile(1, 1).Bytes();
    for (const auto& [width, height, streamBytes] :
        { std::tuple(65535u, 1u, 66559u), { 1, 65535, 66559 }, { 65532, 21848, 0 } }) {
        PutLong(bytes, 18, width);
        PutLong(bytes, 22, height);
        WriteBytes("p.bmp", bytes);
        std::filesystem::resize_file("p.bmp", 1078 + uint64_t { height } * ((width + 3) / 4 * 4));
        EXPECT_EQ(LoadKey().size(), streamBytes);
    }
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
        EXPECT_EQ(LoadKey(), (Bytes { 0x43, 1, 1, 1, 1 }));
        ASSERT_TRUE(picture);
        EXPECT_EQ(Sprite().palette[2], 0x001F);
        EXPECT_EQ(Sprite().palette[3], 0);
    }
}

TEST_F(BmpLoading, TrimsOnRequest)
{
    const std::tuple<Grid, std::vector<int>, Bytes> cases[] = {
        { { "...", "..a", "...", "b.c", "..." }, { 7, 3, 3, 0, 1 }, { 1, 0x40, 'a', 2, 0x40, 'b', 0, 0x40, 'c' } },
        { { "...", "..." }, { 7, 0, 0, 99, 99 }, {} }, // the offsets stay unwritten
    };
    for (const auto& [whole, head, trimmed] : cases) {
        BmpFile bmp(static_cast<int>(whole[0].size()), static_cast<int>(whole.size()));
        bmp.indices = PlaneOf(whole, [](char letter) { return letter; });
        bmp.palette['.'] = green;
        bmp.Write("p.bmp");
        left = top = 99;
        EXPECT_EQ(LoadKey(255, 1), trimmed);
        ASSERT_TRUE(picture);
        EXPECT_EQ(Head(), head);
    }
}

} // namespace
