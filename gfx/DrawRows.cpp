#include "gfx/DrawRows.h"

#include "gfx/Pic16.h"
#include "gfx/Pic16Key.h"
#include "gfx/RowOps.h"

void DrawPlain_(const SPic16X_* picture, const SDrawTask_& task)
{
    const auto& plain = *static_cast<const SPic16_*>(picture);
    const SRowOps_::SPerDirection_& ops = SRowOps_::For_(task.mirrored);
    const auto drawRow = task.level == 31 ? ops.copyRow : ops.blendRow;
    for (int32_t row = 0; row < task.height; ++row)
        drawRow(task.Row_(row), task.StoredRow_(plain, row), task.width, { .level = task.level, .key = 0 });
}

void DrawKeyed_(const SPic16X_* picture, const SDrawTask_& task)
{
    const auto& keyed = *static_cast<const SPic16Key_*>(picture);
    const SRowOps_::SPerDirection_& ops = SRowOps_::For_(task.mirrored);
    const auto drawRow = task.level == 31 ? ops.copyKeyedRow : ops.blendKeyedRow;
    for (int32_t row = 0; row < task.height; ++row)
        drawRow(task.Row_(row), task.StoredRow_(keyed, row), task.width, { .level = task.level, .key = keyed.key });
}
