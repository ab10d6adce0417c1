#include "bench/gfx/SampleSprites.h"

#include <algorithm>
#include <cmath>

SamplePlanes MakePlanes(Sample sample, int width, int height)
{
    SamplePlanes planes { static_cast<uint16_t>(width), static_cast<uint16_t>(height), {}, {} };
    const double radius = std::min(width, height) / 2.0;
    constexpr double fade = 16;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double inside = radius - std::hypot(x + 0.5 - width / 2.0, y + 0.5 - height / 2.0);
            const double opacity = sample == Sample::Opaque ? 1
                : sample == Sample::KeyedDisc               ? (inside > 0 ? 1 : 0)
                                                            : std::clamp(inside / fade, 0.0, 1.0);
            planes.indices.push_back(static_cast<uint8_t>(x * 7 + y * 13 + x * y / 32));
            planes.alphas.push_back(static_cast<uint8_t>(255 * opacity));
        }
    }
    return planes;
}

SPicOwner_ MakeSprite(const SamplePlanes& planes)
{
    SPic16Sprite_* sprite = SPic16Sprite_::New_(planes.width, planes.height);
    sprite->keyIndex = 0;
    for (int i = 0; i < 256; ++i)
        sprite->palette[i] = static_cast<uint16_t>(i * 1103 & 0x7FFF);
    SPic16Sprite_::Encode_(sprite->Stream_(), planes.indices.data(), planes.width, planes.height, planes.alphas.data());
    return SPicOwner_(sprite);
}
