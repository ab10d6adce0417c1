#include "gfx/Pic16.h"

#include <cstdlib>
#include <new>

SPic16_* SPic16_::New_(uint16_t width, uint16_t height)
{
    void* block = std::malloc(sizeof(SPic16_) + 2 * size_t { width } * height);
    if (!block)
        return nullptr;
    auto* picture = new (block) SPic16_;
    picture->kind = PicPlain;
    picture->width = width;
    picture->height = height;
    return picture;
}
