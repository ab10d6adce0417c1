#pragma once

#include "platform/GdiObjects.h"
#include "platform/Types.h"

// The device interface: drawing into a window's surface or into a bitmap in memory. Coordinates are pixels of the
// surface; whatever falls outside it is cut. Texts are code page 950. What carries them out is in drawing/, in the
// files named below.

constexpr UINT DIB_RGB_COLORS = 0;
constexpr DWORD BI_RGB = 0;
constexpr int TRANSPARENT = 1;
constexpr int OPAQUE = 2;
constexpr int WHITE_BRUSH = 0;
constexpr int COLOR_WINDOW = 5;

// The same fields in the same order as the information header of a BMP file.
struct BITMAPINFOHEADER {
    DWORD biSize = 40;
    LONG biWidth = 0;
    LONG biHeight = 0; // negative: rows from the top
    WORD biPlanes = 1;
    WORD biBitCount = 0;
    DWORD biCompression = BI_RGB; // with 16 bits: 5-5-5
    DWORD biSizeImage = 0;
    LONG biXPelsPerMeter = 0;
    LONG biYPelsPerMeter = 0;
    DWORD biClrUsed = 0;
    DWORD biClrImportant = 0;
};

struct BITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
};

// Contexts and what they draw with (DeviceContext.cpp). The drawing context of a window's client area is null when
// there is no such window; ReleaseDC gives it back and lets the desktop show what was drawn. Once the window is gone,
// its context draws nowhere.
HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC context);
// A context in memory; it draws nowhere until a bitmap is selected. Only a null reference context is supported.
HDC CreateCompatibleDC(HDC reference);
BOOL DeleteDC(HDC context);
// Each kind of object (bitmap, font) is selected separately; the previous one of the kind comes back, null on failure.
HGDIOBJ SelectObject(HDC context, HGDIOBJ object);
COLORREF SetTextColor(HDC context, COLORREF color);
int SetBkMode(HDC context, int mode);
// Pixels added after every character (a two-byte character is one), in measuring and drawing. Returns the old value.
int SetTextCharacterExtra(HDC context, int extra);

// Brushes, bitmaps and fonts (GdiCreation.cpp). Stock objects and system brushes belong to the system; deleting them
// does nothing.
BOOL DeleteObject(HGDIOBJ object);
HGDIOBJ GetStockObject(int index);
HBRUSH GetSysColorBrush(int index);
HBRUSH CreateSolidBrush(COLORREF color);
// Top-down 16-bit 5-5-5 bitmaps only, of at most 1 GB, black at first; `bits` receives the pixels, rows padded to 4
// bytes. Null when there is no such bitmap or no memory for it.
HBITMAP CreateDIBSection(
    HDC context, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section, DWORD sectionOffset);
// `height` is the cell height in pixels. Weights, slants and faces other than the default are not offered. Making a
// font is cheap: its face is looked up when it is first used.
HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic, DWORD underline,
    DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily,
    const char* faceName);

// Pixels and rectangles (GdiDrawing.cpp). SetDIBitsToDevice copies scan lines of a top-down 16-bit 5-5-5 bitmap and
// returns the number of lines copied.
int SetDIBitsToDevice(HDC context, int x, int y, DWORD width, DWORD height, int sourceX, int sourceY, UINT firstLine,
    UINT lines, const void* bits, const BITMAPINFO* info, UINT usage);
BOOL SetRect(RECT* rectangle, int left, int top, int right, int bottom);
int FillRect(HDC context, const RECT* rectangle, HBRUSH brush);
// A frame one pixel wide on the inside of the rectangle.
int FrameRect(HDC context, const RECT* rectangle, HBRUSH brush);

// Texts (GdiText.cpp). TextOutA draws `length` bytes with the top-left corner of the first cell at (x, y).
BOOL GetTextExtentPoint32A(HDC context, const char* text, int length, SIZE* size);
BOOL TextOutA(HDC context, int x, int y, const char* text, int length);
