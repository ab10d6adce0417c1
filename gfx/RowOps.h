#pragma once

#include "gfx/Pic16Sprite.h"

#include <cstddef>
#include <cstdint>
#include <span>

// What the indexed pixels of one sprite are drawn with: made by SRowOps_::prepare, once per draw.
struct SSpritePaint_ {
    const uint16_t* palette; // 256 colours, 555
    uint8_t level; // of the whole picture, 1 to 31
    // The palette as it is, and at that level unless it is 31; both laid out as the set of operations likes it.
    alignas(64) uint16_t colors[256];
    alignas(64) uint16_t scaled[256];
};

// What the colours of a picture's rows are drawn with.
struct SRowPaint_ {
    uint8_t level;
    uint16_t key; // of keyed rows
};

// The inner loops of drawing. Each set holds the same operations for other instructions of the processor, and every set
// gives the same pixels as the plain one.
//
// An operation draws `count` stored pixels, at least 1, from `row` rightwards. It touches no other destination pixel
// and reads no byte beyond its source. The mirrored one of a pair takes the source from its last pixel to its first.
struct SRowOps_ {
    // Of a sprite's run, 1 to 64 pixels: palette indices, or pairs of an index and a level.
    using DrawRun_ = void (*)(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint);
    // Of several full runs of indices that follow each other in a sprite's stream, from the first control byte on.
    using DrawFullRuns_ = void (*)(uint16_t* row, const uint8_t* stream, int32_t runs, const SSpritePaint_& paint);
    // Of colours.
    using DrawRow_ = void (*)(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint);

    struct SPerDirection_ {
        DrawRun_ copyRun; // level 31
        DrawRun_ blendRun; // other levels
        DrawRun_ blendLevelsRun; // a level of its own for each pixel
        DrawRow_ copyRow;
        DrawRow_ blendRow;
        DrawRow_ copyKeyedRow;
        DrawRow_ blendKeyedRow;
    };

    const char* name;
    // Fills the tables of the paint, as far as the set uses them, from its other fields.
    void (*prepare)(SSpritePaint_& paint);
    DrawFullRuns_ copyFullRuns;
    DrawFullRuns_ blendFullRuns;
    SPerDirection_ inOrder;
    SPerDirection_ mirrored;

    // The set that drawing uses: the best one of this processor, chosen at start-up. Tests and benchmarks try others.
    static const SRowOps_* used;
    // The sets that this processor can run, the plain one first and the best one last.
    static std::span<const SRowOps_* const> Available_();

    // Of the set that is used.
    static const SPerDirection_& For_(bool mirrored) { return mirrored ? used->mirrored : used->inOrder; }
};

// A set's operation on full runs, made from its operation on one: what they have in common is then set up only once.
template <SRowOps_::DrawRun_ drawRun>
void DrawFullRuns_(uint16_t* row, const uint8_t* stream, int32_t runs, const SSpritePaint_& paint)
{
    constexpr int32_t length = SPic16Sprite_::longestRun;
    for (; runs > 0; --runs, row += length, stream += 1 + length)
        drawRun(row, stream + 1, length, paint);
}

extern const SRowOps_ plainRowOps;
extern const SRowOps_ avx2RowOps;
extern const SRowOps_ avx512RowOps;
