#pragma once

#include "platform/GdiObjects.h"

namespace platform {

// The system's own objects; every context starts with the bitmap, which is 0 by 0, and the font, which is narrow.
Bitmap* NoBitmap();
Brush* WhiteBrush();
Font* DefaultFont();

} // namespace platform
