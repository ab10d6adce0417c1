#include "artwork/Controls.h"

#include "artwork/Painting.h"

#include <array>

// The parts of check boxes and select boxes. They are small: edges lie on whole pixels, only slanted strokes are
// smooth.
namespace artwork {

namespace {

constexpr int boxSize = 16;
constexpr QSize arrowSize(16, 11);

struct ArrowLook {
    QColor edge, top, middle, bottom, ink;
    int drop; // how far a pressed arrow moves down
};

const std::array<ArrowLook, 4> arrowLooks { {
    { outline, Mix(teal, Qt::white, 0.35), teal, Mix(teal, Qt::black, 0.35), paleBrass, 0 },
    { darkBrass, QColor(150, 202, 198), QColor(76, 152, 148), QColor(50, 100, 96), QColor(255, 252, 226), 0 },
    { outline, QColor(6, 28, 32), darkTeal, Mix(darkTeal, teal, 0.5), brass, 1 },
    { outline, QColor(180, 176, 166), QColor(140, 134, 118), QColor(90, 86, 76), QColor(190, 184, 166), 0 },
} };

// A rectangle one pixel wide, its corner pixels left out where `round`.
void DrawOutline(QPainter& painter, const QRect& area, const QColor& colour, bool round)
{
    const int cut = round ? 1 : 0;
    painter.fillRect(area.x() + cut, area.y(), area.width() - 2 * cut, 1, colour);
    painter.fillRect(area.x() + cut, area.bottom(), area.width() - 2 * cut, 1, colour);
    painter.fillRect(area.x(), area.y() + 1, 1, area.height() - 2, colour);
    painter.fillRect(area.right(), area.y() + 1, 1, area.height() - 2, colour);
}

// A sunken field of paper in a brass frame; its corners are transparent.
void DrawField(QPainter& painter, const QRect& area, const QColor& paper, const QColor& metal)
{
    DrawOutline(painter, area, outline, true);
    const QRect frame = area.adjusted(1, 1, -1, -1);
    painter.fillRect(frame, Downward(frame, { Mix(metal, paleBrass, 0.7), metal, Mix(metal, darkBrass, 0.7) }));
    const QRect well = frame.adjusted(1, 1, -1, -1);
    painter.fillRect(well, Downward(well, { Mix(paper, darkParchment, 0.25), paper, Mix(paper, Qt::white, 0.35) }));
    DrawOutline(painter, well, WithAlpha(sepia, 60), false);
    painter.fillRect(well.x(), well.y(), well.width(), 1, WithAlpha(sepia, 150));
    painter.fillRect(well.x(), well.y(), 1, well.height(), WithAlpha(sepia, 110));
}

void DrawTick(QPainter& painter, QPointF origin, const QColor& colour, double width)
{
    painter.save();
    painter.translate(origin);
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({ { 4.2, 8.2 }, { 7.0, 11.2 }, { 12.0, 4.4 } }));
    painter.restore();
}

void DrawArrowButton(QPainter& painter, const ArrowLook& look, bool up)
{
    const QRect area(QPoint(0, 0), arrowSize);
    const QRect inner = area.adjusted(1, 1, -1, -1);
    DrawOutline(painter, area, look.edge, true);
    painter.fillRect(inner, Downward(inner, { look.top, look.middle, look.bottom }));
    painter.fillRect(inner.x(), inner.y(), inner.width(), 1, WithAlpha(look.top, 120));
    const auto drawTriangle = [&](int drop, const QColor& colour) {
        for (int row = 0; row < 4; ++row)
            painter.fillRect(7 - row, 3 + drop + (up ? row : 4 - row), 2 + 2 * row, 1, colour);
    };
    drawTriangle(look.drop + 1, look.bottom);
    drawTriangle(look.drop, look.ink);
}

} // namespace

QImage PaintCheckBoxes()
{
    return Strip(QSize(boxSize, boxSize), 4, true, [](QPainter& painter, int section) {
        const QRect area(0, 0, boxSize, boxSize);
        const QColor ink = Mix(teal, darkTeal, 0.4);
        const bool disabled = section == 3;
        DrawField(
            painter, area, disabled ? QColor(168, 160, 142) : paleParchment, disabled ? QColor(140, 130, 108) : brass);
        if (section == 1) {
            DrawTick(painter, { 0.4, 0.8 }, WithAlpha(sepia, 90), 3.0);
            DrawTick(painter, { 0, 0 }, ink, 2.6);
        } else if (section > 1) {
            painter.fillRect(area.adjusted(5, 7, -5, -7), disabled ? QColor(126, 118, 102) : ink);
        }
    });
}

QImage PaintEditBox()
{
    QImage image = Transparent(160, 26);
    QPainter painter(&image);
    DrawField(painter, image.rect(), paleParchment, brass);
    // The arrow buttons lie on a dark strip at the right, two pixels from the edge.
    const QRect strip(image.width() - arrowSize.width() - 4, 1, arrowSize.width() + 3, image.height() - 2);
    painter.fillRect(strip, Mix(darkTeal, Qt::black, 0.2));
    painter.fillRect(strip.x() - 1, strip.y() + 1, 1, strip.height() - 2, darkBrass);
    painter.fillRect(strip.right(), strip.y() + 1, 1, strip.height() - 2, brass);
    painter.fillRect(strip.x(), strip.bottom(), strip.width(), 1, Mix(brass, darkBrass, 0.7));
    return image;
}

QImage PaintArrowButtons(bool up)
{
    return Strip(arrowSize, static_cast<int>(arrowLooks.size()), false, [up](QPainter& painter, int section) {
        DrawArrowButton(painter, arrowLooks[static_cast<size_t>(section)], up);
    });
}

} // namespace artwork
