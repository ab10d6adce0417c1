#include "tests/support/BmpFile.h"

#include <filesystem>
#include <fstream>

std::vector<uint32_t> BmpFile::GreyPalette()
{
    std::vector<uint32_t> greys;
    for (uint32_t grey = 0; grey < 256; ++grey)
        greys.push_back(grey << 16 | grey << 8 | grey);
    return greys;
}

std::string BmpFile::Bytes() const
{
    const size_t paletteStart = 14 + size_t { infoHeaderSize };
    const size_t pixelStart = paletteStart + 4 * palette.size();
    const auto columns = static_cast<size_t>(width);
    const auto rows = static_cast<size_t>(height);
    const size_t stride = (columns + 3) / 4 * 4;
    std::string bytes(pixelStart + stride * rows, '\0');
    bytes[0] = 'B';
    bytes[1] = 'M';
    PutLong(bytes, 2, static_cast<uint32_t>(bytes.size()));
    PutLong(bytes, 10, static_cast<uint32_t>(pixelStart));
    PutLong(bytes, 14, infoHeaderSize);
    PutLong(bytes, 18, static_cast<uint32_t>(width));
    PutLong(bytes, 22, static_cast<uint32_t>(height));
    PutWord(bytes, 26, 1);
    PutWord(bytes, 28, 8);
    for (size_t i = 0; i < palette.size(); ++i)
        PutLong(bytes, paletteStart + 4 * i, palette[i]);
    for (size_t i = 0; i < columns * rows; ++i)
        bytes[pixelStart + (rows - 1 - i / columns) * stride + i % columns] = static_cast<char>(indices[i]);
    return bytes;
}

void BmpFile::Write(const std::string& path) const
{
    WriteBytes(path, Bytes());
}

void PutWord(std::string& bytes, size_t offset, uint16_t value)
{
    bytes[offset] = static_cast<char>(value & 0xFF);
    bytes[offset + 1] = static_cast<char>(value >> 8);
}

void PutLong(std::string& bytes, size_t offset, uint32_t value)
{
    PutWord(bytes, offset, static_cast<uint16_t>(value & 0xFFFF));
    PutWord(bytes, offset + 2, static_cast<uint16_t>(value >> 16));
}

void WriteBytes(const std::string& path, const std::string& bytes)
{
    std::filesystem::remove(path); // rewriting a file in place waits for the disk
    std::ofstream(path, std::ios::binary) << bytes;
}
