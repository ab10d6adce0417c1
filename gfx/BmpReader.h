#pragma once

#include "gfx/FileR.h"
#include "gfx/LoadFailure.h"

#include <cstdint>
#include <memory>
#include <span>

// A palette entry as the file has it.
struct SBmpColor_ {
    uint8_t blue = 0;
    uint8_t green = 0;
    uint8_t red = 0;
    uint8_t reserved = 0;
};

// Reads an uncompressed BMP of 8 or 24 bits per pixel row by row. Sizes are 1 to 65535 pixels, rows are stored bottom
// first.
class CBmpReader_ : private CFileR_ {
public:
    static constexpr int paletteSize = 256;

    // The name is a backslash path in code page 950. Closes what was open before. False, with nothing open, when the
    // file cannot be read, is no such BMP or is too short for its pixels (the padding of the last stored row may be
    // missing).
    [[nodiscard]] bool Open_(const char* fileName);
    // Why the last Open_ answered false.
    const SLoadFailure_& Failure_() const { return failure; }
    // Row 0 is the top one, and the last one in the file: rows are read quickest from the highest number down. Writes
    // width * bits / 8 bytes, palette indices or blue, green and red. False without a file or a buffer, for a row that
    // is not there, and when it cannot be read.
    [[nodiscard]] bool ReadRow_(uint32_t row, uint8_t* buffer);
    void Close_();

    uint32_t Width_() const { return width; }
    int32_t Height_() const { return height; }
    uint8_t BitsPerPixel_() const { return bitsPerPixel; }
    // The palette entries that the file defines: as many as fit between its headers and its pixels.
    uint16_t ColorCount_() const { return colorCount; }
    // Black for entries that the file does not define and without a palette.
    SBmpColor_ PaletteEntry_(uint8_t index) const { return palette ? palette[index] : SBmpColor_ {}; }

private:
    struct SHeader_;

    LoadProblem ParseHeaders_();
    LoadProblem ReadPalette_(const SHeader_& header);

    uint32_t width = 0;
    int32_t height = 0;
    uint32_t stride = 0; // bytes per stored row
    uint32_t pixelDataOffset = 0;
    uint8_t bitsPerPixel = 0; // 0: nothing open
    uint16_t colorCount = 0;
    std::unique_ptr<SBmpColor_[]> palette;
    SLoadFailure_ failure;
};

// What a BMP's headers say. Palette entries that the file does not define are black; an 8-bit file that defines none
// counts as one that defines 256.
struct SBmpInfo_ {
    uint16_t width = 0;
    uint16_t height = 0;
    uint8_t bitsPerPixel = 0;
    uint16_t colorCount = 0;
    uint16_t palette[CBmpReader_::paletteSize] {};
};

// Each opens and closes the file for itself. The palette becomes 565 or else 555 colours. What went wrong is written
// on failure only, and may be null.
[[nodiscard]] bool ReadBmpInfo_(const char* fileName, bool as565, SBmpInfo_& info, SLoadFailure_* failure = nullptr);
// The palette indices of an 8-bit BMP, top row first and without padding. False unless there are exactly as many as the
// span holds; the span's bytes are then undefined.
[[nodiscard]] bool ReadBmpIndices_(const char* fileName, std::span<uint8_t> indices);
