#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// An uncompressed 8-bit BMP for a test. Any header field can be changed in its bytes, which can be cut at any length.
struct BmpFile {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> indices; // palette indices, top row first; width * height of them
    std::vector<uint32_t> palette = GreyPalette(); // 0xRRGGBB
    uint32_t infoHeaderSize = 40;

    // Filled with one index.
    BmpFile(int columns, int rows, uint8_t index = 0)
        : width(columns)
        , height(rows)
        , indices(static_cast<size_t>(columns) * static_cast<size_t>(rows), index)
    {
    }

    // 256 greys from black to white: with it an index is an alpha value.
    static std::vector<uint32_t> GreyPalette();

    uint8_t& At(int x, int y) { return indices[static_cast<size_t>(y * width + x)]; }
    std::string Bytes() const;
    // To the native path.
    void Write(const std::string& path) const;
};

// Little-endian fields at a place of the file.
void PutWord(std::string& bytes, size_t offset, uint16_t value);
void PutLong(std::string& bytes, size_t offset, uint32_t value);
void WriteBytes(const std::string& path, const std::string& bytes);
