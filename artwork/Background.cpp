#include "artwork/Background.h"

#include "artwork/Painting.h"

#include <algorithm>
#include <cmath>
#include <vector>

// An old map on a leather desk. Text is blue and outlines are red, so the sheet stays pale and its ink faint. New words
// appear in the upper left corner: there the sheet reaches out of the picture.
namespace artwork {

namespace {

constexpr int width = 800;
constexpr int height = 600;
constexpr float sheetMargin = 17;
constexpr float outside = 110; // how far the sheet reaches out at its upper left corner
constexpr float seaLevel = 0.5F;

// From 0 at and before `from` to 1 at and behind `to`, without a corner.
float SmoothStep(float from, float to, float at)
{
    const float share = std::clamp((at - from) / (to - from), 0.0F, 1.0F);
    return share * share * (3 - 2 * share);
}

// How far a point lies inside the sheet's torn edge, in pixels.
float InsideSheet(int x, int y)
{
    const auto fx = static_cast<float>(x);
    const auto fy = static_cast<float>(y);
    const float tear = (Terrain(fx / 30, fy / 30, 4, 7) - 0.5F) * 11;
    const float above = fy + outside * (1 - SmoothStep(310, 470, fx));
    const float before = fx + outside * (1 - SmoothStep(60, 220, fy));
    return std::min({ before, above, width - 1 - fx, height - 1 - fy }) - sheetMargin + tear;
}

// How far a point lies from the nearest side of the picture, in pixels.
int FromSide(int x, int y)
{
    return std::min({ x, y, width - 1 - x, height - 1 - y });
}

QColor Leather(int x, int y)
{
    const auto fx = static_cast<float>(x);
    const auto fy = static_cast<float>(y);
    const float grain = Noise(fx / 3, fy / 3, 31) * 0.6F + Noise(fx / 1.4F, fy / 1.4F, 32) * 0.4F;
    const float shadow = std::exp(std::min(0.0F, InsideSheet(x - 3, y - 4)) / 5);
    return Mix(Mix(darkTeal, teal, 0.15 + grain * 0.4), QColor(2, 14, 18), shadow * 0.7);
}

QColor Paper(int x, int y, float inside)
{
    const auto fx = static_cast<float>(x);
    const auto fy = static_cast<float>(y);
    const float stain = std::clamp((Terrain(fx / 190, fy / 190, 4, 3) - 0.35F) * 1.6F, 0.0F, 1.0F);
    const float fibre = (Noise(fx / 11, fy / 1.5F, 11) + Noise(fx / 1.5F, fy / 8, 12)) / 2 - 0.5F;
    const float scorched = 0.5F * std::exp(-inside / 30) + 0.45F * std::exp(-inside / 5);
    const QColor sheet = Mix(paleParchment, parchment, stain * 0.75 + fibre * 0.3);
    return Mix(Mix(sheet, darkParchment, std::min(0.85F, scorched)), sepia, 0.4 * std::exp(-inside / 2.2));
}

// The heights of an unknown country, one for each pixel.
std::vector<float> Heights()
{
    std::vector<float> heights;
    heights.reserve(width * height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            heights.push_back(Terrain(static_cast<float>(x) / 230 + 4.3F, static_cast<float>(y) / 230 + 1.2F, 6, 91));
    return heights;
}

// How much ink a point of the map has: the coast, lines along it in the water, and a tint over the land.
double CoastInk(const std::vector<float>& heights, int x, int y)
{
    const auto at = [&](int column, int row) {
        return heights[static_cast<size_t>(std::min(row, height - 1)) * width
            + static_cast<size_t>(std::min(column, width - 1))];
    };
    const float here = at(x, y);
    const float slope = std::hypot(at(x + 1, y) - here, at(x, y + 1) - here) + 1e-4F;
    const auto line = [&](float level, float thickness) {
        return std::clamp(thickness + 0.5F - std::abs(here - level) / slope, 0.0F, 1.0F);
    };
    double ink = here > seaLevel ? 0.06 : 0;
    ink = std::max(ink, 0.34 * line(seaLevel, 0.6F));
    for (int i = 1; i <= 4; ++i)
        ink = std::max(ink, (0.2 - 0.035 * i) * line(seaLevel - 0.011F * static_cast<float>(i), 0.3F));
    return ink;
}

void PaintSheet(QImage& image, const std::vector<float>& heights)
{
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const float inside = InsideSheet(x, y);
            const double faded = std::clamp((FromSide(x, y) - 41) / 16.0, 0.0, 1.0);
            QColor colour = Leather(x, y);
            if (inside > 0)
                colour = Mix(
                    colour, Mix(Paper(x, y, inside), sepia, faded * CoastInk(heights, x, y)), std::min(1.0F, inside));
            image.setPixelColor(x, y, colour);
        }
    }
}

void DrawMountains(QPainter& painter, const std::vector<float>& heights)
{
    for (int row = 0; row < 40; ++row) {
        for (int column = 0; column < 40; ++column) {
            const auto fx = static_cast<float>(column);
            const auto fy = static_cast<float>(row);
            const int x = static_cast<int>(70 + fx * 17 + Noise(fx * 1.7F, fy * 1.7F, 51) * 14);
            const int y = static_cast<int>(60 + fy * 12.5F + Noise(fx * 1.7F, fy * 1.7F, 52) * 10);
            if (x > width - 60 || y > height - 60 || heights[static_cast<size_t>(y * width + x)] < seaLevel + 0.13F)
                continue;
            const double size = 5 + Noise(fx, fy, 53) * 5;
            const QPointF peak(x, y - size);
            painter.setPen(QPen(WithAlpha(sepia, 74), 1));
            painter.drawPolyline(QPolygonF({ { x - size, y + 0.0 }, peak, { x + size, y + 0.0 } }));
            painter.setPen(QPen(WithAlpha(sepia, 46), 0.8));
            for (int hatch = 1; hatch < 4; ++hatch)
                painter.drawLine(
                    peak + QPointF(hatch * size / 4, hatch * size / 4), QPointF(x + size * (hatch - 1) / 4, y));
        }
    }
}

// The map's border: two lines with degrees marked between them.
void DrawDegrees(QPainter& painter)
{
    const QRectF outer(42.5, 42.5, width - 85, height - 85);
    const QRectF inner = outer.adjusted(7, 7, -7, -7);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(WithAlpha(sepia, 96), 1));
    painter.drawRect(outer);
    painter.drawRect(inner);
    painter.setPen(Qt::NoPen);
    painter.setBrush(WithAlpha(sepia, 72));
    const double across = inner.width() / 14;
    for (double x = inner.left(); x < inner.right() - 1; x += across)
        for (const double y : { outer.top() + 2, inner.bottom() + 2 })
            painter.drawRect(QRectF(x, y, across / 2, 3));
    const double down = inner.height() / 10;
    for (double y = inner.top(); y < inner.bottom() - 1; y += down)
        for (const double x : { outer.left() + 2, inner.right() + 2 })
            painter.drawRect(QRectF(x, y, 3, down / 2));
}

void DrawCompassRose(QPainter& painter, QPointF centre, double radius)
{
    painter.save();
    painter.setClipRect(QRectF(50, 50, width - 100, height - 100));
    painter.translate(centre);
    painter.setPen(QPen(WithAlpha(sepia, 26), 1));
    for (int i = 0; i < 32; ++i) {
        painter.drawLine(QPointF(0, -radius * 1.1), QPointF(0, -1000));
        painter.rotate(11.25);
    }
    painter.setPen(QPen(WithAlpha(sepia, 84), 1));
    painter.setBrush(WithAlpha(paleParchment, 90));
    painter.drawEllipse(QPointF(0, 0), radius * 0.7, radius * 0.7);
    painter.drawEllipse(QPointF(0, 0), radius * 0.64, radius * 0.64);
    struct Points {
        double length, first, between;
    };
    const double waist = radius * 0.13;
    for (const Points& points : { Points { 0.58, 22.5, 45 }, Points { 0.78, 45, 90 }, Points { 1.05, 0, 90 } }) {
        const QPointF tip(0, -radius * points.length);
        painter.save();
        painter.rotate(points.first);
        for (double angle = 0; angle < 360; angle += points.between) {
            painter.setBrush(WithAlpha(Mix(paleParchment, brass, 0.4), 220));
            painter.drawPolygon(QPolygonF({ { 0, 0 }, { -waist, -waist }, tip }));
            painter.setBrush(WithAlpha(Mix(sepia, parchment, 0.42), 230));
            painter.drawPolygon(QPolygonF({ { 0, 0 }, { waist, -waist }, tip }));
            painter.rotate(points.between);
        }
        painter.restore();
    }
    painter.restore();
}

// A brass fitting over the sheet's upper left corner; the others are the same, turned.
void DrawCorner(QPainter& painter)
{
    QPainterPath shape(QPointF(3, 3));
    shape.lineTo(62, 3);
    shape.cubicTo(58, 14, 44, 12, 38, 20);
    shape.cubicTo(34, 26, 34, 34, 26, 38);
    shape.cubicTo(14, 44, 14, 58, 3, 62);
    shape.closeSubpath();
    DrawBlurred(painter, shape, { 2, 3 }, 3, WithAlpha(Qt::black, 170));
    painter.fillPath(shape, Mix(brass, darkBrass, 0.35));
    painter.fillPath(shape, Brass(shape.boundingRect().adjusted(-8, -8, 8, 8)));
    painter.strokePath(shape, QPen(outline, 1.4));
    QTransform smaller;
    smaller.translate(4.5, 4.5);
    smaller.scale(0.8, 0.8);
    painter.strokePath(smaller.map(shape), QPen(WithAlpha(darkBrass, 190), 1.2));
    for (const QPointF& rivet : { QPointF(14, 14), QPointF(42, 9), QPointF(9, 42) })
        DrawRivet(painter, rivet, 3);
}

} // namespace

QImage PaintBackground()
{
    QImage image = Transparent(width, height);
    const std::vector<float> heights = Heights();
    PaintSheet(image, heights);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawMountains(painter, heights);
    DrawCompassRose(painter, { 664, 470 }, 62);
    DrawDegrees(painter);
    for (int corner = 1; corner < 4; ++corner) {
        painter.resetTransform();
        painter.translate(corner % 2 * width, corner / 2 * height);
        painter.scale(corner % 2 ? -1 : 1, corner / 2 ? -1 : 1);
        DrawCorner(painter);
    }
    return image;
}

} // namespace artwork
