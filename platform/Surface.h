#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace platform {

// The pixels of a window's client area, rows from the top, 0x00RRGGBB each.
struct Surface {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;

    void Resize(int newWidth, int newHeight)
    {
        width = newWidth;
        height = newHeight;
        pixels.assign(static_cast<size_t>(newWidth) * static_cast<size_t>(newHeight), 0x00FFFFFF);
    }
    uint32_t At(int x, int y) const
    {
        return pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
    }
};

} // namespace platform
