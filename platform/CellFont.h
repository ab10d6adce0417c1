#pragma once

#include "platform/CodePage.h"
#include "platform/FontFace.h"

#include <unordered_map>

namespace platform {

// The characters of one cell height, drawn when first wanted and kept. What no font has and what is broken is a box:
// as wide as a Chinese character for two bytes, half as wide for one.
class CellFont {
public:
    // The fonts must outlive it.
    CellFont(int cellHeight, FontChain& chain);

    int CellHeight() const { return cellHeight; }
    // Stays valid as long as the font.
    const Glyph& GlyphOf(CodePageCharacter character);

private:
    Glyph Draw(CodePageCharacter character);

    int cellHeight;
    FontChain& fonts;
    int pixelSize = 0;
    int baseline = 0;
    Glyph fullBox;
    Glyph halfBox;
    std::unordered_map<uint32_t, Glyph> glyphs; // by code point
};

// The font of a cell height (pixels, 1 or more). Tells the developer log once when there is no font with Chinese.
CellFont& FontOfHeight(int cellHeight);

} // namespace platform
