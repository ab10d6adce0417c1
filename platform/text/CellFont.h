#pragma once

#include "platform/CodePage.h"
#include "platform/text/FontChain.h"

#include <memory>
#include <unordered_map>

namespace platform {

// The characters of one cell height, drawn when first wanted and kept. What the first face lacks comes from the chain;
// what no font has and what is broken is a box: as wide as a Chinese character for two bytes, half as wide for one.
class CellFont {
public:
    // The fonts must outlive it.
    CellFont(int cellHeight, FontChain& chain);
    // With a face of its own in front of the chain, in a size that fits the cell; centred in the cell's height.
    CellFont(int cellHeight, std::unique_ptr<FontFace> first, int pixelSize, FontChain& chain);

    int CellHeight() const { return cellHeight; }
    // Stays valid as long as the font.
    const Glyph& GlyphOf(CodePageCharacter character);

private:
    bool Render(uint32_t codePoint, Glyph& glyph);
    void MakeBoxes();

    int cellHeight;
    std::unique_ptr<FontFace> first;
    FontChain& chain;
    int pixelSize = 0;
    int baseline = 0;
    Glyph fullBox;
    Glyph halfBox;
    std::unordered_map<uint32_t, Glyph> glyphs; // by code point
};

// The font of a cell height (pixels, 1 or more). Tells the developer log once when there is no font with Chinese.
CellFont& FontOfHeight(int cellHeight);
// The same cell with a face that is narrow for everything but Chinese, where one is installed.
CellFont& NarrowFontOfHeight(int cellHeight);

} // namespace platform
