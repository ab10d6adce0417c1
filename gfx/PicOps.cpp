#include "gfx/PicOps.h"

#include "gfx/ColorFormats.h"
#include "gfx/Pic16.h"
#include "gfx/Pic16Key.h"
#include "gfx/Pic16Sprite.h"

#include <iterator>

namespace {

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
