#include "artwork/Logo.h"

#include "artwork/Painting.h"

namespace artwork {

namespace {

// The name in letters of our own, built from strokes and slabs on a baseline at 0.
class Lettering {
public:
    QPainterPath Name()
    {
        letters.setFillRule(Qt::WindingFill);
        Rect(-2, -50, 44, 8); // T
        Polygon({ { -2, -43 }, { 5, -43 }, { 1, -33 }, { -2, -33 } });
        Polygon({ { 42, -43 }, { 35, -43 }, { 39, -33 }, { 42, -33 } });
        Stem(20, -48);
        Bowl(60, 17); // o
        Stem(92, -52, -7);
        Bowl(103, 15, 92); // b
        Stem(136, -34, -7); // r
        Stroke({ 138, -20 }, { 141, -31 }, { 148, -33 }, { 155, -29 }, 7.5);
        Stem(170, -34, -7); // i
        Polygon({ { 170, -53 }, { 177, -46 }, { 170, -39 }, { 163, -46 } });
        Stem(194, -52, -7); // k
        Polygon({ { 197, -15 }, { 211, -30 }, { 217, -30 }, { 205, -17.5 }, { 219, -2 }, { 209, -2 } });
        Rect(205, -34, 17, 4.6);
        Rect(206, -4.6, 19, 4.6);
        return letters;
    }

private:
    void Rect(double x, double y, double width, double height)
    {
        QPainterPath part;
        part.addRect(x, y, width, height);
        letters |= part;
    }

    void Polygon(const QPolygonF& points)
    {
        QPainterPath part;
        part.addPolygon(points);
        part.closeSubpath();
        letters |= part;
    }

    // An upright with a slab at its foot and, where `flag` is given, one to the left of its head.
    void Stem(double x, double top, double flag = 0)
    {
        Rect(x - 4.8, top, 9.6, -top);
        Rect(x - 10.5, -4.6, 21, 4.6);
        if (flag < 0)
            Polygon({ { x, top }, { x - 4.8 + flag, top + 1.6 }, { x - 4.8 + flag, top + 5 }, { x, top + 6.4 } });
    }

    // A ring that is thicker at its sides; nothing of it lies left of `from`.
    void Bowl(double x, double radius, double from = -100)
    {
        QPainterPath ring;
        ring.addEllipse(QPointF(x, -17), radius, 18);
        ring.addEllipse(QPointF(x, -17), radius - 9, 12.6);
        QPainterPath kept;
        kept.addRect(from, -60, 200, 80);
        letters |= ring & kept;
    }

    void Stroke(QPointF from, QPointF first, QPointF second, QPointF to, double width)
    {
        QPainterPath line(from);
        line.cubicTo(first, second, to);
        QPainterPathStroker stroker;
        stroker.setWidth(width);
        stroker.setCapStyle(Qt::RoundCap);
        letters |= stroker.createStroke(line);
    }

    QPainterPath letters;
};

QPainterPath Diamond(QPointF centre, double radius)
{
    QPainterPath path(centre + QPointF(0, -radius));
    path.lineTo(centre + QPointF(radius, 0));
    path.lineTo(centre + QPointF(0, radius));
    path.lineTo(centre + QPointF(-radius, 0));
    path.closeSubpath();
    return path;
}

void DrawPlate(QPainter& painter, const QRectF& area)
{
    const QPainterPath plate = Cartouche(area, 15);
    DrawBlurred(painter, plate, { 0, 0 }, 4, QColor(255, 206, 110, 170));
    DrawBlurred(painter, plate, { 3, 5 }, 3, WithAlpha(outline, 190));
    painter.fillPath(plate, Downward(area, { Mix(teal, paleTeal, 0.25), teal, darkTeal }));
    painter.save();
    painter.setClipPath(plate);
    painter.translate(area.center());
    for (int ray = 0; ray < 24; ++ray) {
        QPainterPath beam(QPointF(0, 0));
        beam.lineTo(-13, -200);
        beam.lineTo(13, -200);
        painter.fillPath(beam, WithAlpha(Qt::white, 13));
        painter.rotate(15);
    }
    painter.restore();
    DrawSunken(painter, plate, { 2, 3 }, 4, WithAlpha(Qt::black, 190));
    DrawBrassBorder(painter, plate, 6.5);
    painter.strokePath(Cartouche(area.adjusted(8, 8, -8, -8), 13), QPen(WithAlpha(brass, 190), 1.1));
}

// Raised brass: a shadow beneath, a dark edge, a polished face with a bright upper rim.
void DrawBrassLetters(QPainter& painter, const QPainterPath& letters)
{
    DrawBlurred(painter, letters, { 2, 3 }, 2, WithAlpha(Qt::black, 220));
    painter.strokePath(letters, QPen(outline, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QRectF area = letters.boundingRect();
    painter.fillPath(
        letters, Downward(area, { QColor(255, 250, 220), paleBrass, brass, Mix(brass, darkBrass, 0.75), brass }));
    painter.save();
    painter.setClipPath(letters);
    painter.strokePath(letters.translated(0.6, 0.8), QPen(WithAlpha(Qt::white, 170), 1));
    painter.restore();
}

} // namespace

QImage PaintLogo()
{
    QImage image = Transparent(320, 148);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    DrawPlate(painter, QRectF(18, 15, 284, 114));
    QPainterPath name = Lettering().Name();
    const QPointF centre = name.boundingRect().center();
    name = QTransform().translate(160, 59).scale(1.02, 1.02).translate(-centre.x(), -centre.y()).map(name);
    DrawBrassLetters(painter, name);
    const QPainterPath subtitle = TextPath(QStringLiteral("畫 面 編 輯"), 20, { 160, 107 }, 0.7);
    painter.fillPath(subtitle.translated(1, 1), WithAlpha(Qt::black, 190));
    painter.fillPath(subtitle, paleBrass);
    for (const double side : { -1.0, 1.0 }) {
        painter.setPen(QPen(brass, 1.4));
        painter.drawLine(QPointF(160 + side * 68, 107), QPointF(160 + side * 106, 107));
        painter.fillPath(Diamond({ 160 + side * 110, 107 }, 4), paleBrass);
        painter.fillPath(Diamond({ 160 + side * 66, 107 }, 3), brass);
    }
    return image;
}

} // namespace artwork
