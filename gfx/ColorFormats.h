#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

// Conversions between 24-bit, 565 and 555 colours (see Pic16X.h for the bits).

// Green keeps five bits only, so that the lowest green bit is 0 and a later conversion to 555 loses nothing.
constexpr uint16_t ToColor565_(uint8_t red, uint8_t green, uint8_t blue)
{
    return static_cast<uint16_t>((red & 0xF8) << 8 | (green & 0xF8) << 3 | blue >> 3);
}

constexpr uint16_t ToColor555_(uint8_t red, uint8_t green, uint8_t blue)
{
    return static_cast<uint16_t>((red & 0xF8) << 7 | (green & 0xF8) << 2 | blue >> 3);
}

constexpr uint16_t To555From565_(uint16_t color)
{
    return static_cast<uint16_t>((color >> 1 & 0x7FE0) | (color & 0x001F));
}

// Converts an array from 565 to 555 in place, two colours in one 32-bit word at a time: the masks, those of a single
// colour side by side, also clear what the shift brings from one colour into the other. An array may begin at an
// address that is no multiple of 4, so the word is copied out and back, which costs one load and one store.
inline void ConvertColorsTo555_(uint16_t* colors, size_t count)
{
    size_t i = 0;
    for (; i + 2 <= count; i += 2) {
        uint32_t pair = 0;
        std::memcpy(&pair, colors + i, sizeof pair);
        pair = (pair >> 1 & 0x7FE07FE0) | (pair & 0x001F001F);
        std::memcpy(colors + i, &pair, sizeof pair);
    }
    if (i < count)
        colors[i] = To555From565_(colors[i]);
}
