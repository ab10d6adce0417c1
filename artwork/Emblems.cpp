#include "artwork/Emblems.h"

#include "artwork/Painting.h"

#include <array>
#include <cmath>
#include <numbers>

// Three single pictures: a gem, a portrait and a sealed note.
namespace artwork {

namespace {

// Dusk: sky, moon and three ranges of hills that darken towards the front.
void DrawDusk(QPainter& painter, const QRectF& area)
{
    painter.fillRect(area,
        Downward(
            area, { QColor(20, 44, 74), QColor(58, 96, 122), QColor(226, 150, 96), QColor(250, 214, 140), darkTeal }));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 248, 220));
    for (int star = 0; star < 22; ++star)
        painter.drawEllipse(area.topLeft()
                + QPointF(area.width() * Noise(static_cast<float>(star) * 3, 0, 5),
                    area.height() * 0.36 * Noise(static_cast<float>(star) * 3, 9, 6)),
            0.7, 0.7);
    const QPointF moon = area.topLeft() + QPointF(area.width() * 0.66, area.height() * 0.26);
    QRadialGradient halo(moon, 30);
    halo.setColorAt(0, QColor(255, 244, 200, 200));
    halo.setColorAt(1, QColor(255, 244, 200, 0));
    painter.fillRect(area, halo);
    painter.setBrush(QColor(255, 247, 222));
    painter.drawEllipse(moon, 10, 10);
    const std::array<QColor, 3> ranges { QColor(120, 118, 130), QColor(52, 92, 98), QColor(12, 42, 48) };
    for (size_t i = 0; i < ranges.size(); ++i) {
        QPainterPath hills(area.bottomLeft());
        for (int x = 0; x <= static_cast<int>(area.width()); ++x) {
            const float height = Terrain(
                static_cast<float>(x) / (52 - 10 * static_cast<float>(i)), 3, 4, 20 + static_cast<uint32_t>(i));
            hills.lineTo(area.left() + x,
                area.top() + area.height() * (0.5 + 0.13 * static_cast<double>(i)) + 64 * (0.6 - height));
        }
        hills.lineTo(area.bottomRight());
        painter.fillPath(hills, Downward(hills.boundingRect(), { ranges[i], Mix(ranges[i], darkTeal, 0.5) }));
    }
}

} // namespace

QImage PaintGem()
{
    QImage image = Transparent(72, 64);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // The crown's inner and outer corners, and the point below.
    const QPolygonF outer({ { 1, 22 }, { 16, 3 }, { 56, 3 }, { 71, 22 } });
    const QPolygonF inner({ { 18, 22 }, { 27, 12 }, { 45, 12 }, { 54, 22 } });
    const QPointF point(36, 62);
    const auto facet = [&](const QPolygonF& corners, int share) {
        painter.setPen(QPen(QColor(255, 190, 176, 110), 0.7));
        painter.setBrush(
            share < 50 ? Mix(darkRuby, ruby, share / 50.0) : Mix(ruby, QColor(255, 128, 116), share / 50.0 - 1));
        painter.drawPolygon(corners);
    };
    facet({ outer[0], outer[1], inner[1], inner[0] }, 72);
    facet({ outer[1], outer[2], inner[2], inner[1] }, 92);
    facet({ outer[2], outer[3], inner[3], inner[2] }, 40);
    facet({ inner[0], inner[1], inner[2], inner[3] }, 62);
    facet({ outer[0], inner[0], point }, 50);
    facet({ inner[0], QPointF(36, 22), point }, 66);
    facet({ QPointF(36, 22), inner[3], point }, 30);
    facet({ inner[3], outer[3], point }, 12);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 244, 240, 210));
    painter.drawPolygon(QPolygonF({ { 28, 13 }, { 37, 13 }, { 30, 21 }, { 20, 21 } }));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(darkRuby.darker(160), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolygon(outer + QPolygonF({ point }));
    return image;
}

QImage PaintPortrait()
{
    QImage image = Transparent(152, 184);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area(16, 14, 116, 148);
    QPainterPath oval;
    oval.addEllipse(area);
    DrawBlurred(painter, oval, { 4, 7 }, 4, WithAlpha(outline, 220));
    painter.save();
    painter.setClipPath(oval);
    DrawDusk(painter, area);
    painter.restore();
    DrawSunken(painter, oval, { 4, 6 }, 5, WithAlpha(Qt::black, 230));
    DrawBrassBorder(painter, oval, 13);
    painter.setBrush(Qt::NoBrush);
    for (const double inset : { 3.6, -3.6 }) {
        painter.setPen(QPen(WithAlpha(outline, 130), 1));
        painter.drawEllipse(area.adjusted(inset, inset, -inset, -inset));
    }
    for (int bead = 0; bead < 28; ++bead) {
        const double angle = bead * 2 * std::numbers::pi / 28;
        const QPointF centre
            = area.center() + QPointF(area.width() / 2 * std::cos(angle), area.height() / 2 * std::sin(angle));
        DrawRivet(painter, centre, bead % 7 == 0 ? 4.2 : 1.9);
    }
    return image;
}

QImage PaintNote()
{
    QImage image = Transparent(260, 176);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area(12, 10, 232, 148);
    const QPainterPath sheet = Cartouche(area, 9);
    DrawBlurred(painter, sheet, { 4, 6 }, 4, WithAlpha(outline, 200));
    painter.fillPath(sheet, Downward(area, { QColor(255, 248, 226), paleParchment, parchment }));
    DrawSunken(painter, sheet, { 0, 0 }, 6, WithAlpha(darkParchment, 200));
    painter.strokePath(sheet, QPen(Mix(darkParchment, sepia, 0.5), 1.2));
    painter.strokePath(Cartouche(area.adjusted(7, 7, -7, -7), 8), QPen(WithAlpha(teal, 200), 1.4));
    painter.strokePath(Cartouche(area.adjusted(10, 10, -10, -10), 8), QPen(WithAlpha(darkBrass, 130), 0.8));
    QPainterPath seal;
    for (int i = 0; i <= 120; ++i) {
        const double angle = i * 2 * std::numbers::pi / 120;
        const double radius = 18 + 1.5 * std::sin(5 * angle + 0.6) + std::sin(9 * angle);
        const QPointF at = QPointF(212, 132) + QPointF(radius * std::cos(angle), radius * std::sin(angle));
        i == 0 ? seal.moveTo(at) : seal.lineTo(at);
    }
    DrawBlurred(painter, seal, { 2, 3 }, 2, WithAlpha(outline, 190));
    painter.fillPath(seal, Downward(seal.boundingRect(), { QColor(214, 74, 70), ruby, darkRuby }));
    painter.setPen(QPen(WithAlpha(darkRuby, 200), 1.6));
    painter.setBrush(WithAlpha(ruby, 255));
    painter.drawEllipse(QPointF(212, 132), 12.5, 12.5);
    const QPainterPath sign = TextPath(QStringLiteral("編"), 17, { 212, 132 }, 0.8);
    painter.fillPath(sign.translated(0.8, 0.9), WithAlpha(QColor(255, 170, 150), 150));
    painter.fillPath(sign, darkRuby);
    return image;
}

} // namespace artwork
