#include "gfx/ColorFormats.h"
#include "gfx/Pic16X.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

TEST(Colors, ConvertBetweenTheFormats)
{
    EXPECT_EQ(ToColor565_(0, 255, 0), 0x07C0);
    EXPECT_EQ(To555From565_(0xFFDF), 0x7FFF);
    EXPECT_EQ(To555From565_(0x0840), 0x0420);
    EXPECT_EQ(SPic16X_::Color16_(0xFFFF0000), 0x001F);
    EXPECT_EQ(SPic16X_::ColorValue_(0x7FFF), 0x00F8F8F8u);
    for (uint32_t color = 0; color < 0x8000; ++color)
        ASSERT_EQ(SPic16X_::Color16_(SPic16X_::ColorValue_(static_cast<uint16_t>(color))), color);
}

TEST(Pictures, AreEmptyUnlessTheirKindIsKnown)
{
    const struct {
        uint16_t kind;
        size_t firstColor, endOfColors; // 16-bit words of the block
    } cases[] = { { PicPlain, 3, 8 }, { PicKeyed, 3, 9 }, { PicSprite, 4, 260 }, { PicEmpty, 0, 0 }, { 3, 0, 0 },
        { 8, 0, 0 }, { 14, 0, 0 }, { 15, 0, 0 }, { 0xFFFF, 0, 0 } };
    for (const auto& [kind, firstColor, endOfColors] : cases) {
        SCOPED_TRACE(kind);
        std::vector<uint16_t> block { kind, 5, 1 }; // kind, width, height
        while (block.size() < 300)
            block.push_back(static_cast<uint16_t>(block.size() * 40503));
        std::vector<uint16_t> converted = block;
        for (size_t i = firstColor; i < endOfColors; ++i)
            converted[i] = To555From565_(block[i]);
        auto* picture = reinterpret_cast<SPic16X_*>(block.data());
        SPic16X_::ConvertTo555_(picture);
        EXPECT_EQ(block, converted);
        EXPECT_EQ(SPic16X_::Width_(picture), endOfColors != 0 ? 5 : 0);
        EXPECT_EQ(SPic16X_::Height_(picture), endOfColors != 0 ? 1 : 0);
    }
    EXPECT_EQ(SPic16X_::Width_(nullptr) + SPic16X_::Height_(nullptr), 0);
}

} // namespace
