#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <functional>

// What the pictures have in common: their colours, their light from the upper left, brass, shadows and paper.
namespace artwork {

inline constexpr QColor paleParchment(246, 234, 205);
inline constexpr QColor parchment(230, 210, 164);
inline constexpr QColor darkParchment(176, 138, 84);
inline constexpr QColor sepia(96, 66, 32);
inline constexpr QColor paleTeal(92, 170, 164);
inline constexpr QColor teal(30, 98, 102);
inline constexpr QColor darkTeal(10, 46, 54);
inline constexpr QColor ruby(170, 36, 48);
inline constexpr QColor darkRuby(84, 10, 24);
inline constexpr QColor paleBrass(255, 240, 184);
inline constexpr QColor brass(216, 168, 76);
inline constexpr QColor darkBrass(116, 74, 24);
inline constexpr QColor outline(44, 26, 12);

// A picture with nothing on it, premultiplied, as every picture is painted; sizes are pixels.
QImage Transparent(int width, int height);
// Sections of one size in a row or a column; `paint` gets a smooth painter of one section and the section's number.
QImage Strip(QSize section, int count, bool stacked, const std::function<void(QPainter&, int)>& paint);
// All of `from` at a share of 0, all of `to` at 1.
QColor Mix(const QColor& from, const QColor& to, double share);
// Alpha 0 to 255.
QColor WithAlpha(QColor colour, int alpha);

// From the top of the area to its bottom; the colours are spaced evenly, at least two.
QLinearGradient Downward(const QRectF& area, std::initializer_list<QColor> evenly);
QLinearGradient Brass(const QRectF& area);

// A rectangle whose corners are cut away by circles.
QPainterPath Cartouche(const QRectF& area, double corner);

// A border of polished brass along a path, between two dark lines.
void DrawBrassBorder(QPainter& painter, const QPainterPath& path, double width);
void DrawRivet(QPainter& painter, QPointF centre, double radius);

// The path's shape in one colour, blurred: a shadow or a glow. Blurring reaches about three times the radius.
void DrawBlurred(QPainter& painter, const QPainterPath& path, QPointF offset, int radius, const QColor& colour);

// The same within the path: what a sunken surface gets from its border.
void DrawSunken(QPainter& painter, const QPainterPath& path, QPointF offset, int radius, const QColor& colour);

// A line of Chinese text about its centre; the face has thin strokes, `weight` pixels are added to them.
QPainterPath TextPath(const QString& text, int pixelSize, QPointF centre, double weight);

// Smooth random values, 0 to 1, one hill a unit; the same every time. A period repeats the rows of hills.
float Noise(float x, float y, uint32_t seed, int period = 0);
// Hills upon hills, each octave half as large and half as high.
float Terrain(float x, float y, int octaves, uint32_t seed);

} // namespace artwork
