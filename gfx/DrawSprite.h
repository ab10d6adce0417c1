#pragma once

#include "gfx/DrawTask.h"

// The drawing of compressed sprites. The rectangles and the run stream are trusted.
void DrawSprite_(const SPic16X_* picture, const SDrawTask_& task);
