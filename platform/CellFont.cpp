#include "platform/CellFont.h"

#include "platform/Kernel.h"

#include <map>

namespace platform {

namespace {

constexpr uint32_t widthSample = 0x4E2D;

// The outline of the cell, a pixel away from its edges so that neighbours stay apart.
Glyph Box(int width, int height)
{
    Glyph box { width, {} };
    if (width < 3 || height < 3)
        return box;
    for (int y = 1; y < height - 1; ++y) {
        if (y == 1 || y == height - 2) {
            box.runs.push_back({ 1, y, width - 2 });
        } else {
            box.runs.push_back({ 1, y, 1 });
            box.runs.push_back({ width - 2, y, 1 });
        }
    }
    return box;
}

// Every font in use; at the end of the program the characters go before the files they came from.
struct FontStore {
    FontChain chain;
    std::map<int, CellFont> fonts; // by cell height

    FontStore()
    {
        if (!chain.At(0))
            OutputDebugStringA("No font with Chinese characters was found; texts are drawn as boxes.\n");
    }
};

} // namespace

CellFont::CellFont(int height, FontChain& chain)
    : cellHeight(height)
    , fonts(chain)
{
    int fullWidth = cellHeight;
    if (FontFace* main = fonts.At(0)) {
        pixelSize = main->PixelSizeFor(cellHeight);
        baseline = main->Ascent(pixelSize);
        Glyph sample;
        if (main->Render(widthSample, pixelSize, baseline, sample))
            fullWidth = sample.advance;
    }
    fullBox = Box(fullWidth, cellHeight);
    halfBox = Box(fullWidth / 2, cellHeight);
}

const Glyph& CellFont::GlyphOf(CodePageCharacter character)
{
    if (character.codePoint == 0)
        return character.length == 2 ? fullBox : halfBox;
    const auto known = glyphs.find(character.codePoint);
    if (known != glyphs.end())
        return known->second;
    return glyphs.emplace(character.codePoint, Draw(character)).first->second;
}

Glyph CellFont::Draw(CodePageCharacter character)
{
    Glyph glyph;
    if (pixelSize > 0)
        for (size_t i = 0; FontFace* font = fonts.At(i); ++i)
            if (font->Render(character.codePoint, pixelSize, baseline, glyph))
                return glyph;
    return character.length == 2 ? fullBox : halfBox;
}

CellFont& FontOfHeight(int cellHeight)
{
    static FontStore store;
    return store.fonts.try_emplace(cellHeight, cellHeight, store.chain).first->second;
}

} // namespace platform
