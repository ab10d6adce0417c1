#include "platform/Gdi.h"
#include "platform/drawing/StockObjects.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <new>

using platform::Bitmap;
using platform::Brush;
using platform::Font;

namespace {

// Far more than a canvas of texts can need; what is asked for beyond it is a mistake.
constexpr uint64_t maxBitmapBytes = uint64_t { 1 } << 30;
constexpr int maxCellHeight = 256;

} // namespace

BOOL DeleteObject(HGDIOBJ object)
{
    if (!object)
        return FALSE;
    if (object->stock)
        return TRUE;
    if (object->selections > 0)
        return FALSE;
    delete object;
    return TRUE;
}

HGDIOBJ GetStockObject(int index)
{
    return index == WHITE_BRUSH ? platform::WhiteBrush() : nullptr;
}

HBRUSH GetSysColorBrush(int index)
{
    return index == COLOR_WINDOW ? platform::WhiteBrush() : nullptr;
}

HBRUSH CreateSolidBrush(COLORREF color)
{
    auto brush = std::make_unique<Brush>();
    brush->color = color;
    return brush.release();
}

HBITMAP CreateDIBSection(HDC, const BITMAPINFO* info, UINT usage, void** bits, HANDLE, DWORD)
{
    if (bits)
        *bits = nullptr;
    if (!info || usage != DIB_RGB_COLORS)
        return nullptr;
    const BITMAPINFOHEADER& header = info->bmiHeader;
    if (header.biPlanes != 1 || header.biBitCount != 16 || header.biCompression != BI_RGB)
        return nullptr;
    if (header.biWidth <= 0 || header.biHeight >= 0 || header.biHeight == INT32_MIN)
        return nullptr;
    const uint64_t stride = (static_cast<uint64_t>(header.biWidth) + 1) & ~uint64_t { 1 };
    const auto height = static_cast<uint64_t>(-header.biHeight);
    if (stride * height > maxBitmapBytes / sizeof(uint16_t))
        return nullptr;
    auto bitmap = std::make_unique<Bitmap>();
    bitmap->pixels.reset(new (std::nothrow) uint16_t[stride * height]());
    if (!bitmap->pixels)
        return nullptr;
    bitmap->width = header.biWidth;
    bitmap->height = -header.biHeight;
    bitmap->stride = static_cast<int>(stride);
    if (bits)
        *bits = bitmap->pixels.get();
    return bitmap.release();
}

HFONT CreateFontA(int height, int, int, int, int, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, DWORD, const char*)
{
    auto font = std::make_unique<Font>();
    // 0 asks for the default height; the sign makes no difference.
    if (height != 0)
        font->cellHeight = static_cast<int>(std::min<int64_t>(std::abs(int64_t { height }), maxCellHeight));
    return font.release();
}
