#pragma once

#include "platform/Gdi.h"
#include "platform/windows/WindowTable.h"

#include <algorithm>
#include <cstddef>

namespace platform {

// Somewhere to draw and how: a window's surface, as long as the window lives, or, for a context in memory, the selected
// bitmap.
struct DeviceContext {
    bool inMemory = false;
    Window* window = nullptr;
    Bitmap* bitmap = nullptr;
    Font* font = nullptr;
    COLORREF textColor = RGB(0, 0, 0);
    int backgroundMode = OPAQUE;
    int characterExtra = 0;
};

// The pixels of a surface (0x00RRGGBB) or of a bitmap (5-5-5).
template <typename Pixel> struct PixelRows {
    Pixel* pixels;
    int width;
    int height;
    int stride; // pixels

    Pixel* Row(int64_t y) const { return pixels + y * stride; }
};

// Calls draw(PixelRows) for what the context draws on; not at all when it draws nowhere.
template <typename Draw> void DrawOn(const DeviceContext& context, Draw draw)
{
    if (context.inMemory) {
        const Bitmap& bitmap = *context.bitmap;
        if (bitmap.pixels)
            draw(PixelRows<uint16_t> { bitmap.pixels.get(), bitmap.width, bitmap.height, bitmap.stride });
    } else if (IsWindow(context.window) && !context.window->surface.pixels.empty()) {
        Surface& surface = context.window->surface;
        draw(PixelRows<uint32_t> { surface.pixels.data(), surface.width, surface.height, surface.width });
    }
}

template <typename Pixel> Pixel PixelOf(COLORREF color);

template <> inline uint16_t PixelOf(COLORREF color)
{
    return static_cast<uint16_t>((color & 0xF8) << 7 | (color >> 6 & 0x3E0) | (color >> 19 & 0x1F));
}

template <> inline uint32_t PixelOf(COLORREF color)
{
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

// Fills the part of the rectangle that lies on the pixels; right and bottom edges lie just outside.
template <typename Pixel>
void Fill(const PixelRows<Pixel>& rows, int64_t left, int64_t top, int64_t right, int64_t bottom, Pixel pixel)
{
    left = std::max<int64_t>(left, 0);
    right = std::min<int64_t>(right, rows.width);
    bottom = std::min<int64_t>(bottom, rows.height);
    if (left >= right)
        return;
    for (int64_t y = std::max<int64_t>(top, 0); y < bottom; ++y)
        std::fill(rows.Row(y) + left, rows.Row(y) + right, pixel);
}

} // namespace platform
