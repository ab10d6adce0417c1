#include "gfx/DrawSprite.h"

#include "gfx/RowOps.h"
#include "gfx/RunCursor.h"

namespace {

// Draws pieces of a sprite's runs: `row` is where the leftmost pixel of a piece lands.
class CRunDrawing_ {
public:
    CRunDrawing_(const SPic16Sprite_& sprite, const SDrawTask_& task)
        : keyIndex(sprite.keyIndex)
        , mirrored(task.mirrored)
        , drawLevels(SRowOps_::For_(mirrored).blendLevelsRun)
        , drawIndices(task.level == 31 ? SRowOps_::For_(mirrored).copyRun : SRowOps_::For_(mirrored).blendRun)
        , drawFullRuns(task.level == 31 ? SRowOps_::used->copyFullRuns : SRowOps_::used->blendFullRuns)
    {
        paint.palette = sprite.palette;
        paint.level = task.level;
        SRowOps_::used->prepare(paint);
    }

    // Draws `count` pixels of one run, whose bytes start at `data`. Returns where the bytes of the next pixel are.
    const uint8_t* Draw_(uint16_t* row, uint8_t runType, const uint8_t* data, int32_t count) const
    {
        switch (static_cast<RunType>(runType)) {
        case RunZero:
            return data;
        case RunNormal:
            drawIndices(row, data, count, paint);
            return data + count;
        case RunAlpha:
            drawLevels(row, data, count, paint);
            return data + ptrdiff_t { 2 } * count;
        case RunTrans:
            DrawUnlessKey_(row, data, count);
            return data + count;
        }
        return data;
    }

    // In order only.
    void DrawFullRuns_(uint16_t* row, const uint8_t* stream, int32_t runs) const
    {
        drawFullRuns(row, stream, runs, paint);
    }

private:
    // The stretches between pixels of the key index are drawn as opaque runs.
    void DrawUnlessKey_(uint16_t* row, const uint8_t* data, int32_t count) const
    {
        int32_t start = 0; // of the stretch before end
        for (int32_t end = 0; end <= count; ++end) {
            if (end < count && data[end] != keyIndex)
                continue;
            if (start < end)
                drawIndices(row + (mirrored ? count - end : start), data + start, end - start, paint);
            start = end + 1;
        }
    }

    SSpritePaint_ paint;
    uint8_t keyIndex;
    bool mirrored;
    SRowOps_::DrawRun_ drawLevels;
    SRowOps_::DrawRun_ drawIndices;
    SRowOps_::DrawFullRuns_ drawFullRuns;
};

// Full runs are drawn together where a row has room for two of them. To look for them in shorter rows would cost more
// than it gains.
enum class Rows_ { Short, Long, Mirrored };

// The cursor is a local of this function, with nothing else pointing at it, and so stays in registers.
template <Rows_ rows> void DrawRuns_(const SPic16Sprite_& sprite, const SDrawTask_& task)
{
    const CRunDrawing_ drawing(sprite, task);
    SRunCursor_ cursor(sprite);
    cursor.SkipRows_(task.firstRow);
    const int32_t rightMargin = sprite.width - task.firstColumn - task.width;
    for (int32_t row = 0; row < task.height; ++row) {
        cursor.Skip_(task.firstColumn);
        uint16_t* const target = task.Row_(row);
        for (int32_t x = 0; x < task.width;) {
            const int32_t wanted = task.width - x;
            const int32_t fullRuns = rows == Rows_::Long ? cursor.FullRuns_(wanted) : 0;
            if (fullRuns > 0) {
                drawing.DrawFullRuns_(target + x, cursor.position, fullRuns);
                x += cursor.SkipFullRuns_(fullRuns);
                continue;
            }
            const int32_t taken = cursor.Take_(wanted);
            // A mirrored row fills up from its right end.
            uint16_t* const leftmost = target + (rows == Rows_::Mirrored ? wanted - taken : x);
            cursor.position = drawing.Draw_(leftmost, cursor.runType, cursor.position, taken);
            x += taken;
        }
        cursor.Skip_(rightMargin);
    }
}

} // namespace

void DrawSprite_(const SPic16X_* picture, const SDrawTask_& task)
{
    const auto& sprite = *static_cast<const SPic16Sprite_*>(picture);
    if (task.mirrored)
        DrawRuns_<Rows_::Mirrored>(sprite, task);
    else if (task.width < 2 * SPic16Sprite_::longestRun)
        DrawRuns_<Rows_::Short>(sprite, task);
    else
        DrawRuns_<Rows_::Long>(sprite, task);
}
