#include "artwork/BmpWriter.h"

#include <QSaveFile>

namespace artwork {

namespace {

constexpr int fileHeaderBytes = 14;
constexpr int infoHeaderBytes = 40;
constexpr int pixelOffset = fileHeaderBytes + infoHeaderBytes + 256 * 4;

void Append(QByteArray& bytes, uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.append(static_cast<char>(value >> (8 * i) & 0xFF));
}

void AppendHeaders(QByteArray& bytes, const IndexedPicture& picture, uint32_t pixelBytes)
{
    bytes.append("BM");
    Append(bytes, pixelOffset + pixelBytes, 4);
    Append(bytes, 0, 4);
    Append(bytes, pixelOffset, 4);
    Append(bytes, infoHeaderBytes, 4);
    Append(bytes, static_cast<uint32_t>(picture.width), 4);
    Append(bytes, static_cast<uint32_t>(picture.height), 4);
    Append(bytes, 1, 2); // planes
    Append(bytes, 8, 2); // bits per pixel
    Append(bytes, 0, 4); // uncompressed
    Append(bytes, pixelBytes, 4);
    Append(bytes, 2835, 4); // 72 dots per inch, across and down
    Append(bytes, 2835, 4);
    Append(bytes, 256, 4);
    Append(bytes, 0, 4);
}

} // namespace

bool WriteBmp(const QString& path, const IndexedPicture& picture)
{
    const int stride = (picture.width + 3) & ~3;
    QByteArray bytes;
    AppendHeaders(bytes, picture, static_cast<uint32_t>(stride * picture.height));
    for (const QRgb colour : picture.palette)
        Append(bytes, colour & 0xFFFFFF, 4);
    for (int y = picture.height - 1; y >= 0; --y) {
        bytes.append(reinterpret_cast<const char*>(picture.indices.data()) + y * picture.width, picture.width);
        bytes.append(stride - picture.width, '\0');
    }
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

} // namespace artwork
