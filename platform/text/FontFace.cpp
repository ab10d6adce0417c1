#include "platform/text/FontFace.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_BITMAP_H

#include <algorithm>
#include <cstddef>

namespace platform {

namespace {

constexpr uint32_t chineseSample = 0x4E2D;

// Adds the runs of one row of a bitmap with a byte a pixel.
void AddRuns(const uint8_t* row, int width, int threshold, int left, int y, std::vector<GlyphRun>& runs)
{
    for (int x = 0; x < width; ++x) {
        if (row[x] < threshold)
            continue;
        const int start = x;
        while (x < width && row[x] >= threshold)
            ++x;
        runs.push_back({ left + start, y, x - start });
    }
}

// Whatever a font stores (a bit, a grey level or a colour a pixel), half of the full value and more is black.
bool RunsOfBitmap(FT_Library library, const FT_GlyphSlotRec& slot, int baseline, std::vector<GlyphRun>& runs)
{
    FT_Bitmap bytes;
    FT_Bitmap_Init(&bytes);
    const bool converted = FT_Bitmap_Convert(library, &slot.bitmap, &bytes, 1) == 0;
    if (converted) {
        const int threshold = std::max(1, bytes.num_grays / 2);
        const int top = baseline - slot.bitmap_top;
        for (int row = 0; row < static_cast<int>(bytes.rows); ++row)
            AddRuns(bytes.buffer + ptrdiff_t { row } * bytes.pitch, static_cast<int>(bytes.width), threshold,
                slot.bitmap_left, top + row, runs);
    }
    FT_Bitmap_Done(library, &bytes);
    return converted;
}

} // namespace

std::unique_ptr<FontFace> FontFace::Open(FT_Library library, const FontFile& file)
{
    FT_Face opened = nullptr;
    if (FT_New_Face(library, file.path.c_str(), file.index, &opened) != 0)
        return nullptr;
    return std::unique_ptr<FontFace>(new FontFace(opened));
}

FontFace::FontFace(FT_Face openFace)
    : face(openFace)
{
}

FontFace::~FontFace()
{
    FT_Done_Face(face);
}

bool FontFace::HasChinese() const
{
    return FT_Get_Char_Index(face, chineseSample) != 0;
}

bool FontFace::SetPixelSize(int pixelSize)
{
    if (pixelSize == currentPixelSize)
        return true;
    currentPixelSize = FT_Set_Pixel_Sizes(face, 0, static_cast<FT_UInt>(pixelSize)) == 0 ? pixelSize : 0;
    return currentPixelSize != 0;
}

int FontFace::CellHeight() const
{
    const FT_Size_Metrics& metrics = face->size->metrics;
    return static_cast<int>((metrics.ascender - metrics.descender) >> 6);
}

bool FontFace::HasStrike(int pixelSize) const
{
    const FT_Bitmap_Size* sizes = face->available_sizes;
    return std::any_of(sizes, sizes + face->num_fixed_sizes,
        [pixelSize](const FT_Bitmap_Size& size) { return size.y_ppem >> 6 == pixelSize; });
}

int FontFace::PixelSizeFor(int cellHeight)
{
    int best = 0;
    int bestHeight = 0;
    for (int pixelSize = 2 * cellHeight; pixelSize > 0; --pixelSize) {
        if (!SetPixelSize(pixelSize) || CellHeight() > cellHeight)
            continue;
        if (best != 0 && CellHeight() < bestHeight)
            break;
        if (best == 0 || (HasStrike(pixelSize) && !HasStrike(best)))
            best = pixelSize;
        bestHeight = CellHeight();
    }
    return best;
}

int FontFace::Ascent(int pixelSize)
{
    return SetPixelSize(pixelSize) ? static_cast<int>(face->size->metrics.ascender >> 6) : 0;
}

int FontFace::CellHeight(int pixelSize)
{
    return SetPixelSize(pixelSize) ? CellHeight() : 0;
}

bool FontFace::Render(uint32_t codePoint, int pixelSize, int baseline, Glyph& glyph)
{
    const FT_UInt index = FT_Get_Char_Index(face, codePoint);
    if (index == 0 || !SetPixelSize(pixelSize))
        return false;
    if (FT_Load_Glyph(face, index, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO) != 0)
        return false;
    const FT_GlyphSlotRec& slot = *face->glyph;
    std::vector<GlyphRun> runs;
    if (!RunsOfBitmap(slot.library, slot, baseline, runs))
        return false;
    glyph.advance = std::max(0, static_cast<int>((slot.advance.x + 32) >> 6));
    glyph.runs = std::move(runs);
    return true;
}

} // namespace platform
