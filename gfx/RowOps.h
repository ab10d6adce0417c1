#pragma once

#include "gfx/Pic16Sprite.h"

#include <cstddef>
#include <cstdint>
#include <span>

// What the runs of a sprite are drawn with. The caller gives palette and level, SRowOps_::prepare makes the tables,
// once per draw.
struct SSpritePaint_ {
    const uint16_t* palette; // 256 colours, 555
    uint8_t level; // of the whole picture, 1 to 31
    // The palette as it is, and scaled by the level unless that is 31. Each set of operations lays them out as it likes
    // and leaves out what it does not use.
    alignas(64) uint16_t colors[256];
    alignas(64) uint16_t scaled[256];
};

// What the rows of other pictures are drawn with.
struct SRowPaint_ {
    uint8_t level; // 1 to 31
    uint16_t key; // of keyed rows
};

// The inner loops of drawing. Each set holds the same operations for other instructions of the processor, and every set
// gives the same pixels as the plain one.
//
// An operation draws `count` stored pixels, at least 1, from `row` rightwards. It touches no other destination pixel
// and reads no byte beyond its source. The mirrored one of a pair takes the source from its last pixel to its first.
struct SRowOps_ {
    // A sprite's run or a piece of it, up to 64 pixels: palette indices, or pairs of an index and a level.
    using DrawRun_ = void (*)(uint16_t* row, const uint8_t* data, int32_t count, const SSpritePaint_& paint);
    // Full runs of indices that follow each other in a sprite's stream, from the first one's control byte on.
    using DrawFullRuns_ = void (*)(uint16_t* row, const uint8_t* stream, int32_t runs, const SSpritePaint_& paint);
    // A row of colours.
    using DrawRow_ = void (*)(uint16_t* row, const uint16_t* colors, ptrdiff_t count, const SRowPaint_& paint);

    struct SPerDirection_ {
        DrawRun_ copyRun; // at level 31
        DrawRun_ blendRun; // at other levels
        DrawRun_ blendLevelsRun; // of pixels with levels of their own, at any level
        DrawRow_ copyRow;
        DrawRow_ blendRow;
        DrawRow_ copyKeyedRow;
        DrawRow_ blendKeyedRow;
    };

    const char* name;
    void (*prepare)(SSpritePaint_& paint);
    SPerDirection_ inOrder;
    SPerDirection_ mirrored;
    DrawFullRuns_ copyFullRuns; // in order only
    DrawFullRuns_ blendFullRuns;

    // The set that drawing uses: the best one of this processor, chosen at start-up. Tests and benchmarks try others.
    static const SRowOps_* used;
    // The sets that this processor can run, the plain one first and the best one last.
    static std::span<const SRowOps_* const> Available_();

    // Of the set that is used.
    static const SPerDirection_& For_(bool mirrored) { return mirrored ? used->mirrored : used->inOrder; }
};

// Makes a set's operation on full runs of its operation on one run, so that the compiler sets up only once what all of
// them need.
template <SRowOps_::DrawRun_ drawRun>
void RunByRun_(uint16_t* row, const uint8_t* stream, int32_t runs, const SSpritePaint_& paint)
{
    constexpr int32_t length = SPic16Sprite_::longestRun;
    for (; runs > 0; --runs, row += length, stream += 1 + length)
        drawRun(row, stream + 1, length, paint);
}

// The sets. Only the plain one is there for every processor that the program is built for.
extern const SRowOps_ plainRowOps;
extern const SRowOps_ avx2RowOps;
extern const SRowOps_ avx512RowOps;
