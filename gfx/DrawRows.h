#pragma once

#include "gfx/DrawTask.h"

// The drawing of the kinds that store their pixels uncompressed. The rectangles are trusted.
void DrawPlain_(const SPic16X_* picture, const SDrawTask_& task);
void DrawKeyed_(const SPic16X_* picture, const SDrawTask_& task);
