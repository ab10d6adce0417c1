#include "platform/drawing/DeviceContext.h"
#include "platform/text/CellFont.h"

#include <algorithm>
#include <limits>
#include <string_view>

using platform::CellFont;
using platform::DeviceContext;
using platform::DrawOn;
using platform::Fill;
using platform::Glyph;
using platform::PixelOf;
using platform::PixelRows;

namespace {

// Calls visit(glyph, x) for every character, x counted from the start of the text. Returns the width of the whole.
template <typename Visit> int64_t ForEachGlyph(CellFont& font, std::string_view text, int extra, Visit visit)
{
    int64_t x = 0;
    while (!text.empty()) {
        const platform::CodePageCharacter character = platform::FirstCharacter(text);
        const Glyph& glyph = font.GlyphOf(character);
        visit(glyph, x);
        x += int64_t { glyph.advance } + extra;
        text.remove_prefix(static_cast<size_t>(character.length));
    }
    return x;
}

int64_t WidthOf(CellFont& font, std::string_view text, int extra)
{
    return ForEachGlyph(font, text, extra, [](const Glyph&, int64_t) {});
}

CellFont& FontOf(const DeviceContext& context)
{
    const platform::Font& font = *context.font;
    return font.narrow ? platform::NarrowFontOfHeight(font.cellHeight) : platform::FontOfHeight(font.cellHeight);
}

} // namespace

BOOL GetTextExtentPoint32A(HDC context, const char* text, int length, SIZE* size)
{
    if (!context || !text || length < 0 || !size)
        return FALSE;
    CellFont& font = FontOf(*context);
    const int64_t width = WidthOf(font, { text, static_cast<size_t>(length) }, context->characterExtra);
    constexpr int64_t widest = std::numeric_limits<LONG>::max();
    *size = { static_cast<LONG>(std::clamp<int64_t>(width, 0, widest)), font.CellHeight() };
    return TRUE;
}

BOOL TextOutA(HDC context, int x, int y, const char* text, int length)
{
    if (!context || !text || length < 0)
        return FALSE;
    const std::string_view bytes(text, static_cast<size_t>(length));
    const int extra = context->characterExtra;
    DrawOn(*context, [&]<typename Pixel>(const PixelRows<Pixel>& rows) {
        CellFont& font = FontOf(*context);
        if (context->backgroundMode == OPAQUE) {
            const int64_t width = WidthOf(font, bytes, extra);
            Fill(rows, x, y, x + width, int64_t { y } + font.CellHeight(), PixelOf<Pixel>(RGB(255, 255, 255)));
        }
        const auto ink = PixelOf<Pixel>(context->textColor);
        ForEachGlyph(font, bytes, extra, [&](const Glyph& glyph, int64_t offset) {
            const int64_t left = x + offset;
            for (const platform::GlyphRun& run : glyph.runs) {
                const int64_t top = int64_t { y } + run.y;
                Fill(rows, left + run.x, top, left + run.x + run.length, top + 1, ink);
            }
        });
    });
    return TRUE;
}
