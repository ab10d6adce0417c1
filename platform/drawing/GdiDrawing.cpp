#include "platform/drawing/DeviceContext.h"

#include <algorithm>
#include <cstring>

using platform::DrawOn;
using platform::Fill;
using platform::PixelOf;
using platform::PixelRows;

namespace {

void CopyRow(const uint16_t* from, uint16_t* to, int64_t count)
{
    std::copy_n(from, count, to);
}

// Five bits become eight by repeating the upper three.
void CopyRow(const uint16_t* from, uint32_t* to, int64_t count)
{
    for (int64_t i = 0; i < count; ++i) {
        const uint32_t pixel = from[i];
        const uint32_t high = (pixel & 0x7C00) << 9 | (pixel & 0x03E0) << 6 | (pixel & 0x001F) << 3;
        to[i] = high | (high >> 5 & 0x070707);
    }
}

bool Is555(const BITMAPINFOHEADER& header)
{
    return header.biWidth > 0 && header.biHeight < 0 && header.biPlanes == 1 && header.biBitCount == 16
        && header.biCompression == BI_RGB;
}

// A span of the source along one axis and where it goes.
struct Span {
    int64_t source;
    int64_t destination;
    int64_t length;

    // Cuts the span to the part whose source lies in [low, high) and then whose destination lies in [0, limit).
    void CutSource(int64_t low, int64_t high)
    {
        CutFront(low - source);
        length = std::min(length, high - source);
    }
    void CutDestination(int64_t limit)
    {
        CutFront(-destination);
        length = std::min(length, limit - destination);
    }
    void CutFront(int64_t count)
    {
        count = std::max<int64_t>(count, 0);
        source += count;
        destination += count;
        length -= count;
    }
};

} // namespace

int SetDIBitsToDevice(HDC context, int x, int y, DWORD width, DWORD height, int sourceX, int sourceY, UINT firstLine,
    UINT lines, const void* bits, const BITMAPINFO* info, UINT usage)
{
    if (!context || !bits || !info || usage != DIB_RGB_COLORS || !Is555(info->bmiHeader))
        return 0;
    const int64_t sourceWidth = info->bmiHeader.biWidth;
    const int64_t sourceHeight = -int64_t { info->bmiHeader.biHeight };
    const int64_t stride = (sourceWidth + 1) & ~int64_t { 1 };
    Span across { sourceX, x, width };
    Span down { sourceY, y, height };
    across.CutSource(0, sourceWidth);
    down.CutSource(firstLine, std::min(sourceHeight, int64_t { firstLine } + lines));
    if (across.length <= 0 || down.length <= 0)
        return 0;
    // What the surface's edges cut off still counts as copied.
    const auto copied = static_cast<int>(down.length);

    DrawOn(*context, [&](const auto& rows) {
        across.CutDestination(rows.width);
        down.CutDestination(rows.height);
        if (across.length <= 0 || down.length <= 0)
            return;
        const auto* from = static_cast<const uint16_t*>(bits) + (down.source - firstLine) * stride + across.source;
        for (int64_t i = 0; i < down.length; ++i)
            CopyRow(from + i * stride, rows.Row(down.destination + i) + across.destination, across.length);
    });
    return copied;
}

BOOL SetRect(RECT* rectangle, int left, int top, int right, int bottom)
{
    if (!rectangle)
        return FALSE;
    *rectangle = { left, top, right, bottom };
    return TRUE;
}

int FillRect(HDC context, const RECT* rectangle, HBRUSH brush)
{
    if (!context || !rectangle || !brush)
        return 0;
    DrawOn(*context, [&]<typename Pixel>(const PixelRows<Pixel>& rows) {
        Fill(rows, rectangle->left, rectangle->top, rectangle->right, rectangle->bottom, PixelOf<Pixel>(brush->color));
    });
    return 1;
}

int FrameRect(HDC context, const RECT* rectangle, HBRUSH brush)
{
    if (!context || !rectangle || !brush)
        return 0;
    const int64_t left = rectangle->left;
    const int64_t top = rectangle->top;
    const int64_t right = rectangle->right;
    const int64_t bottom = rectangle->bottom;
    if (left >= right || top >= bottom)
        return 0;
    DrawOn(*context, [&]<typename Pixel>(const PixelRows<Pixel>& rows) {
        const auto pixel = PixelOf<Pixel>(brush->color);
        Fill(rows, left, top, right, top + 1, pixel);
        Fill(rows, left, bottom - 1, right, bottom, pixel);
        Fill(rows, left, top, left + 1, bottom, pixel);
        Fill(rows, right - 1, top, right, bottom, pixel);
    });
    return 1;
}
