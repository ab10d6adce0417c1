#include "artwork/IconSource.h"

#include "artwork/Painting.h"

#include <QSaveFile>

namespace artwork {

namespace {

constexpr double grid = 32; // The icon is drawn on a grid of this size.

void DrawScene(QPainter& painter, const QRectF& area)
{
    painter.save();
    painter.setClipRect(area);
    painter.fillRect(area, Downward(area, { QColor(24, 84, 96), QColor(110, 178, 168), QColor(250, 226, 160) }));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 250, 224));
    painter.drawEllipse(QPointF(10, 10), 2.6, 2.6);
    QPainterPath far(QPointF(3, 24));
    far.cubicTo(9, 12, 12, 13, 16, 19);
    far.cubicTo(20, 14, 24, 15, 29, 22);
    far.lineTo(29, 28);
    far.lineTo(3, 28);
    painter.fillPath(far, teal);
    QPainterPath near(QPointF(3, 25));
    near.cubicTo(10, 20, 18, 24, 29, 21);
    near.lineTo(29, 28);
    near.lineTo(3, 28);
    painter.fillPath(near, darkTeal);
    painter.restore();
}

void DrawBrush(QPainter& painter)
{
    QPainterPath hair(QPointF(13.2, 24.4));
    hair.cubicTo(13.4, 21.2, 15.4, 19.0, 17.4, 18.6);
    hair.lineTo(20.2, 21.4);
    hair.cubicTo(19.6, 23.6, 16.6, 24.8, 13.2, 24.4);
    QPainterPath ferrule;
    ferrule.addPolygon(QPolygonF({ { 17.2, 18.4 }, { 20.4, 14.6 }, { 24.2, 18.4 }, { 20.4, 21.6 } }));
    ferrule.closeSubpath();
    QPainterPath handle(QPointF(20.4, 14.6));
    handle.cubicTo(24, 10, 28, 5, 31, 2);
    handle.cubicTo(30.4, 6, 28, 13, 24.2, 18.4);
    handle.closeSubpath();
    const QPen edge(outline, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    for (const QPainterPath& part : { hair, ferrule, handle })
        painter.strokePath(part, edge);
    painter.fillPath(hair, ruby);
    painter.fillPath(ferrule, Brass(ferrule.boundingRect()));
    painter.fillPath(handle, Downward(handle.boundingRect(), { paleBrass, brass, darkBrass }));
}

QByteArray PixelArray(const char* name, const QImage& icon)
{
    QByteArray text = QByteArray("constexpr uint32_t ") + name + "[] = {\n";
    int count = 0;
    for (int y = 0; y < icon.height(); ++y)
        for (int x = 0; x < icon.width(); ++x) {
            text += count % 8 == 0 ? "    0x" : " 0x";
            text += QByteArray::number(icon.pixel(x, y), 16).rightJustified(8, '0').toUpper();
            text += ++count % 8 == 0 ? ",\n" : ",";
        }
    return text + "};\n\n";
}

} // namespace

QImage PaintIcon(int size)
{
    QImage image = Transparent(size, size);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / grid, size / grid);
    const QRectF frame(2.5, 4.5, 25, 24);
    DrawScene(painter, frame);
    QPainterPath border;
    border.addRoundedRect(frame, 1, 1);
    DrawBrassBorder(painter, border, 4.4);
    DrawBrush(painter);
    return image;
}

bool WriteIconSource(const QString& folder)
{
    QByteArray text = "// Drawn by the artwork program; building the target workspace_pictures writes this file anew.\n"
                      "#include \"resources/IconPictures.h\"\n\n"
                      "#include \"resources/ResourceIds.h\"\n\n"
                      "namespace {\n\n"
                      "// clang-format off\n";
    text += PixelArray("largePixels", PaintIcon(32).convertToFormat(QImage::Format_ARGB32));
    text += PixelArray("smallPixels", PaintIcon(16).convertToFormat(QImage::Format_ARGB32));
    text += "// clang-format on\n\n"
            "} // namespace\n\n"
            "constinit const platform::Icon largeIcon { LargeIconId, 32, largePixels };\n"
            "constinit const platform::Icon smallIcon { SmallIconId, 16, smallPixels };\n";
    QSaveFile file(folder + "/IconPictures.cpp");
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

} // namespace artwork
