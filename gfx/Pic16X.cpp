#include "gfx/Pic16X.h"

#include "gfx/ColorFormats.h"

#include <cstdlib>
#include <type_traits>

static_assert(sizeof(SPic16X_) == 6 && std::is_trivially_destructible_v<SPic16X_>);

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
