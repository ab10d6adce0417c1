#include "gfx/BmpReader.h"

#include "gfx/ColorFormats.h"
#include "platform/FileReading.h"

#include <new>

// The head of a BMP, a BITMAPFILEHEADER and behind it a BITMAPINFOHEADER or one of its longer successors, as the window
// system's documentation of device-independent bitmaps has them. Offset and length in bytes of what is read; all
// numbers are little-endian:
//
//   0  2  bfType, "BM"                          22  4  biHeight
//  10  4  bfOffBits, where the pixels start     26  2  biPlanes
//  14  4  biSize, of the info header            28  2  biBitCount, bits per pixel
//  18  4  biWidth                               30  4  biCompression
//
// The palette follows the info header, four bytes an entry (RGBQUAD), and ends where the pixels start. A row of pixels
// is padded to a multiple of four bytes.

namespace {

constexpr uint32_t fileHeaderBytes = 14;
constexpr uint32_t infoHeaderBytes = 40;
constexpr uint32_t oldInfoHeaderBytes = 12; // all its fields lie elsewhere
constexpr int32_t largestSize = 65535;
constexpr uint16_t bmpSignature = 0x4D42;

uint16_t Word_(const uint8_t* bytes)
{
    return static_cast<uint16_t>(bytes[0] | bytes[1] << 8);
}

uint32_t Long_(const uint8_t* bytes)
{
    return Word_(bytes) | uint32_t { Word_(bytes + 2) } << 16;
}

bool IsSize_(int32_t size)
{
    return size >= 1 && size <= largestSize;
}

LoadProblem UnopenedProblem_(const char* fileName)
{
    return fileName && platform::FileExists(fileName) ? LoadProblem::Unreadable : LoadProblem::NoSuchFile;
}

} // namespace

struct CBmpReader_::SHeader_ {
    uint16_t signature;
    uint32_t pixelDataOffset;
    uint32_t infoHeaderSize;
    int32_t width;
    int32_t height;
    uint16_t planes;
    uint16_t bitsPerPixel;
    uint32_t compression;

    explicit SHeader_(const uint8_t* bytes)
        : signature(Word_(bytes))
        , pixelDataOffset(Long_(bytes + 10))
        , infoHeaderSize(Long_(bytes + 14))
        , width(static_cast<int32_t>(Long_(bytes + 18)))
        , height(static_cast<int32_t>(Long_(bytes + 22)))
        , planes(Word_(bytes + 26))
        , bitsPerPixel(Word_(bytes + 28))
        , compression(Long_(bytes + 30))
    {
    }

    // None for a file that is supported.
    LoadProblem Problem_() const
    {
        if (signature != bmpSignature)
            return LoadProblem::NotBmp;
        if (bitsPerPixel != 8 && bitsPerPixel != 24)
            return LoadProblem::Depth;
        if (compression != 0)
            return LoadProblem::Compressed;
        if (planes != 1)
            return LoadProblem::BadHeader;
        if (IsSize_(width) && IsSize_(height))
            return LoadProblem::None;
        return height < 0 ? LoadProblem::TopDown : LoadProblem::BadSize;
    }
    bool IsOld_() const { return signature == bmpSignature && infoHeaderSize == oldInfoHeaderBytes; }
    uint32_t Stride_() const
    {
        const auto rowBits = static_cast<uint32_t>(width) * bitsPerPixel;
        return ((rowBits >> 3) + 3) & ~3U;
    }
    // The length that a file needs: up to the last pixel of its last row.
    uint64_t NeededBytes_() const
    {
        const auto rowBytes = static_cast<uint64_t>(width) * bitsPerPixel / 8;
        return pixelDataOffset + static_cast<uint64_t>(height - 1) * Stride_() + rowBytes;
    }
};

bool CBmpReader_::Open_(const char* fileName)
{
    Close_();
    failure = {};
    failure.problem = CFileR_::Open_(fileName) ? ParseHeaders_() : UnopenedProblem_(fileName);
    if (failure.problem == LoadProblem::None)
        return true;
    Close_();
    return false;
}

LoadProblem CBmpReader_::ParseHeaders_()
{
    uint8_t bytes[fileHeaderBytes + infoHeaderBytes] {};
    if (!SeekSet_(0) || !Read_(bytes, fileHeaderBytes) || !Read_(bytes + fileHeaderBytes, infoHeaderBytes))
        return Word_(bytes) == bmpSignature ? LoadProblem::CutShort : LoadProblem::NotBmp;
    const SHeader_ header(bytes);
    failure.bitsPerPixel = header.bitsPerPixel;
    LoadProblem problem = header.Problem_();
    if (problem == LoadProblem::None && header.NeededBytes_() > Size_())
        problem = LoadProblem::CutShort;
    if (problem == LoadProblem::None && header.bitsPerPixel == 8)
        problem = ReadPalette_(header);
    if (problem != LoadProblem::None)
        return header.IsOld_() ? LoadProblem::OldHeader : problem;
    width = static_cast<uint32_t>(header.width);
    height = header.height;
    stride = header.Stride_();
    pixelDataOffset = header.pixelDataOffset;
    bitsPerPixel = static_cast<uint8_t>(header.bitsPerPixel);
    return problem;
}

LoadProblem CBmpReader_::ReadPalette_(const SHeader_& header)
{
    const int64_t start = int64_t { fileHeaderBytes } + header.infoHeaderSize;
    const int64_t gap = header.pixelDataOffset - start;
    constexpr auto entryBytes = static_cast<int64_t>(sizeof(SBmpColor_));
    if (gap < 0 || gap > paletteSize * entryBytes)
        return LoadProblem::BadHeader;
    palette.reset(new (std::nothrow) SBmpColor_[paletteSize]);
    if (!palette)
        return LoadProblem::TooLarge;
    // An entry that the gap only holds a part of is not defined.
    colorCount = static_cast<uint16_t>(gap / entryBytes);
    const bool isRead
        = SeekSet_(static_cast<uint32_t>(start)) && Read_(palette.get(), static_cast<int32_t>(colorCount * entryBytes));
    return isRead ? LoadProblem::None : LoadProblem::CutShort;
}

bool CBmpReader_::ReadRow_(uint32_t row, uint8_t* buffer)
{
    if (bitsPerPixel == 0 || !buffer || row >= static_cast<uint32_t>(height))
        return false;
    const uint32_t storedRow = static_cast<uint32_t>(height) - 1 - row;
    return SeekSet_(pixelDataOffset + storedRow * stride)
        && Read_(buffer, static_cast<int32_t>(width * (bitsPerPixel / 8U)));
}

void CBmpReader_::Close_()
{
    palette.reset();
    width = 0;
    height = 0;
    stride = 0;
    pixelDataOffset = 0;
    bitsPerPixel = 0;
    colorCount = 0;
    CFileR_::Close_();
}

bool ReadBmpInfo_(const char* fileName, bool as565, SBmpInfo_& info, SLoadFailure_* failure)
{
    CBmpReader_ reader;
    if (!reader.Open_(fileName)) {
        if (failure)
            *failure = reader.Failure_();
        return false;
    }
    info = {};
    info.width = static_cast<uint16_t>(reader.Width_());
    info.height = static_cast<uint16_t>(reader.Height_());
    info.bitsPerPixel = reader.BitsPerPixel_();
    info.colorCount = reader.ColorCount_();
    if (info.bitsPerPixel != 8)
        return true;
    if (info.colorCount == 0)
        info.colorCount = CBmpReader_::paletteSize;
    for (int i = 0; i < info.colorCount; ++i) {
        const SBmpColor_ color = reader.PaletteEntry_(static_cast<uint8_t>(i));
        info.palette[i]
            = as565 ? ToColor565_(color.red, color.green, color.blue) : ToColor555_(color.red, color.green, color.blue);
    }
    return true;
}

bool ReadBmpIndices_(const char* fileName, std::span<uint8_t> indices)
{
    CBmpReader_ reader;
    if (!indices.data() || !reader.Open_(fileName) || reader.BitsPerPixel_() != 8)
        return false;
    const size_t width = reader.Width_();
    const auto height = static_cast<uint32_t>(reader.Height_());
    if (indices.size() != width * height)
        return false;
    // The bottom row is stored first: from there on the file is read forwards.
    for (uint32_t row = height; row-- > 0;)
        if (!reader.ReadRow_(row, indices.data() + row * width))
            return false;
    return true;
}
