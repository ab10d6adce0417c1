#include "platform/drawing/DeviceContext.h"

#include "platform/Desktop.h"
#include "platform/drawing/StockObjects.h"

#include <memory>
#include <utility>

using platform::DeviceContext;

namespace {

HDC NewContext(bool inMemory, HWND window)
{
    auto context = std::make_unique<DeviceContext>();
    context->inMemory = inMemory;
    context->window = window;
    context->bitmap = platform::NoBitmap();
    context->font = platform::DefaultFont();
    ++context->bitmap->selections;
    ++context->font->selections;
    return context.release();
}

void DeleteContext(HDC context)
{
    --context->bitmap->selections;
    --context->font->selections;
    delete context;
}

template <typename Object> HGDIOBJ Exchange(Object*& selected, Object& next)
{
    --selected->selections;
    ++next.selections;
    return std::exchange(selected, &next);
}

} // namespace

HDC GetDC(HWND window)
{
    return platform::IsWindow(window) ? NewContext(false, window) : nullptr;
}

int ReleaseDC(HWND window, HDC context)
{
    if (!context || context->inMemory || context->window != window)
        return 0;
    DeleteContext(context);
    platform::Desktop* desktop = platform::InstalledDesktop();
    if (desktop && platform::IsWindow(window) && !window->surface.pixels.empty())
        desktop->SurfaceDrawn(*window);
    return 1;
}

HDC CreateCompatibleDC(HDC reference)
{
    return reference ? nullptr : NewContext(true, nullptr);
}

BOOL DeleteDC(HDC context)
{
    if (!context || !context->inMemory)
        return FALSE;
    DeleteContext(context);
    return TRUE;
}

HGDIOBJ SelectObject(HDC context, HGDIOBJ object)
{
    if (!context || !object)
        return nullptr;
    if (auto* font = dynamic_cast<platform::Font*>(object))
        return Exchange(context->font, *font);
    auto* bitmap = dynamic_cast<platform::Bitmap*>(object);
    return bitmap && context->inMemory ? Exchange(context->bitmap, *bitmap) : nullptr;
}

COLORREF SetTextColor(HDC context, COLORREF color)
{
    return context ? std::exchange(context->textColor, color) : 0xFFFFFFFF;
}

int SetBkMode(HDC context, int mode)
{
    if (!context || (mode != TRANSPARENT && mode != OPAQUE))
        return 0;
    return std::exchange(context->backgroundMode, mode);
}

int SetTextCharacterExtra(HDC context, int extra)
{
    constexpr int failure = static_cast<int>(0x80000000);
    return context ? std::exchange(context->characterExtra, extra) : failure;
}
