#include "artwork/Buttons.h"

#include "artwork/Painting.h"

// Two buttons with soft shadows: a pill of teal enamel and a plaque of red lacquer.
namespace artwork {

namespace {

constexpr QSize sectionSize(132, 52);
constexpr QRectF body(9.5, 7.5, 113, 34);

enum Look { Normal, Hover, Pressed, Disabled };

struct Enamel {
    QColor pale, middle, dark;
};

constexpr Enamel tealEnamel { paleTeal, teal, darkTeal };
constexpr Enamel rubyEnamel { QColor(226, 104, 84), ruby, darkRuby };
constexpr Enamel greyEnamel { QColor(176, 168, 150), QColor(142, 134, 118), QColor(110, 102, 88) };

QPainterPath Pill()
{
    QPainterPath path;
    path.addRoundedRect(body, body.height() / 2, body.height() / 2);
    return path;
}

QPainterPath Plaque()
{
    constexpr double tip = 14;
    QPainterPath path(QPointF(body.left(), body.center().y()));
    path.quadTo(body.left() + tip - 3, body.center().y() - 3, body.left() + tip, body.top());
    path.lineTo(body.right() - tip, body.top());
    path.quadTo(body.right() - tip + 3, body.center().y() - 3, body.right(), body.center().y());
    path.quadTo(body.right() - tip + 3, body.center().y() + 3, body.right() - tip, body.bottom());
    path.lineTo(body.left() + tip, body.bottom());
    path.quadTo(body.left() + tip - 3, body.center().y() + 3, body.left(), body.center().y());
    return path;
}

void DrawFace(QPainter& painter, const QPainterPath& shape, const Enamel& enamel, Look look)
{
    if (look == Pressed) {
        painter.fillPath(shape, Downward(body, { enamel.dark, enamel.dark, Mix(enamel.dark, enamel.middle, 0.7) }));
        DrawSunken(painter, shape, { 2, 4 }, 3, WithAlpha(Qt::black, 200));
        return;
    }
    const QColor top = look == Hover ? Mix(enamel.pale, Qt::white, 0.35) : enamel.pale;
    const QColor middle = look == Hover ? Mix(enamel.middle, enamel.pale, 0.55) : enamel.middle;
    painter.fillPath(shape, Downward(body, { top, middle, middle, look == Hover ? enamel.middle : enamel.dark }));
    QPainterPath gloss;
    gloss.addEllipse(QRectF(body.left() - 10, body.top() - 24, body.width() + 20, 38));
    painter.fillPath(shape & gloss, WithAlpha(Qt::white, look == Disabled ? 20 : look == Hover ? 70 : 38));
}

void DrawCaption(QPainter& painter, const QPainterPath& text, Look look)
{
    const QRectF area = text.boundingRect();
    if (look == Disabled) {
        painter.fillPath(text.translated(0, 1), WithAlpha(Qt::white, 90));
        painter.fillPath(text, QColor(84, 78, 68));
        return;
    }
    if (look == Hover)
        DrawBlurred(painter, text, { 0, 0 }, 2, QColor(255, 232, 150));
    DrawBlurred(painter, text, { 1, 1 }, 1, WithAlpha(Qt::black, look == Hover ? 120 : 210));
    const QColor lower = look == Hover ? paleBrass : look == Pressed ? brass : Mix(brass, paleBrass, 0.4);
    painter.fillPath(
        text, Downward(area, { look == Pressed ? Mix(brass, paleBrass, 0.4) : QColor(255, 252, 232), lower }));
}

void DrawButton(QPainter& painter, const QPainterPath& shape, const Enamel& enamel, const QString& caption, Look look)
{
    painter.save();
    if (look == Hover) {
        DrawBlurred(painter, shape, { 0, 0 }, 4, QColor(255, 196, 70));
        DrawBlurred(painter, shape, { 0, 0 }, 2, QColor(255, 224, 130));
    }
    DrawBlurred(painter, shape, { 1.0, look == Pressed ? 1.0 : 4.0 }, look == Pressed ? 1 : 2, WithAlpha(outline, 170));
    if (look == Pressed)
        painter.translate(0, 2);
    DrawFace(painter, shape, look == Disabled ? greyEnamel : enamel, look);
    DrawBrassBorder(painter, shape, 4.4);
    if (look == Disabled)
        painter.strokePath(shape, QPen(WithAlpha(greyEnamel.middle, 190), 3.4));
    const double inset = 15;
    for (const double x : { body.left() + inset, body.right() - inset })
        DrawRivet(painter, { x, body.center().y() }, look == Disabled ? 1.4 : 2.2);
    DrawCaption(painter, TextPath(caption, 21, body.center(), 0.9), look);
    painter.restore();
}

QImage PaintLooks(const QPainterPath& shape, const Enamel& enamel, const QString& caption, int count, bool stacked)
{
    return Strip(sectionSize, count, stacked,
        [&](QPainter& painter, int look) { DrawButton(painter, shape, enamel, caption, static_cast<Look>(look)); });
}

} // namespace

QImage PaintStartButtons()
{
    return PaintLooks(Pill(), tealEnamel, QStringLiteral("開始"), 3, false);
}

QImage PaintMenuButtons()
{
    return PaintLooks(Plaque(), rubyEnamel, QStringLiteral("選單"), 4, true);
}

} // namespace artwork
