#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// The screen that every contestant draws on, in 555 from the top left pixel; each keeps its own in its own format.
constexpr int frameWidth = 800;
constexpr int frameHeight = 600;
using Frame = std::vector<uint16_t>;

// Where the pixel is in row order.
constexpr size_t PixelIndex(int column, int row, int width)
{
    return static_cast<size_t>(row) * static_cast<size_t>(width) + static_cast<size_t>(column);
}

// Keyed has transparent pixels around the shape, SoftEdges an anti-aliased rim besides.
enum class Shape { Opaque, Keyed, SoftEdges };

constexpr uint8_t opaqueLevel = 31;
constexpr uint8_t halfAlpha = 128; // as object alpha
constexpr uint8_t halfLevel = halfAlpha >> 3; // what this library makes of it

// Artwork as a designer hands it in: a palette index and a level of opacity for each pixel.
struct Picture {
    int width = 0;
    int height = 0;
    std::array<uint16_t, 256> palette {}; // 555; never pure green or magenta, the usual colours of transparency
    std::vector<uint8_t> indices;
    std::vector<uint8_t> levels; // 0 transparent to 31 opaque

    uint16_t Color(size_t pixel) const { return palette[indices[pixel]]; }
};

// One sprite at one place of the screen, and what has to be seen once it is drawn.
struct Workload {
    std::string name;
    Shape shape = Shape::Opaque;
    bool half = false; // drawn with object alpha `halfAlpha`
    Picture picture;
    int left = 0;
    int top = 0;
    size_t coveredPixels = 0;
    Frame exact;

    // The pixel's level with the object alpha in it, rounded as this library rounds.
    uint8_t BakedLevel(size_t pixel) const;
};

// The screen before a sprite is drawn: a sky that gets lighter towards the ground, with tiled panels on it.
const Frame& Scene();

// Opaque, keyed and soft edges, each in full and at half alpha, in three sizes.
std::vector<Workload> MakeWorkloads();

// 0 to 31 to 0 to 255.
constexpr uint8_t EightBits(int fiveBits)
{
    return static_cast<uint8_t>((fiveBits * 255 + 15) / 31);
}
constexpr int Red(uint16_t color555)
{
    return color555 >> 10 & 31;
}
constexpr int Green(uint16_t color555)
{
    return color555 >> 5 & 31;
}
constexpr int Blue(uint16_t color555)
{
    return color555 & 31;
}

// The largest difference between channels of the frames, in steps of five bits; pixels beside the sprite count too.
int LargestChannelError(const Frame& drawn, const Frame& exact);
