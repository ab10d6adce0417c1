#include "gfx/RunCursor.h"
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

Bytes MaskOf(uint16_t width, uint16_t height, const Bytes& stream, uint8_t threshold)
{
    SPic16Sprite_* sprite = SPic16Sprite_::New_(width, height);
    const SPicOwner_ owner(sprite);
    sprite->keyIndex = 7;
    std::copy(stream.begin(), stream.end(), sprite->Stream_());
    SRunCursor_ cursor(*sprite);
    cursor.SkipRows_(-1);
    EXPECT_EQ(cursor.position, sprite->Stream_()) << "nothing is skipped for counts below 1";
    Bytes mask(SPic16X_::MaskSize_(sprite), 0xA5);
    EXPECT_EQ(SPic16X_::MakeMask_(sprite, mask.data(), threshold), 1u);
    return mask;
}

TEST(SpriteEncoding, GroupsPixelsOfOneTypeIntoRuns)
{
    const std::pair<Grid, Bytes> cases[] = {
        { { "" }, {} },
        { { "##..", "..##" }, { 0x41, 1, 2, 0x03, 0x41, 7, 8 } },
        { { ".a~#" }, { 0x00, 0x81, 2, 1, 3, 30, 0x40, 4 } },
        { { "#########.########p" },
            { 0x48, 1, 2, 3, 4, 5, 6, 7, 8, 9, 0x00, 0x47, 11, 12, 13, 14, 15, 16, 17, 18, 0x80, 19, 16 } },
        { { std::string(129, '.') }, { 0x3F, 0x3F, 0x00 } },
        { { std::string(63, '.') + '#' + std::string(63, '.') }, { 0x3E, 0x40, 64, 0x3E } },
    };
    for (const auto& [alphas, stream] : cases)
        EXPECT_EQ(Encoded(alphas), stream) << alphas[0];
    Bytes plane(3);
    EXPECT_EQ(SPic16Sprite_::Encode_(nullptr, plane.data(), 1, 1, plane.data()), 0u);
    EXPECT_EQ(SPic16Sprite_::Encode_(plane.data(), nullptr, 1, 1, plane.data()), 0u);
}

TEST(HitMasks, HoldThePixelsThatReachTheThreshold)
{
    const Bytes stream = Encoded({ "##op.....", "....##.~#" });
    const Bytes opaque { 0b00000011, 0, 0b00110000, 1 };
    EXPECT_EQ(MaskOf(9, 2, stream, 31), opaque);
    EXPECT_EQ(MaskOf(9, 2, stream, 16), (Bytes { 0b00001011, 0, 0b10110000, 1 }));
    for (const auto& [x, y, isSet] : { std::tuple(8, 1, true), { 8, 0, false }, { 3, 1, false }, { 5, 1, true } })
        EXPECT_EQ(SPic16X_::MaskBit_(opaque.data(), 9, static_cast<uint16_t>(x), static_cast<uint16_t>(y)), isSet) << x;
    EXPECT_EQ(MaskOf(8, 1, { 0xC5, 7, 1, 7, 2, 3, 7, 0x41, 7, 1 }, 31), (Bytes { 0b11011010 }));
}

} // namespace
