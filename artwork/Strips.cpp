#include "artwork/Strips.h"

#include "artwork/Painting.h"

#include <algorithm>
#include <array>
#include <cmath>

// The animations: each runs in a circle, its last frame leads to the first.
namespace artwork {

namespace {

constexpr int frames = 8;
constexpr QSize torchSize(48, 64);
constexpr int wheelSize = 64;

struct Heat {
    float at;
    QColor colour;
};

constexpr std::array<Heat, 6> heats { { { 0, QColor(120, 12, 0, 0) }, { 0.14F, QColor(190, 32, 6, 190) },
    { 0.34F, QColor(240, 96, 12, 250) }, { 0.6F, QColor(255, 178, 40) }, { 0.85F, QColor(255, 236, 130) },
    { 1, QColor(255, 253, 226) } } };

QColor FlameColour(float heat)
{
    for (size_t i = 1; i < heats.size(); ++i)
        if (heat < heats[i].at)
            return Mix(
                heats[i - 1].colour, heats[i].colour, (heat - heats[i - 1].at) / (heats[i].at - heats[i - 1].at));
    return heats.back().colour;
}

// A drop shape whose edge is torn by noise that rises by one period in a round.
float FlameHeat(float x, float y, float round)
{
    constexpr int period = 6;
    const float rise = (44 - y) / 43; // 0 at the cup, 1 at the tip
    if (rise < -0.1F || rise > 1)
        return 0;
    const float drift = y / 12 + round * period;
    const float sway = (Noise(x / 40, drift, 71, period) - 0.5F) * 17 * std::max(0.0F, rise);
    const float half = 15.5F * std::sqrt(rise + 0.16F) * std::pow(1 - rise, 0.72F) + 0.1F;
    const float across = std::abs(x - 24 + sway) / half;
    const float torn = (Noise(x / 7, drift, 72, period) - 0.42F) * (0.25F + 0.9F * rise);
    if (across > 1.6F)
        return 0;
    const float heat = (1 - across * across) * (1.0F - 0.45F * rise) + torn;
    return std::clamp(heat * std::min(1.0F, (1 - rise) * 4), 0.0F, 1.0F);
}

QImage Flame(float round)
{
    QImage image = Transparent(torchSize.width(), torchSize.height());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const float heat = FlameHeat(static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F, round);
            image.setPixelColor(x, y, FlameColour(heat));
        }
    }
    return image;
}

void DrawGlow(QPainter& painter, double strength)
{
    QRadialGradient glow(QPointF(24, 30), 24);
    glow.setColorAt(0, QColor(255, 170, 50, static_cast<int>(110 * strength)));
    glow.setColorAt(0.55, QColor(255, 130, 30, static_cast<int>(44 * strength)));
    glow.setColorAt(1, QColor(255, 110, 20, 0));
    painter.fillRect(0, 0, torchSize.width(), torchSize.height(), glow);
}

void DrawSconce(QPainter& painter)
{
    QPainterPath handle(QPointF(20.5, 50));
    handle.lineTo(27.5, 50);
    handle.lineTo(25.5, 61);
    handle.quadTo(24, 64, 22.5, 61);
    handle.closeSubpath();
    QPainterPath cup(QPointF(13, 41.5));
    cup.lineTo(35, 41.5);
    cup.quadTo(34, 51, 28, 52.5);
    cup.lineTo(20, 52.5);
    cup.quadTo(14, 51, 13, 41.5);
    DrawBlurred(painter, handle | cup, { 1, 1 }, 1, WithAlpha(Qt::black, 120));
    QLinearGradient round(QPointF(13, 0), QPointF(35, 0));
    round.setColorAt(0, darkBrass);
    round.setColorAt(0.3, paleBrass);
    round.setColorAt(0.55, brass);
    round.setColorAt(1, Mix(darkBrass, outline, 0.5));
    painter.setPen(QPen(outline, 1));
    painter.setBrush(Mix(teal, darkTeal, 0.6));
    painter.drawPath(handle);
    painter.setBrush(round);
    painter.drawPath(cup);
    painter.drawRoundedRect(QRectF(11.5, 40.5, 25, 3.5), 1.5, 1.5);
    painter.fillRect(QRectF(17, 47, 15, 1.2), WithAlpha(outline, 120));
}

QPainterPath Spokes()
{
    QPainterPath spokes;
    spokes.setFillRule(Qt::WindingFill);
    for (int i = 0; i < 8; ++i) {
        QPainterPath spoke;
        spoke.addRoundedRect(QRectF(-1.7, -24, 3.4, 24), 1, 1);
        spoke.addEllipse(QPointF(0, -14), 2.4, 2.4);
        QPainterPath grip(QPointF(-1.5, -22));
        grip.cubicTo(-4.2, -26, -2.6, -30, 0, -30.5);
        grip.cubicTo(2.6, -30, 4.2, -26, 1.5, -22);
        spokes |= QTransform().rotate(45.0 * i).map(spoke | grip);
    }
    return spokes;
}

void DrawWheel(QPainter& painter, double angle)
{
    painter.translate(wheelSize / 2.0, wheelSize / 2.0 - 0.5);
    const QPainterPath spokes = QTransform().rotate(angle).map(Spokes());
    QPainterPath rim;
    rim.addEllipse(QPointF(0, 0), 20.5, 20.5);
    QPainterPath ring = rim;
    ring.addEllipse(QPointF(0, 0), 14.5, 14.5);
    DrawBlurred(painter, spokes | ring, { 1, 1 }, 1, WithAlpha(Qt::black, 150));
    painter.strokePath(spokes, QPen(outline, 1.6));
    painter.fillPath(spokes, Brass(QRectF(-30, -30, 60, 60)));
    QPainterPath middle;
    middle.addEllipse(QPointF(0, 0), 17.5, 17.5);
    DrawBrassBorder(painter, middle, 8);
    painter.strokePath(middle, QPen(outline, 4.4));
    painter.strokePath(middle, QPen(Mix(teal, paleTeal, 0.2), 3.2));
    painter.setBrush(paleBrass);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 8; ++i)
        painter.drawEllipse(QTransform().rotate(angle + 45 * i).map(QPointF(0, -17.5)), 1.3, 1.3);
    DrawRivet(painter, { 0, 0 }, 6.5);
    QRadialGradient jewel(QPointF(0, 0), 4, QPointF(-1.4, -1.6));
    jewel.setColorAt(0, QColor(255, 190, 170));
    jewel.setColorAt(0.45, ruby);
    jewel.setColorAt(1, darkRuby);
    painter.setPen(QPen(outline, 0.8));
    painter.setBrush(jewel);
    painter.drawEllipse(QPointF(0, 0), 3.8, 3.8);
}

} // namespace

QImage PaintTorch()
{
    return Strip(torchSize, frames, false, [](QPainter& painter, int frame) {
        const float round = static_cast<float>(frame) / frames;
        DrawGlow(painter, 0.8 + 0.2 * Noise(0, round * 4, 73, 4));
        DrawSconce(painter);
        painter.drawImage(0, 0, Flame(round));
    });
}

QImage PaintWheel()
{
    return Strip(QSize(wheelSize, wheelSize), frames, true,
        [](QPainter& painter, int frame) { DrawWheel(painter, 45.0 * frame / frames); });
}

} // namespace artwork
