#include "platform/text/CellFont.h"

#include "platform/Kernel.h"

#include <map>
#include <utility>

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
    std::map<int, CellFont> narrowFonts;

    FontStore()
    {
        if (!chain.At(0))
            OutputDebugStringA("No font with Chinese characters was found; texts are drawn as boxes.\n");
    }

    CellFont MakeNarrow(int cellHeight)
    {
        const auto narrow = FindNarrowFont();
        auto face = narrow ? chain.OpenBeside(narrow->file) : nullptr;
        if (!face || face->CellHeight(narrow->pixelSize) > cellHeight)
            return CellFont(cellHeight, chain);
        return CellFont(cellHeight, std::move(face), narrow->pixelSize, chain);
    }
};

FontStore& Store()
{
    static FontStore store;
    return store;
}

} // namespace

CellFont::CellFont(int height, FontChain& fonts)
    : cellHeight(height)
    , chain(fonts)
{
    if (FontFace* main = chain.At(0)) {
        pixelSize = main->PixelSizeFor(cellHeight);
        baseline = main->Ascent(pixelSize);
    }
    MakeBoxes();
}

CellFont::CellFont(int height, std::unique_ptr<FontFace> face, int size, FontChain& fonts)
    : cellHeight(height)
    , first(std::move(face))
    , chain(fonts)
    , pixelSize(size)
    , baseline((height - first->CellHeight(size)) / 2 + first->Ascent(size))
{
    MakeBoxes();
}

void CellFont::MakeBoxes()
{
    Glyph sample;
    const int fullWidth = Render(widthSample, sample) ? sample.advance : cellHeight;
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
    Glyph glyph;
    if (!Render(character.codePoint, glyph))
        glyph = character.length == 2 ? fullBox : halfBox;
    return glyphs.emplace(character.codePoint, std::move(glyph)).first->second;
}

bool CellFont::Render(uint32_t codePoint, Glyph& glyph)
{
    if (pixelSize == 0)
        return false;
    if (first && first->Render(codePoint, pixelSize, baseline, glyph))
        return true;
    for (size_t i = 0; FontFace* font = chain.At(i); ++i)
        if (font->Render(codePoint, pixelSize, baseline, glyph))
            return true;
    return false;
}

CellFont& FontOfHeight(int cellHeight)
{
    return Store().fonts.try_emplace(cellHeight, cellHeight, Store().chain).first->second;
}

CellFont& NarrowFontOfHeight(int cellHeight)
{
    auto& fonts = Store().narrowFonts;
    const auto known = fonts.find(cellHeight);
    return known != fonts.end() ? known->second
                                : fonts.emplace(cellHeight, Store().MakeNarrow(cellHeight)).first->second;
}

} // namespace platform
