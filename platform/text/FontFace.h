#pragma once

#include "platform/text/FontSearch.h"

#include <cstdint>
#include <memory>
#include <vector>

struct FT_FaceRec_;
struct FT_LibraryRec_;

namespace platform {

// A row of set pixels of a glyph; the origin is the top-left corner of the character's cell.
struct GlyphRun {
    int x = 0;
    int y = 0;
    int length = 0;
};

// What a character looks like: black or nothing, never smoothed.
struct Glyph {
    int advance = 0; // pixels to the next cell
    std::vector<GlyphRun> runs;
};

// A font file, open for drawing.
class FontFace {
public:
    // Null when the file cannot be used.
    static std::unique_ptr<FontFace> Open(FT_LibraryRec_* library, const FontFile& file);
    FontFace(const FontFace&) = delete;
    FontFace& operator=(const FontFace&) = delete;
    ~FontFace();

    // The pixels per em whose ascent plus descent is the cell height, or the largest ones below it; of several the one
    // that the font has hand-made bitmaps for. 0: none.
    int PixelSizeFor(int cellHeight);
    bool HasChinese() const;
    // From the top of the cell to the baseline.
    int Ascent(int pixelSize);
    // Ascent plus descent.
    int CellHeight(int pixelSize);
    // Fills in the glyph of a character standing on the baseline; false when the font does not have it.
    bool Render(uint32_t codePoint, int pixelSize, int baseline, Glyph& glyph);

private:
    explicit FontFace(FT_FaceRec_* openFace);
    bool SetPixelSize(int pixelSize);
    int CellHeight() const; // at the current pixel size
    bool HasStrike(int pixelSize) const;

    FT_FaceRec_* face;
    int currentPixelSize = 0;
};

} // namespace platform
