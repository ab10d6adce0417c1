#include "bench/peers/Workload.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr double pi = 3.14159265358979;

// Rounded to the nearest whole number; reckoned apart from the library's tables.
int Scale(int channel, int level)
{
    return static_cast<int>(std::lround(channel * level / 31.0));
}

// Each of the two parts is rounded for itself, as this library does it. Rounding their sum can differ by 1.
uint16_t BlendExactly(uint16_t source, uint16_t destination, int level)
{
    const auto blend = [level](int above, int below) { return Scale(above, level) + Scale(below, 31 - level); };
    return static_cast<uint16_t>(blend(Red(source), Red(destination)) << 10
        | blend(Green(source), Green(destination)) << 5 | blend(Blue(source), Blue(destination)));
}

// Sixteen hues of sixteen shades each. The darkest shade is not black and the lightest not full, as in painted artwork.
std::array<uint16_t, 256> MakePalette()
{
    std::array<uint16_t, 256> palette {};
    for (int index = 0; index < 256; ++index) {
        const double hue = (index >> 4) * pi / 8;
        const double shade = 0.15 + 0.8 * (index & 15) / 15;
        const auto channel
            = [&](double angle) { return static_cast<int>(31 * shade * (0.7 + 0.3 * std::cos(hue - angle))); };
        palette[static_cast<size_t>(index)]
            = static_cast<uint16_t>(channel(0) << 10 | channel(2 * pi / 3) << 5 | channel(4 * pi / 3));
    }
    return palette;
}

// A place within the picture, from -1 to 1 both ways, and as seen from the middle.
struct Place {
    double x;
    double y;
    double radius = std::hypot(x, y);
    double angle = std::atan2(y, x);
};

// The badge: a bowl lit from the top left with a raised ring, a rosette of six petals in another hue, and a grain of
// one shade that dithers the steps between shades.
uint8_t BadgeIndex(const Place& place, int column, int row)
{
    const double petal = 0.55 + 0.15 * std::cos(6 * place.angle);
    const bool onRing = place.radius > 0.8;
    const int petalHue = 8 + static_cast<int>(std::lround(place.angle * 3 / pi) + 6) % 6;
    const int hue = onRing ? 2 : place.radius < petal ? petalHue : 5;
    const double light = 0.55 - 0.25 * (place.x + place.y) + (onRing ? 0.15 : -0.2 * place.radius);
    const double grain = ((column * 7 + row * 13) % 16) / 16.0;
    return static_cast<uint8_t>(hue << 4 | std::clamp(static_cast<int>(15 * light + grain), 0, 15));
}

// How far inside the badge's outline of twelve scallops, in parts of its radius. An eyelet near the top is outside too.
double Inside(const Place& place)
{
    const double scallops = 0.94 + 0.05 * std::cos(12 * place.angle);
    const double eyelet = std::hypot(place.x, place.y + 0.72) - 0.1;
    return std::min(scallops - place.radius, eyelet);
}

// The rim of soft edges is a sixteenth of the radius wide.
uint8_t LevelOf(Shape shape, double inside)
{
    if (shape == Shape::Opaque)
        return opaqueLevel;
    if (shape == Shape::Keyed)
        return inside > 0 ? opaqueLevel : 0;
    return static_cast<uint8_t>(std::lround(opaqueLevel * std::clamp(16 * inside, 0.0, 1.0)));
}

Picture PaintBadge(Shape shape, int width, int height)
{
    Picture picture { .width = width, .height = height, .palette = MakePalette(), .indices = {}, .levels = {} };
    for (int row = 0; row < height; ++row) {
        for (int column = 0; column < width; ++column) {
            const Place place { .x = (2 * column + 1.0) / width - 1, .y = (2 * row + 1.0) / height - 1 };
            picture.indices.push_back(BadgeIndex(place, column, row));
            picture.levels.push_back(LevelOf(shape, Inside(place)));
        }
    }
    return picture;
}

Frame DrawExactly(const Workload& workload)
{
    Frame frame = Scene();
    const Picture& picture = workload.picture;
    for (int row = 0; row < picture.height; ++row) {
        for (int column = 0; column < picture.width; ++column) {
            const auto pixel = PixelIndex(column, row, picture.width);
            uint16_t& target = frame[PixelIndex(workload.left + column, workload.top + row, frameWidth)];
            target = BlendExactly(picture.Color(pixel), target, workload.BakedLevel(pixel));
        }
    }
    return frame;
}

Workload MakeWorkload(Shape shape, bool half, int width, int height)
{
    constexpr const char* shapeNames[] = { "opaque", "keyed", "soft edges" };
    Workload workload;
    workload.name = shapeNames[static_cast<int>(shape)] + std::string(half ? ", half alpha" : "") + ", "
        + std::to_string(width) + "x" + std::to_string(height);
    workload.shape = shape;
    workload.half = half;
    workload.picture = PaintBadge(shape, width, height);
    // Small sprites begin at an odd column, as most sprites on a screen might.
    workload.left = (frameWidth - width) / 3;
    workload.top = (frameHeight - height) / 3;
    // A covered pixel is one of the shape that is not transparent, the faintest of its rim included.
    const auto& levels = workload.picture.levels;
    workload.coveredPixels = levels.size() - static_cast<size_t>(std::ranges::count(levels, 0));
    workload.exact = DrawExactly(workload);
    return workload;
}

Frame PaintScene()
{
    Frame frame;
    for (int row = 0; row < frameHeight; ++row) {
        for (int column = 0; column < frameWidth; ++column) {
            const bool onPanel = column % 200 > 20 && row % 150 > 20;
            const int light = 31 * row / frameHeight;
            const int grain = (column * 5 + row * 3) % 8 / 4;
            const int red = onPanel ? 20 + column / 4 % 8 : light / 2;
            const int green = onPanel ? 12 + row / 4 % 8 : light * 3 / 4 + grain;
            const int blue = onPanel ? 6 + grain : 12 + light / 2;
            frame.push_back(static_cast<uint16_t>(red << 10 | green << 5 | blue));
        }
    }
    return frame;
}

} // namespace

uint8_t Workload::BakedLevel(size_t pixel) const
{
    return static_cast<uint8_t>(half ? Scale(picture.levels[pixel], halfLevel) : picture.levels[pixel]);
}

const Frame& Scene()
{
    static const Frame scene = PaintScene();
    return scene;
}

std::vector<Workload> MakeWorkloads()
{
    std::vector<Workload> workloads;
    for (const bool half : { false, true })
        for (const Shape shape : { Shape::Opaque, Shape::Keyed, Shape::SoftEdges })
            for (const auto& [width, height] : { std::pair(64, 64), { 256, 256 }, { 800, 600 } })
                workloads.push_back(MakeWorkload(shape, half, width, height));
    return workloads;
}

int LargestChannelError(const Frame& drawn, const Frame& exact)
{
    int largest = 0;
    for (size_t i = 0; i < exact.size(); ++i)
        if (drawn[i] != exact[i])
            largest = std::max({ largest, std::abs(Red(drawn[i]) - Red(exact[i])),
                std::abs(Green(drawn[i]) - Green(exact[i])), std::abs(Blue(drawn[i]) - Blue(exact[i])) });
    return largest;
}
