#pragma once

#include "objects/vec.h"

#include <cstdint>

// The pointer's place in a mouse message's second word: x in its low, y in its high 16 bits, both signed.
constexpr vec MessagePoint(uint32_t lParam)
{
    return { static_cast<int16_t>(lParam & 0xFFFF), static_cast<int16_t>(lParam >> 16) };
}
