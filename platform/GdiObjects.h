#pragma once

#include "platform/Types.h"

#include <cstdint>
#include <memory>

// The records behind the device interface's handles: programs need to know that each is a GdiObject, and no more.
namespace platform {

struct GdiObject {
    bool stock = false; // belongs to the system
    int selections = 0; // by contexts; a selected object cannot be deleted
    virtual ~GdiObject() = default;
};

struct Brush final : GdiObject {
    COLORREF color = 0;
};

// Top-down 5-5-5 pixels; a row has `stride` pixels, an even number.
struct Bitmap final : GdiObject {
    int width = 0;
    int height = 0;
    int stride = 0;
    std::unique_ptr<uint16_t[]> pixels;
};

struct Font final : GdiObject {
    int cellHeight = 16;
    bool narrow = false;
};

} // namespace platform
