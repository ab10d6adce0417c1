#include "gfx/Pic16Key.h"

#include <cstdlib>
#include <new>

SPic16Key_* SPic16Key_::New_(uint16_t width, uint16_t height)
{
    void* block = std::malloc(sizeof(SPic16Key_) + 2 * size_t { width } * height);
    if (!block)
        return nullptr;
    auto* picture = new (block) SPic16Key_;
    picture->kind = PicKeyed;
    picture->width = width;
    picture->height = height;
    return picture;
}
