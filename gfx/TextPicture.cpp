#include "gfx/Pic16.h"
#include "gfx/Pic16Key.h"
#include "platform/Gdi.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>

namespace {

// Selects an object into a context and the previous one back at the end of the scope.
class CSelection_ {
public:
    CSelection_(HDC drawingContext, HGDIOBJ object)
        : context(drawingContext)
        , previous(SelectObject(drawingContext, object))
    {
    }
    CSelection_(const CSelection_&) = delete;
    CSelection_& operator=(const CSelection_&) = delete;
    ~CSelection_()
    {
        if (previous)
            SelectObject(context, previous);
    }
    bool Succeeded_() const { return previous != nullptr; }

private:
    HDC context;
    HGDIOBJ previous;
};

struct SDeleteDC_ {
    void operator()(HDC context) const { DeleteDC(context); }
};
struct SDeleteBitmap_ {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using ContextOwner_ = std::unique_ptr<platform::DeviceContext, SDeleteDC_>;
using BitmapOwner_ = std::unique_ptr<platform::Bitmap, SDeleteBitmap_>;

struct STextLine_ {
    const char* text;
    int length;
    uint16_t color;
    uint16_t background;
};

// The text's size with the width rounded up to a multiple of 4. False for texts that measure nothing, and for those
// that are too large for a picture.
bool MeasureText_(HDC context, const STextLine_& line, SIZE& size)
{
    constexpr LONG largest = std::numeric_limits<uint16_t>::max();
    SIZE measured {};
    if (!GetTextExtentPoint32A(context, line.text, line.length, &measured) || measured.cx < 1 || measured.cy < 1
        || measured.cx > largest - 3 || measured.cy > largest)
        return false;
    size = { (measured.cx + 3) / 4 * 4, measured.cy };
    return true;
}

// A 555 bitmap whose rows need no padding, because its width is a multiple of 4. `bits` borrows its pixels.
BitmapOwner_ NewBitmap_(HDC context, SIZE size, uint16_t*& bits)
{
    BITMAPINFO info;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;
    info.bmiHeader.biBitCount = 16;
    void* pixels = nullptr;
    BitmapOwner_ bitmap(CreateDIBSection(context, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    bits = static_cast<uint16_t*>(pixels);
    return bitmap;
}

template <class Picture> SPic16X_* CopyOf_(Picture* picture, const uint16_t* bits)
{
    if (picture)
        std::memcpy(picture->Pixels_(), bits, picture->PixelCount_() * sizeof *bits);
    return picture;
}

SPic16X_* NewPicture_(SIZE size, const uint16_t* bits, bool keyed, uint16_t key)
{
    const auto width = static_cast<uint16_t>(size.cx);
    const auto height = static_cast<uint16_t>(size.cy);
    if (!keyed)
        return CopyOf_(SPic16_::New_(width, height), bits);
    SPic16Key_* picture = SPic16Key_::New_(width, height);
    if (picture)
        picture->key = key;
    return CopyOf_(picture, bits);
}

// Draws the line into a bitmap of the context and takes a picture of it.
SPic16X_* DrawText_(HDC context, const STextLine_& line, bool keyed)
{
    SIZE size {};
    if (!MeasureText_(context, line, size))
        return nullptr;
    uint16_t* bits = nullptr;
    const BitmapOwner_ bitmap = NewBitmap_(context, size, bits);
    if (!bitmap)
        return nullptr;
    const CSelection_ selectedBitmap(context, bitmap.get());
    if (!selectedBitmap.Succeeded_())
        return nullptr;
    std::fill_n(bits, static_cast<size_t>(size.cx) * static_cast<size_t>(size.cy), line.background);
    SetTextColor(context, SPic16X_::ColorValue_(line.color));
    SetBkMode(context, TRANSPARENT);
    TextOutA(context, 0, 0, line.text, line.length);
    return NewPicture_(size, bits, keyed, line.background);
}

} // namespace

SPic16X_* SPic16X_::NewText_(
    const char* text, HFONT font, uint16_t color, uint16_t background, uint32_t keyed, int32_t spacing)
{
    const size_t length = text ? std::strlen(text) : 0;
    if (length < 1 || length > static_cast<size_t>(std::numeric_limits<int>::max()))
        return nullptr;
    const STextLine_ line { text, static_cast<int>(length), color, background };
    const ContextOwner_ context(CreateCompatibleDC(nullptr));
    if (!context)
        return nullptr;
    std::optional<CSelection_> selectedFont;
    if (font && !selectedFont.emplace(context.get(), font).Succeeded_())
        return nullptr;
    SetTextCharacterExtra(context.get(), spacing);
    return DrawText_(context.get(), line, keyed != 0);
}
