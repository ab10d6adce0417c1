#include "gfx/BlendTab.h"

const SBlendTab_ SBlendTab_::instance;

SBlendTab_::SBlendTab_()
{
    for (uint32_t a = 0; a < 32; ++a)
        for (uint32_t b = 0; b < 32; ++b)
            products[a][b] = Product_(a, b);
    for (uint32_t level = 0; level < 32; ++level) {
        const uint8_t* channel = products[level];
        for (uint32_t color = 0; color < 32768; ++color)
            scaled[level][color] = static_cast<uint16_t>(
                channel[color >> 10] << 10 | channel[color >> 5 & 31] << 5 | channel[color & 31]);
    }
}
