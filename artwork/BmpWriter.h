#pragma once

#include <QColor>
#include <QString>
#include <array>
#include <cstdint>
#include <vector>

namespace artwork {

// A picture of at most 256 colours, rows from the top without padding.
struct IndexedPicture {
    int width = 0;
    int height = 0;
    std::array<QRgb, 256> palette {};
    std::vector<uint8_t> indices;
};

// Writes an uncompressed 8-bit BMP with a 40-byte header, 256 palette entries and the bottom row first. Replaces the
// file only when all of it is written; false when it cannot be.
[[nodiscard]] bool WriteBmp(const QString& path, const IndexedPicture& picture);

} // namespace artwork
