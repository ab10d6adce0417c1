#include "gfx/BlendTab.h"
#include "gfx/DrawTask.h"
#include "gfx/Pic16.h"

#include <cstring>

namespace {

template <bool mirrored> void CopyRow_(uint16_t* row, const uint16_t* pixels, ptrdiff_t count)
{
    if constexpr (!mirrored)
        std::memcpy(row, pixels, static_cast<size_t>(count) * sizeof *pixels);
    else
        for (ptrdiff_t i = 0; i < count; ++i)
            PixelAt_<true>(row, i) = pixels[i];
}

template <bool mirrored> void BlendRow_(uint16_t* row, const uint16_t* pixels, ptrdiff_t count, SBlend_ blend)
{
    for (ptrdiff_t i = 0; i < count; ++i) {
        uint16_t& target = PixelAt_<mirrored>(row, i);
        target = blend(pixels[i], target);
    }
}

template <bool mirrored> void DrawRows_(const SPic16_& picture, const SDrawTask_& task)
{
    const SBlend_ blend(task.level);
    for (int32_t row = 0; row < task.height; ++row) {
        const uint16_t* pixels = task.StoredRow_(picture, row);
        if (task.level == 31)
            CopyRow_<mirrored>(task.Row_(row), pixels, task.width);
        else
            BlendRow_<mirrored>(task.Row_(row), pixels, task.width, blend);
    }
}

} // namespace

void DrawPlain_(const SPic16X_* picture, const SDrawTask_& task)
{
    const auto& plain = *static_cast<const SPic16_*>(picture);
    task.mirrored ? DrawRows_<true>(plain, task) : DrawRows_<false>(plain, task);
}
