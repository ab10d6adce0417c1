#include "platform/drawing/StockObjects.h"

namespace platform {

namespace {

template <typename Object> Object* StockObject()
{
    static Object object;
    object.stock = true;
    return &object;
}

} // namespace

Bitmap* NoBitmap()
{
    return StockObject<Bitmap>();
}

Brush* WhiteBrush()
{
    Brush* brush = StockObject<Brush>();
    brush->color = RGB(255, 255, 255);
    return brush;
}

Font* DefaultFont()
{
    Font* font = StockObject<Font>();
    font->narrow = true;
    return font;
}

} // namespace platform
