#pragma once

#include <cstdint>
#include <string>

// What can be wrong with a picture or a text that is to be shown.
enum class LoadProblem : uint8_t {
    None,
    NameWithoutBmp, // a file name without ".bmp" in it
    EmptyText,
    NoSuchFile,
    Unreadable, // a folder, a device, a file without permission
    NotBmp,
    OldHeader, // of 12 bytes
    Depth, // not 8 bits a pixel
    Compressed,
    TopDown,
    BadSize, // 0, or more than 65535 pixels on a side
    BadHeader, // anything else in it
    CutShort,
    OtherSize, // a companion that is not as large as its picture
    TooLarge, // for the memory
};

// Why a picture or a text could not be loaded.
struct SLoadFailure_ {
    LoadProblem problem = LoadProblem::None;
    bool inCompanion = false; // in the alpha file, not in the picture itself
    uint16_t bitsPerPixel = 0; // with Depth
};

// "4 bits a pixel; 8 are needed"; "companion: cut short".
std::string InWords(const SLoadFailure_& failure);
