#pragma once

#include "objects/ScreenObject.h"
#include "objects/vec.h"

#include <memory>
#include <span>

// A screen as it is handed to the script writer.
struct ScreenInfo {
    vec size { 0, 0 }; // nominal, in pixels; not written
    vec pos { 0, 0 }; // written as "ScreenPos"
    std::span<const std::unique_ptr<ScreenObject>> objects; // in the document's order; borrowed
};
