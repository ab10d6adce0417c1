#include "gfx/Pic16Sprite.h"
#include "tests/support/Grids.h"

#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<uint8_t>;

// The stream of a grid with '.' for transparent, '#' for opaque and a letter for translucent pixels, whose place
// from 'a' on is the level ('~': 30). Indices count from 1 along the rows.
Bytes Encoded(const Grid& alphas)
{
    const Bytes alphaPlane = PlaneOf(alphas, [](char letter) {
        return letter == '.' ? 7 : letter == '#' ? 248 : (letter - 'a' + 1) << 3;
    });
    uint8_t index = 0;
    const Bytes indexPlane = PlaneOf(alphas, [&](char) { return ++index; });
    Bytes stream(3 * alphaPlane.size());
    stream.resize(SPic16Sprite_::Encode_(stream.data(), indexPlane.data(), static_cast<uint16_t>(alphas[0].size()),
        static_cast<uint16_t>(alphas.size()), alphaPlane.data()));
    return stream;
}

SPicOwner_ SpriteOf(uint16_t width, uint16_t height, const Bytes& stream)
{
    SPic16Sprite_* sprite = SPic16Sprite_::New_(width, height);
    sprite->keyIndex = 7;
    std::copy(stream.begin(), stream.end(), sprite->Stream_());
    return SPicOwner_(sprite);
}

Grid MaskOf(const SPicOwner_& sprite, uint8_t threshold)
{
    Bytes mask(SPic16X_::MaskSize_(sprite.get()), 0xA5);
    EXPECT_EQ(SPic16X_::MakeMask_(sprite.get(), mask.data(), threshold), 1u);
    return GridOf(sprite->width, sprite->height, [&](int x, int y) {
        const auto column = static_cast<uint16_t>(x);
        return SPic16X_::MaskBit_(mask.data(), sprite->width, column, static_cast<uint16_t>(y)) ? '#' : '.';
    });
}

TEST(SpriteEncoding, GroupsPixelsOfOneTypeIntoRuns)
{
    const std::pair<Grid, Bytes> cases[] = {
        { { "" }, {} },
        { { "##." }, { 0x41, 1, 2, 0x00 } },
        { { "pp" }, { 0x81, 1, 16, 2, 16 } },
        { { "##..", "..##" }, { 0x41, 1, 2, 0x03, 0x41, 7, 8 } },
        { { ".a~#" }, { 0x00, 0x81, 2, 1, 3, 30, 0x40, 4 } },
        { { "#########.########p" },
            { 0x48, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0x00, 0x47, 11, 12, 13, 14, 15, 16, 17, 18, 0x80, 19, 16 } },
        { { std::string(129, '.') }, { 0x3F, 0x3F, 0x00 } },
    };
    for (const auto& [alphas, stream] : cases)
        EXPECT_EQ(Encoded(alphas), stream) << alphas[0];
    const Bytes opaque = Encoded({ std::string(65, '#') });
    EXPECT_EQ(opaque.size(), 67u);
    EXPECT_EQ(opaque[0], 0x7F);
    EXPECT_EQ(opaque[65], 0x40);
    EXPECT_EQ(SPic16Sprite_::Encode_(nullptr, opaque.data(), 1, 1, opaque.data()), 0u);
}

TEST(HitMasks, HoldThePixelsThatReachTheThreshold)
{
    const SPicOwner_ sprite = SpriteOf(9, 2, Encoded({ "##op.....", "....##.~#" }));
    EXPECT_EQ(SPic16X_::MaskSize_(sprite.get()), 4u);
    EXPECT_EQ(MaskOf(sprite, 31), (Grid { "##.......", "....##..#" }));
    EXPECT_EQ(MaskOf(sprite, 16), (Grid { "##.#.....", "....##.##" }));
    EXPECT_EQ(MaskOf(sprite, 0), (Grid { "####.....", "....##.##" }));
    const SPicOwner_ trans = SpriteOf(3, 2, { 0xC5, 7, 1, 7, 2, 3, 7 });
    EXPECT_EQ(MaskOf(trans, 31), (Grid { ".#.", "##." }));
}

} // namespace
