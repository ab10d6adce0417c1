#include "gfx/PicOps.h"

#include "gfx/ColorFormats.h"
#include "gfx/DrawRows.h"
#include "gfx/DrawSprite.h"
#include "gfx/Pic16.h"
#include "gfx/Pic16Key.h"
#include "gfx/Pic16Sprite.h"

#include <iterator>

namespace {

enum DrawFlag : uint8_t { DrawMirrored = 1, DrawFlipped = 2 };

void ConvertNothing_(SPic16X_*) { }
void DrawNothing_(const SPic16X_*, const SDrawTask_&) { }
uint16_t MeasureNothing_(const SPic16X_*)
{
    return 0;
}

void ConvertPlain_(SPic16X_* picture)
{
    auto* plain = static_cast<SPic16_*>(picture);
    ConvertColorsTo555_(plain->Pixels_(), plain->PixelCount_());
}

void ConvertKeyed_(SPic16X_* picture)
{
    auto* keyed = static_cast<SPic16Key_*>(picture);
    keyed->key = To555From565_(keyed->key);
    ConvertColorsTo555_(keyed->Pixels_(), keyed->PixelCount_());
}

void ConvertSprite_(SPic16X_* picture)
{
    auto* sprite = static_cast<SPic16Sprite_*>(picture);
    ConvertColorsTo555_(sprite->palette, std::size(sprite->palette));
}

uint16_t WidthField_(const SPic16X_* picture)
{
    return picture->width;
}
uint16_t HeightField_(const SPic16X_* picture)
{
    return picture->height;
}

bool HasOps_(const SPic16X_* picture)
{
    return picture->kind < PicKindCount;
}

// Every kind is empty until it says otherwise.
constexpr SPicOps_ MakeTable_()
{
    SPicOps_ ops {};
    for (int kind = 0; kind < PicKindCount; ++kind) {
        ops.convertTo555[kind] = ConvertNothing_;
        ops.draw[kind] = DrawNothing_;
        ops.width[kind] = MeasureNothing_;
        ops.height[kind] = MeasureNothing_;
    }
    ops.convertTo555[PicPlain] = ConvertPlain_;
    ops.convertTo555[PicKeyed] = ConvertKeyed_;
    ops.convertTo555[PicSprite] = ConvertSprite_;
    ops.draw[PicPlain] = DrawPlain_;
    ops.draw[PicKeyed] = DrawKeyed_;
    ops.draw[PicSprite] = DrawSprite_;
    for (const PicKind kind : { PicPlain, PicKeyed, PicSprite }) {
        ops.width[kind] = WidthField_;
        ops.height[kind] = HeightField_;
    }
    return ops;
}

} // namespace

constinit const SPicOps_ SPicOps_::table = MakeTable_();

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
