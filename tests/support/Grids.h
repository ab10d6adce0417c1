#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Small pictures as rows of letters.
using Grid = std::vector<std::string>;

// valueOf(letter) for every letter, row after row.
template <class ValueOf> std::vector<uint8_t> PlaneOf(const Grid& grid, ValueOf valueOf)
{
    std::vector<uint8_t> plane;
    for (const std::string& row : grid)
        for (const char letter : row)
            plane.push_back(static_cast<uint8_t>(valueOf(letter)));
    return plane;
}
