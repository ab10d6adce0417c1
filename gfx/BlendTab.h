#pragma once

#include <cstdint>

// a * b / 31, rounded to the nearest whole number; both 0 to 31. The inner division gives the halves in the quotient,
// the outer one rounds them up. No product lies half-way between two numbers, because 31 is odd.
constexpr uint8_t Product_(uint32_t a, uint32_t b)
{
    return static_cast<uint8_t>((2 * a * b / 31 + 1) / 2);
}

// The blend tables, which scale the channels of 555 colours by level/31. Built during static initialisation and only
// read afterwards; other static initialisers cannot rely on them.
struct SBlendTab_ {
    // products[a][b] is Product_(a, b).
    uint8_t products[32][32] {};
    // scaled[level][color]; 0 for colours with bit 15 set.
    uint16_t scaled[32][65536] {};

    SBlendTab_();

    static const SBlendTab_ instance;
};

// Linear interpolation, channel by channel: source * level / 31 + destination * (31 - level) / 31, each part rounded
// for itself. Level 0 leaves the destination, 31 gives the source. The two parts never add up to more than 31.
struct SBlend_ {
    const uint16_t* ofSource;
    const uint16_t* ofDestination;

    explicit SBlend_(uint8_t level)
        : ofSource(SBlendTab_::instance.scaled[level])
        , ofDestination(SBlendTab_::instance.scaled[31 - level])
    {
    }
    uint16_t operator()(uint16_t source, uint16_t destination) const
    {
        return static_cast<uint16_t>(ofSource[source] + ofDestination[destination]);
    }
};
