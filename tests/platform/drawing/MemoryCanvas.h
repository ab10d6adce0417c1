#pragma once

#include "platform/Gdi.h"

#include <string>
#include <vector>

using Grid = std::vector<std::string>;

inline BITMAPINFO BitmapOf(LONG width, LONG height, WORD bitCount = 16)
{
    BITMAPINFO info;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biBitCount = bitCount;
    return info;
}

// A context in memory with a bitmap of its own selected. The width is even.
class MemoryCanvas {
public:
    MemoryCanvas(int width, int height)
        : info(BitmapOf(width, -height))
        , bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0))
        , previous(SelectObject(context, bitmap))
    {
    }
    MemoryCanvas(const MemoryCanvas&) = delete;
    MemoryCanvas& operator=(const MemoryCanvas&) = delete;
    ~MemoryCanvas()
    {
        SelectObject(context, previous);
        DeleteObject(bitmap);
        DeleteDC(context);
    }

    // Black pixels are ".", those of the colour "#", small numbers the characters with these codes, all others "?".
    Grid Pixels(uint16_t color555) const
    {
        const auto* pixel = static_cast<const uint16_t*>(bits);
        Grid grid(static_cast<size_t>(-info.bmiHeader.biHeight));
        for (std::string& row : grid)
            for (LONG x = 0; x < info.bmiHeader.biWidth; ++x, ++pixel)
                row += *pixel == 0 ? '.' : *pixel == color555 ? '#' : *pixel < 128 ? static_cast<char>(*pixel) : '?';
        return grid;
    }

    HDC context = CreateCompatibleDC(nullptr);

private:
    void* bits = nullptr;
    BITMAPINFO info;
    HBITMAP bitmap;
    HGDIOBJ previous;
};
