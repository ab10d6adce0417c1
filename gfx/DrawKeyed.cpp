#include "gfx/BlendTab.h"
#include "gfx/DrawTask.h"
#include "gfx/Pic16Key.h"

namespace {

// Chooses a value instead of branching, so that the compiler handles many pixels at a time.
template <bool mirrored> void CopyRow_(uint16_t* row, const uint16_t* pixels, ptrdiff_t count, uint16_t key)
{
    for (ptrdiff_t i = 0; i < count; ++i) {
        uint16_t& target = PixelAt_<mirrored>(row, i);
        target = pixels[i] == key ? target : pixels[i];
    }
}

template <bool mirrored>
void BlendRow_(uint16_t* row, const uint16_t* pixels, ptrdiff_t count, uint16_t key, SBlend_ blend)
{
    for (ptrdiff_t i = 0; i < count; ++i) {
        uint16_t& target = PixelAt_<mirrored>(row, i);
        if (pixels[i] != key)
            target = blend(pixels[i], target);
    }
}

template <bool mirrored> void DrawRows_(const SPic16Key_& picture, const SDrawTask_& task)
{
    const SBlend_ blend(task.level);
    for (int32_t row = 0; row < task.height; ++row) {
        const uint16_t* pixels = task.StoredRow_(picture, row);
        if (task.level == 31)
            CopyRow_<mirrored>(task.Row_(row), pixels, task.width, picture.key);
        else
            BlendRow_<mirrored>(task.Row_(row), pixels, task.width, picture.key, blend);
    }
}

} // namespace

void DrawKeyed_(const SPic16X_* picture, const SDrawTask_& task)
{
    const auto& keyed = *static_cast<const SPic16Key_*>(picture);
    task.mirrored ? DrawRows_<true>(keyed, task) : DrawRows_<false>(keyed, task);
}
