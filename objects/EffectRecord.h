#pragma once

#include "objects/ScreenObject.h"

#include <cstdint>

// One running appearance effect.
struct EffectRecord {
    int32_t index = -1; // of the object in the document's list
    EffectKind effectKind = EffectNone; // the object's effect when it started
    int32_t step = 0; // steps taken so far
    int32_t steps = 0; // last step number
    float interval = 20.0F; // milliseconds between two steps
    vec end { 0, 0 }; // where the object is put when the effect finishes
    vec start { 0, 0 }; // position of step 0
    vec delta { 0, 0 }; // movement per step
    uint32_t lastTick = 0; // tick counter at the last step, or at the start
};
