#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace platform {

// A face in a font file.
struct FontFile {
    std::string path;
    int index = 0;
};

// How many choices of a font there are, the best one first.
extern const size_t fontChoices;

// The file of a choice (from 0) among the fonts installed; nothing where that one is not installed. Whether the font
// has Chinese characters is not looked at.
std::optional<FontFile> FindFont(size_t choice);

// A face without Chinese for lines that have little room, and the size in which it is narrow enough.
struct NarrowFont {
    FontFile file;
    int pixelSize = 0;
};

// The best one among the fonts installed.
std::optional<NarrowFont> FindNarrowFont();

} // namespace platform
