#include "gfx/Pic16Sprite.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

SPic16Sprite_* NewBlock_(size_t streamBytes)
{
    void* block = std::malloc(SPic16Sprite_::headBytes + streamBytes);
    if (!block)
        return nullptr;
    auto* sprite = new (block) SPic16Sprite_;
    sprite->kind = PicSprite;
    return sprite;
}

struct SPlaneBounds_ {
    uint32_t left;
    uint32_t top;
    uint32_t right; // the last column and row, included
    uint32_t bottom;
};

bool IsVisible_(uint8_t alpha)
{
    return alpha >= 8;
}

// The plane must hold a visible pixel.
SPlaneBounds_ VisibleBounds_(const uint8_t* alphas, uint32_t width, uint32_t height)
{
    const uint8_t* end = alphas + size_t { width } * height;
    const auto first = static_cast<size_t>(std::find_if(alphas, end, IsVisible_) - alphas);
    auto last = static_cast<size_t>(end - alphas) - 1;
    while (!IsVisible_(alphas[last]))
        --last;
    SPlaneBounds_ bounds { static_cast<uint32_t>(first % width), static_cast<uint32_t>(first / width),
        static_cast<uint32_t>(last % width), static_cast<uint32_t>(last / width) };
    for (uint32_t y = bounds.top; y <= bounds.bottom; ++y) {
        const uint8_t* row = alphas + size_t { width } * y;
        bounds.left = static_cast<uint32_t>(std::find_if(row, row + bounds.left, IsVisible_) - row);
        uint32_t x = width - 1;
        while (x > bounds.right && !IsVisible_(row[x]))
            --x;
        bounds.right = x;
    }
    return bounds;
}

// Packs the rectangle at the start of the plane. Every row moves forwards in memory or stays.
void CutPlane_(uint8_t* plane, uint32_t width, const SPlaneBounds_& bounds)
{
    const size_t cutWidth = bounds.right - bounds.left + 1;
    for (uint32_t y = bounds.top; y <= bounds.bottom; ++y)
        std::memmove(plane + cutWidth * (y - bounds.top), plane + size_t { width } * y + bounds.left, cutWidth);
}

} // namespace

SPic16Sprite_* SPic16Sprite_::New_(uint16_t width, uint16_t height)
{
    SPic16Sprite_* sprite = NewBlock_(3 * size_t { width } * height);
    if (!sprite)
        return nullptr;
    sprite->width = width;
    sprite->height = height;
    return sprite;
}

SPic16Sprite_* SPic16Sprite_::NewSized_(uint32_t streamBytes)
{
    return NewBlock_(streamBytes);
}

void SPic16Sprite_::Trim_(SPic16Sprite_* sprite, uint8_t* indices, uint8_t* alphas, uint16_t* left, uint16_t* top)
{
    const uint32_t width = sprite->width;
    const uint32_t height = sprite->height;
    if (std::none_of(alphas, alphas + size_t { width } * height, IsVisible_)) {
        sprite->width = 0;
        sprite->height = 0;
        return;
    }
    const SPlaneBounds_ bounds = VisibleBounds_(alphas, width, height);
    CutPlane_(alphas, width, bounds);
    CutPlane_(indices, width, bounds);
    sprite->width = static_cast<uint16_t>(bounds.right - bounds.left + 1);
    sprite->height = static_cast<uint16_t>(bounds.bottom - bounds.top + 1);
    *left = static_cast<uint16_t>(bounds.left);
    *top = static_cast<uint16_t>(bounds.top);
}
