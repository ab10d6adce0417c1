#pragma once

#include "gfx/DrawTask.h"

// The operations that depend on a picture's kind, each a row of entries indexed by kind code.
struct SPicOps_ {
    using Convert_ = void (*)(SPic16X_*);
    using Draw_ = void (*)(const SPic16X_*, const SDrawTask_&);
    using Measure_ = uint16_t (*)(const SPic16X_*);

    Convert_ convertTo555[PicKindCount];
    Draw_ draw[PicKindCount];
    Measure_ width[PicKindCount];
    Measure_ height[PicKindCount];

    static const SPicOps_ table;
};
