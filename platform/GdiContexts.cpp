#include "platform/DeviceContext.h"

#include "platform/Desktop.h"

#include <initializer_list>
#include <memory>
#include <utility>

using platform::DeviceContext;

namespace {

void CountSelections(const DeviceContext& context, int change)
{
    for (platform::GdiObject* object : std::initializer_list<HGDIOBJ> { context.bitmap, context.brush, context.font })
        object->selections += change;
}

HDC NewContext(bool inMemory, HWND window)
{
    auto context = std::make_unique<DeviceContext>();
    context->inMemory = inMemory;
    context->window = window;
    context->bitmap = platform::NoBitmap();
    context->brush = platform::WhiteBrush();
    context->font = platform::DefaultFont();
    CountSelections(*context, 1);
    return context.release();
}

void DeleteContext(HDC context)
{
    CountSelections(*context, -1);
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
    return NewContext(false, window);
}

int ReleaseDC(HWND window, HDC context)
{
    if (!context || context->inMemory || context->window != window)
        return 0;
    DeleteContext(context);
    platform::Desktop* desktop = platform::InstalledDesktop();
    if (desktop && window && !window->surface.pixels.empty())
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
    if (auto* brush = dynamic_cast<platform::Brush*>(object))
        return Exchange(context->brush, *brush);
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
