#pragma once

#include "gfx/BlendTab.h"

// Scaling by multiplication, for processors that do many at once: channel * factor / 32768, rounded, is Product_(level,
// channel) for every channel and level.
struct SLevelFactors_ {
    // The factors of a blend whose level is one level (of the whole picture) times another (of a pixel).
    struct SCombined_ {
        alignas(64) int16_t source[32] {}; // by the other level
        alignas(64) int16_t target[32] {};
    };

    int16_t of[32] {}; // by level
    SCombined_ combined[32] {}; // by the one level

    consteval SLevelFactors_()
    {
        for (int level = 0; level < 32; ++level)
            of[level] = static_cast<int16_t>(level * (32767 / 31));
        for (uint32_t one = 0; one < 32; ++one)
            for (uint32_t other = 0; other < 32; ++other) {
                combined[one].source[other] = of[Product_(one, other)];
                combined[one].target[other] = of[31 - Product_(one, other)];
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
