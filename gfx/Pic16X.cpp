#include "gfx/Pic16X.h"

#include "gfx/ColorFormats.h"
#include "gfx/PicOps.h"

#include <cstdlib>
#include <type_traits>

static_assert(sizeof(SPic16X_) == 6 && std::is_trivially_destructible_v<SPic16X_>);

namespace {

enum DrawFlag : uint8_t { DrawMirrored = 1, DrawFlipped = 2 };

bool HasOps_(const SPic16X_* picture)
{
    return picture->kind < PicKindCount;
}

} // namespace

uint16_t SPic16X_::Width_(const SPic16X_* picture)
{
    return picture && HasOps_(picture) ? SPicOps_::table.width[picture->kind](picture) : uint16_t { 0 };
}

uint16_t SPic16X_::Height_(const SPic16X_* picture)
{
    return picture && HasOps_(picture) ? SPicOps_::table.height[picture->kind](picture) : uint16_t { 0 };
}

void SPic16X_::ConvertTo555_(SPic16X_* picture)
{
    if (HasOps_(picture))
        SPicOps_::table.convertTo555[picture->kind](picture);
}

void SPic16X_::Delete_(SPic16X_* picture)
{
    std::free(picture);
}

uint16_t SPic16X_::Color16_(uint32_t value)
{
    return ToColor555_(
        static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8), static_cast<uint8_t>(value >> 16));
}

uint32_t SPic16X_::ColorValue_(uint16_t color555)
{
    const uint32_t red = color555 >> 7 & 0xF8;
    const uint32_t green = color555 >> 2 & 0xF8;
    const uint32_t blue = color555 << 3 & 0xF8;
    return red | green << 8 | blue << 16;
}

void SPic16X_::Draw_(const SPic16X_* picture, uint16_t* destination, int32_t pitch, int32_t destinationX,
    int32_t destinationY, int32_t sourceX, int32_t sourceY, int32_t w, int32_t h, uint8_t alpha, uint8_t flags)
{
    const auto level = static_cast<uint8_t>(alpha >> 3);
    if (!HasOps_(picture) || level == 0 || w < 1 || h < 1)
        return;
    const bool mirrored = (flags & DrawMirrored) != 0;
    const bool flipped = (flags & DrawFlipped) != 0;
    const ptrdiff_t startRow = ptrdiff_t { destinationY } + (flipped ? h - 1 : 0);
    char* rowStart = reinterpret_cast<char*>(destination) + pitch * startRow;
    const SDrawTask_ task {
        .firstRow = flipped ? picture->height - sourceY - h : sourceY,
        .firstColumn = mirrored ? picture->width - sourceX - w : sourceX,
        .width = w,
        .height = h,
        .destination = reinterpret_cast<uint16_t*>(rowStart) + destinationX,
        .rowStep = flipped ? -ptrdiff_t { pitch } : pitch,
        .level = level,
        .mirrored = mirrored,
    };
    SPicOps_::table.draw[picture->kind](picture, task);
}
