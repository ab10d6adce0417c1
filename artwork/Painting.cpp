#include "artwork/Painting.h"

#include <QFont>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace artwork {

namespace {

float Hill(int x, int y, uint32_t seed)
{
    uint32_t hash
        = static_cast<uint32_t>(x) * 0x8DA6B343U ^ static_cast<uint32_t>(y) * 0xD8163841U ^ seed * 0xCB1AB31FU;
    hash = (hash ^ hash >> 15) * 0x2C1B3C6DU;
    hash = (hash ^ hash >> 12) * 0x297A2D39U;
    return static_cast<float>((hash ^ hash >> 15) & 0xFFFF) / 65535.0F;
}

// One pass of a box blur over `count` pixels that are `step` pixels apart.
void BlurLine(QRgb* line, int count, int step, int radius)
{
    std::vector<QRgb> source(static_cast<size_t>(count + 2 * radius + 1));
    for (int i = 0; i < count; ++i)
        source[static_cast<size_t>(i + radius)] = line[i * step];
    std::array<int, 4> sum {};
    const auto add = [&](QRgb pixel, int sign) {
        for (size_t c = 0; c < 4; ++c)
            sum[c] += sign * static_cast<int>(pixel >> (8 * c) & 0xFF);
    };
    const int width = 2 * radius + 1;
    for (int i = 0; i < width - 1; ++i)
        add(source[static_cast<size_t>(i)], 1);
    for (int i = 0; i < count; ++i) {
        add(source[static_cast<size_t>(i + width - 1)], 1);
        QRgb mean = 0;
        for (size_t c = 0; c < 4; ++c)
            mean |= static_cast<QRgb>((sum[c] + width / 2) / width) << (8 * c);
        line[i * step] = mean;
        add(source[static_cast<size_t>(i)], -1);
    }
}

void Blur(QImage& image, int radius)
{
    auto* pixels = reinterpret_cast<QRgb*>(image.bits());
    const int width = image.width();
    for (int pass = 0; pass < 3 && radius > 0; ++pass) {
        for (int y = 0; y < image.height(); ++y)
            BlurLine(pixels + y * width, width, 1, radius);
        for (int x = 0; x < width; ++x)
            BlurLine(pixels + x, image.height(), width, radius);
    }
}

QImage SizeOfTarget(const QPainter& painter)
{
    return Transparent(painter.device()->width(), painter.device()->height());
}

void DrawUntransformed(QPainter& painter, const QImage& layer)
{
    painter.save();
    painter.resetTransform();
    painter.drawImage(0, 0, layer);
    painter.restore();
}

} // namespace

QImage Transparent(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QImage Strip(QSize section, int count, bool stacked, const std::function<void(QPainter&, int)>& paint)
{
    QImage strip = stacked ? Transparent(section.width(), section.height() * count)
                           : Transparent(section.width() * count, section.height());
    QPainter whole(&strip);
    for (int i = 0; i < count; ++i) {
        QImage image = Transparent(section.width(), section.height());
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        paint(painter, i);
        painter.end();
        whole.drawImage(stacked ? 0 : i * section.width(), stacked ? i * section.height() : 0, image);
    }
    return strip;
}

QColor Mix(const QColor& from, const QColor& to, double share)
{
    const auto channel = [&](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
    return { channel(from.red(), to.red()), channel(from.green(), to.green()), channel(from.blue(), to.blue()),
        channel(from.alpha(), to.alpha()) };
}

QColor WithAlpha(QColor colour, int alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

QLinearGradient Downward(const QRectF& area, std::initializer_list<QColor> evenly)
{
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    double at = 0;
    for (const QColor& colour : evenly) {
        gradient.setColorAt(at, colour);
        at = std::min(1.0, at + 1.0 / static_cast<double>(evenly.size() - 1));
    }
    return gradient;
}

QLinearGradient Brass(const QRectF& area)
{
    QLinearGradient gradient(area.topLeft(), area.bottomRight());
    gradient.setColorAt(0, brass);
    gradient.setColorAt(0.2, paleBrass);
    gradient.setColorAt(0.45, brass);
    gradient.setColorAt(0.75, darkBrass);
    gradient.setColorAt(0.9, brass);
    gradient.setColorAt(1, darkBrass);
    return gradient;
}

QPainterPath Cartouche(const QRectF& area, double corner)
{
    QPainterPath path;
    path.addRect(area);
    for (const QPointF& centre : { area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight() }) {
        QPainterPath bite;
        bite.addEllipse(centre, corner, corner);
        path -= bite;
    }
    return path;
}

void DrawBrassBorder(QPainter& painter, const QPainterPath& path, double width)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.strokePath(path, QPen(outline, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.strokePath(path, QPen(Brass(path.boundingRect()), width - 1.6, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.translate(-0.4, -0.4);
    painter.setPen(QPen(WithAlpha(paleBrass, 150), std::max(0.6, width / 7)));
    painter.drawPath(path);
    painter.restore();
}

void DrawRivet(QPainter& painter, QPointF centre, double radius)
{
    QRadialGradient gradient(centre, radius, centre - QPointF(radius / 3, radius / 3));
    gradient.setColorAt(0, paleBrass);
    gradient.setColorAt(0.5, brass);
    gradient.setColorAt(1, darkBrass);
    painter.save();
    painter.setPen(QPen(outline, radius / 4));
    painter.setBrush(gradient);
    painter.drawEllipse(centre, radius, radius);
    painter.restore();
}

void DrawBlurred(QPainter& painter, const QPainterPath& path, QPointF offset, int radius, const QColor& colour)
{
    QImage layer = SizeOfTarget(painter);
    {
        QPainter shape(&layer);
        shape.setRenderHint(QPainter::Antialiasing);
        shape.translate(offset);
        shape.setTransform(painter.transform(), true);
        shape.fillPath(path, colour);
    }
    Blur(layer, radius);
    DrawUntransformed(painter, layer);
}

void DrawSunken(QPainter& painter, const QPainterPath& path, QPointF offset, int radius, const QColor& colour)
{
    const QPainterPath shape = painter.transform().map(path);
    QPainterPath outside;
    outside.addRect(QRectF(painter.device()->width() * -1.0, painter.device()->height() * -1.0,
        painter.device()->width() * 3.0, painter.device()->height() * 3.0));
    painter.save();
    painter.resetTransform();
    painter.setClipPath(shape, Qt::IntersectClip);
    DrawBlurred(painter, outside - shape, offset, radius, colour);
    painter.restore();
}

QPainterPath TextPath(const QString& text, int pixelSize, QPointF centre, double weight)
{
    QFont font("AR PL UMing TW");
    font.setPixelSize(pixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addText(0, 0, font, text);
    QPainterPathStroker stroker;
    stroker.setWidth(weight);
    path = path.united(stroker.createStroke(path));
    return path.translated(centre - path.boundingRect().center());
}

float Noise(float x, float y, uint32_t seed, int period)
{
    const int column = static_cast<int>(std::floor(x));
    const int row = static_cast<int>(std::floor(y));
    const auto ease = [](float t) { return t * t * (3 - 2 * t); };
    const auto wrap = [&](int at) { return period > 0 ? (at % period + period) % period : at; };
    const float right = ease(x - std::floor(x));
    const float down = ease(y - std::floor(y));
    const auto between
        = [&](int at) { return std::lerp(Hill(column, wrap(at), seed), Hill(column + 1, wrap(at), seed), right); };
    return std::lerp(between(row), between(row + 1), down);
}

float Terrain(float x, float y, int octaves, uint32_t seed)
{
    float sum = 0;
    float share = 0.5F;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += share * Noise(x, y, seed + static_cast<uint32_t>(octave));
        x *= 2;
        y *= 2;
        share /= 2;
    }
    return sum / (1 - 2 * share);
}

} // namespace artwork
