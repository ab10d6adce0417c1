#include "artwork/Quantiser.h"

#include <algorithm>
#include <cmath>

namespace artwork {

namespace {

constexpr int keyIndex = 255;
constexpr QRgb keyColour = 0xFF00FF00;
constexpr float ditherStrength = 0.8F;
constexpr float leastSpread = 1e-3F; // Below it a box holds one shade, and its spread is a rounding error.

// Channels in steps of the frame, 0 to 31, and how much the colour matters.
struct Shade {
    std::array<float, 3> channel {};
    float weight = 0;
};

using Box = std::vector<Shade>;

// How much a difference in red, green and blue strikes the eye.
constexpr std::array<float, 3> channelWeight { 3, 4, 2 };

float Distance(const std::array<float, 3>& a, const std::array<float, 3>& b)
{
    float sum = 0;
    for (size_t c = 0; c < 3; ++c)
        sum += channelWeight[c] * (a[c] - b[c]) * (a[c] - b[c]);
    return sum;
}

Shade Mean(const Box& box)
{
    Shade mean;
    for (const Shade& shade : box) {
        for (size_t c = 0; c < 3; ++c)
            mean.channel[c] += shade.channel[c] * shade.weight;
        mean.weight += shade.weight;
    }
    for (float& value : mean.channel)
        value /= mean.weight;
    return mean;
}

// The weighted variance along the channel where the box is widest.
std::pair<float, size_t> Spread(const Box& box)
{
    const Shade mean = Mean(box);
    std::array<float, 3> variance {};
    for (const Shade& shade : box)
        for (size_t c = 0; c < 3; ++c)
            variance[c] += shade.weight * channelWeight[c] * std::pow(shade.channel[c] - mean.channel[c], 2.0F);
    const auto widest = std::max_element(variance.begin(), variance.end());
    return { *widest, static_cast<size_t>(widest - variance.begin()) };
}

// The colours that occur. Rare ones count for more than their area, or a large background would leave nothing to them.
Box CountShades(const QImage& image, Transparency transparency)
{
    std::vector<float> area(32768);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (transparency == Transparency::GreenKey && qAlpha(pixel) < 128)
                continue;
            const int bin = (qRed(pixel) >> 3) << 10 | (qGreen(pixel) >> 3) << 5 | qBlue(pixel) >> 3;
            area[static_cast<size_t>(bin)] += static_cast<float>(qAlpha(pixel)) / 255.0F;
        }
    }
    Box shades;
    for (int bin = 0; bin < 32768; ++bin)
        if (const float pixels = area[static_cast<size_t>(bin)]; pixels > 0)
            shades.push_back(
                { { static_cast<float>(bin >> 10), static_cast<float>(bin >> 5 & 31), static_cast<float>(bin & 31) },
                    std::sqrt(pixels) });
    return shades;
}

std::vector<Box> MedianCut(Box shades, size_t count)
{
    std::vector<Box> boxes { std::move(shades) };
    while (boxes.size() < count) {
        std::pair<float, size_t> most { 0.0F, 0 };
        size_t chosen = 0;
        for (size_t i = 0; i < boxes.size(); ++i)
            if (const auto spread = Spread(boxes[i]); spread.first > most.first) {
                most = spread;
                chosen = i;
            }
        if (most.first < leastSpread)
            break;
        Box& box = boxes[chosen];
        const float middle = Mean(box).channel[most.second];
        const auto upper = std::partition(
            box.begin(), box.end(), [&](const Shade& shade) { return shade.channel[most.second] < middle; });
        Box rest(upper, box.end());
        box.erase(upper, box.end());
        boxes.push_back(std::move(rest));
    }
    return boxes;
}

size_t Nearest(const std::vector<Shade>& palette, const std::array<float, 3>& wanted)
{
    size_t best = 0;
    float least = 1e9F;
    for (size_t i = 0; i < palette.size(); ++i)
        if (const float distance = Distance(palette[i].channel, wanted); distance < least) {
            least = distance;
            best = i;
        }
    return best;
}

// Moves the palette's colours to the middle of the shades that they stand for, then to whole steps.
void Refine(std::vector<Shade>& palette, const Box& shades)
{
    for (int round = 0; round < 6; ++round) {
        std::vector<Box> members(palette.size());
        for (const Shade& shade : shades)
            members[Nearest(palette, shade.channel)].push_back(shade);
        for (size_t i = 0; i < palette.size(); ++i)
            if (!members[i].empty())
                palette[i] = Mean(members[i]);
    }
    for (Shade& shade : palette) {
        for (float& value : shade.channel)
            value = std::round(value);
        if (shade.channel == std::array<float, 3> { 0, 31, 0 })
            shade.channel[1] = 30; // Pure green would be taken for the key.
    }
}

// Carries each pixel's rounding error to its neighbours, rows in turn to the right and to the left.
void Dither(const QImage& image, Transparency transparency, const std::vector<Shade>& palette, IndexedPicture& result)
{
    using Row = std::vector<std::array<float, 3>>;
    const int width = image.width();
    Row errors(static_cast<size_t>(width) + 2);
    for (int y = 0; y < image.height(); ++y) {
        Row below(errors.size());
        const int step = y % 2 == 0 ? 1 : -1;
        for (int x = step > 0 ? 0 : width - 1; x >= 0 && x < width; x += step) {
            const QRgb pixel = image.pixel(x, y);
            auto& index = result.indices[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
            if (qAlpha(pixel) < (transparency == Transparency::GreenKey ? 128 : 1)) {
                index = transparency == Transparency::GreenKey ? keyIndex : 0;
                continue;
            }
            const auto at = static_cast<size_t>(x + 1);
            std::array<float, 3> wanted { static_cast<float>(qRed(pixel)), static_cast<float>(qGreen(pixel)),
                static_cast<float>(qBlue(pixel)) };
            for (size_t c = 0; c < 3; ++c)
                wanted[c] = std::clamp(wanted[c] * 31 / 255 + errors[at][c] * ditherStrength, 0.0F, 31.0F);
            index = static_cast<uint8_t>(Nearest(palette, wanted));
            for (size_t c = 0; c < 3; ++c) {
                const float error = wanted[c] - palette[index].channel[c];
                errors[static_cast<size_t>(x + 1 + step)][c] += error * 7 / 16;
                below[static_cast<size_t>(x + 1 - step)][c] += error * 3 / 16;
                below[at][c] += error * 5 / 16;
                below[static_cast<size_t>(x + 1 + step)][c] += error * 1 / 16;
            }
        }
        errors = std::move(below);
    }
}

IndexedPicture Empty(const QImage& image)
{
    IndexedPicture picture;
    picture.width = image.width();
    picture.height = image.height();
    picture.palette.fill(0xFF000000);
    picture.indices.resize(static_cast<size_t>(picture.width) * static_cast<size_t>(picture.height));
    return picture;
}

} // namespace

IndexedPicture Quantise(const QImage& painted, Transparency transparency)
{
    const QImage image = painted.convertToFormat(QImage::Format_ARGB32);
    IndexedPicture result = Empty(image);
    const Box shades = CountShades(image, transparency);
    std::vector<Shade> palette;
    for (const Box& box : MedianCut(shades, keyIndex))
        palette.push_back(Mean(box));
    Refine(palette, shades);
    for (size_t i = 0; i < palette.size(); ++i) {
        std::array<int, 3> level {};
        for (size_t c = 0; c < 3; ++c)
            level[c] = static_cast<int>(palette[i].channel[c]) * 33 / 4; // 0 to 31 becomes 0 to 255, top bits kept.
        result.palette[i] = qRgb(level[0], level[1], level[2]);
    }
    if (transparency == Transparency::GreenKey)
        result.palette[keyIndex] = keyColour;
    Dither(image, transparency, palette, result);
    return result;
}

IndexedPicture AlphaPlane(const QImage& painted)
{
    const QImage image = painted.convertToFormat(QImage::Format_ARGB32);
    IndexedPicture result = Empty(image);
    for (int grey = 0; grey < 256; ++grey)
        result.palette[static_cast<size_t>(grey)] = qRgb(grey, grey, grey);
    size_t next = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            result.indices[next++] = static_cast<uint8_t>(qAlpha(image.pixel(x, y)));
    return result;
}

} // namespace artwork
