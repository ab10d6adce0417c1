#pragma once

#include <cstdint>

// The window system's basic types. Numbers have its widths; handles are typed pointers to this layer's own records,
// null where there is nothing. A message word is wide enough for a pointer.

namespace platform {
struct Window;
struct DeviceContext;
struct GdiObject;
struct Brush;
struct Bitmap;
struct Font;
struct Menu;
struct Icon;
struct Cursor;
struct File;
struct Module;
} // namespace platform

using BOOL = int32_t;
using BYTE = uint8_t;
using WORD = uint16_t;
using DWORD = uint32_t;
using UINT = uint32_t;
using LONG = int32_t;
using LONG_PTR = intptr_t;
using INT_PTR = intptr_t;
using WPARAM = uintptr_t;
using LPARAM = intptr_t;
using LRESULT = intptr_t;
using ATOM = uint16_t;
using COLORREF = uint32_t; // 0x00BBGGRR

using HWND = platform::Window*;
using HDC = platform::DeviceContext*;
using HGDIOBJ = platform::GdiObject*;
using HBRUSH = platform::Brush*;
using HBITMAP = platform::Bitmap*;
using HFONT = platform::Font*;
using HMENU = platform::Menu*;
using HICON = const platform::Icon*;
using HCURSOR = const platform::Cursor*;
using HANDLE = platform::File*;
using HINSTANCE = const platform::Module*; // the program's resources

constexpr BOOL FALSE = 0;
constexpr BOOL TRUE = 1;

struct POINT {
    LONG x;
    LONG y;
};

struct SIZE {
    LONG cx;
    LONG cy;
};

// Right and bottom edges lie just outside.
struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

constexpr WORD LOWORD(uintptr_t value)
{
    return static_cast<WORD>(value & 0xFFFF);
}
constexpr WORD HIWORD(uintptr_t value)
{
    return static_cast<WORD>((value >> 16) & 0xFFFF);
}
constexpr LPARAM MAKELPARAM(int low, int high)
{
    return static_cast<LPARAM>((static_cast<uint32_t>(high) & 0xFFFF) << 16 | (static_cast<uint32_t>(low) & 0xFFFF));
}
constexpr COLORREF RGB(unsigned red, unsigned green, unsigned blue)
{
    return (red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16;
}
