#pragma once

#include "gfx/BlendTab.h"

// What processors that scale many channels at once use instead of the blend tables.

// Scaling by multiplication: channel * factor / 32768, rounded, is Product_(level, channel) for every channel and
// level. 32767 / 31 is a whole number, so the factor of level 31 is the largest 16-bit number, almost 1.
struct SLevelFactors_ {
    // Of a blend that combines the picture's level with that of each pixel.
    struct SCombined_ {
        alignas(64) int16_t source[32] {}; // by the pixel's level
        alignas(64) int16_t target[32] {};
    };

    int16_t of[32] {}; // by level
    SCombined_ combined[32] {}; // by the picture's level

    consteval SLevelFactors_()
    {
        for (int level = 0; level < 32; ++level)
            of[level] = static_cast<int16_t>(level * (32767 / 31));
        for (uint32_t ofPicture = 0; ofPicture < 32; ++ofPicture)
            for (uint32_t ofPixel = 0; ofPixel < 32; ++ofPixel) {
                combined[ofPicture].source[ofPixel] = of[Product_(ofPicture, ofPixel)];
                combined[ofPicture].target[ofPixel] = of[31 - Product_(ofPicture, ofPixel)];
            }
    }
};

inline constexpr SLevelFactors_ levelFactors;

// Scaling by look-up: for each level the products of a channel, each in the place that the channel has in a colour.
struct SLevelProducts_ {
    struct SChannels_ {
        alignas(64) uint16_t red[32] {};
        alignas(64) uint16_t green[32] {};
        alignas(64) uint16_t blue[32] {};
    };

    SChannels_ of[32] {};

    consteval SLevelProducts_()
    {
        for (uint32_t level = 0; level < 32; ++level)
            for (uint32_t channel = 0; channel < 32; ++channel) {
                const uint8_t product = Product_(level, channel);
                of[level].red[channel] = static_cast<uint16_t>(product << 10);
                of[level].green[channel] = static_cast<uint16_t>(product << 5);
                of[level].blue[channel] = product;
            }
    }
};

inline constexpr SLevelProducts_ levelProducts;
