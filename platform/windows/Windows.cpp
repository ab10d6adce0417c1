#include "platform/CodePage.h"
#include "platform/Desktop.h"
#include "platform/User.h"
#include "platform/windows/WindowErasing.h"
#include "platform/windows/WindowPlacement.h"
#include "platform/windows/WindowTable.h"

#include <cstring>

namespace {
constexpr int showStateHide = 0;
} // namespace

BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint)
{
    if (!platform::InstalledDesktop() || !platform::IsWindow(window) || window->kind != platform::WindowKind::TopLevel)
        return FALSE;
    platform::PlaceOuter(*window, x, y, width, height);
    if (repaint)
        window->erasePending = true;
    platform::ShowChange(*window);
    SendMessageA(window, WM_WINDOWPOSCHANGED, 0, 0);
    return TRUE;
}

BOOL GetClientRect(HWND window, RECT* rectangle)
{
    if (!platform::IsWindow(window) || !rectangle)
        return FALSE;
    const RECT& place = window->place;
    *rectangle = { 0, 0, place.right - place.left, place.bottom - place.top };
    return TRUE;
}

int GetSystemMetrics(int index)
{
    platform::Desktop* desktop = platform::InstalledDesktop();
    if (!desktop || (index != SM_CXSCREEN && index != SM_CYSCREEN))
        return 0;
    const SIZE display = desktop->DisplaySize();
    return index == SM_CXSCREEN ? display.cx : display.cy;
}

BOOL ShowWindow(HWND window, int showState)
{
    if (!platform::IsWindow(window))
        return FALSE;
    const bool wasVisible = window->visible;
    window->visible = showState != showStateHide;
    if (window->visible != wasVisible) {
        window->erasePending = window->kind == platform::WindowKind::TopLevel && window->visible;
        platform::ShowChange(*window);
        SendMessageA(window, WM_WINDOWPOSCHANGED, 0, 0);
    }
    return wasVisible ? TRUE : FALSE;
}

BOOL UpdateWindow(HWND window)
{
    if (!platform::IsWindow(window))
        return FALSE;
    platform::DeliverErase(*window);
    return TRUE;
}

BOOL InvalidateRect(HWND window, const RECT*, BOOL erase)
{
    if (!platform::IsWindow(window))
        return FALSE;
    // An erase covers the whole window; what is not erased is drawn by the program in its own time.
    if (erase && window->kind == platform::WindowKind::TopLevel)
        window->erasePending = true;
    return TRUE;
}

LONG_PTR GetWindowLongA(HWND window, int index)
{
    if (!platform::IsWindow(window) || index != GWL_HINSTANCE)
        return 0;
    return reinterpret_cast<LONG_PTR>(window->instance);
}

BOOL ClientToScreen(HWND window, POINT* point)
{
    if (!platform::IsWindow(window) || !point)
        return FALSE;
    for (HWND inner = window; inner; inner = inner == &platform::RootOf(*inner) ? nullptr : inner->parent) {
        point->x = platform::AddCoordinates(point->x, inner->place.left);
        point->y = platform::AddCoordinates(point->y, inner->place.top);
    }
    return TRUE;
}

int GetWindowTextA(HWND window, char* text, int capacity)
{
    if (!text || capacity <= 0)
        return 0;
    text[0] = '\0';
    if (!platform::IsWindow(window))
        return 0;
    const std::string_view copied = platform::CutToBytes(window->text, static_cast<size_t>(capacity) - 1);
    std::memcpy(text, copied.data(), copied.size());
    text[copied.size()] = '\0';
    return static_cast<int>(copied.size());
}

BOOL SetWindowTextA(HWND window, const char* text)
{
    if (!platform::IsWindow(window))
        return FALSE;
    window->text = text ? text : "";
    platform::ShowChange(*window);
    return TRUE;
}
