#pragma once

#include <cstddef>

// The longest path that a file dialog hands over, with its closing zero byte.
constexpr size_t PathBufferSize = 260;
using PathBuffer = char[PathBufferSize];

// Each asks the designer for a file, starting in the folder "Image\". True when a name was confirmed; the path (code
// page 950, backslashes) is then in the buffer and the current folder is that of the file.
bool OpenImageFileDialog(PathBuffer& path);
bool OpenScriptFileDialog(PathBuffer& path); // the file need not exist

// Each shows its message and answers false when the chosen name will not do.
bool CheckIsNoAlphaFile(const PathBuffer& path);
bool CheckIsScriptFile(const PathBuffer& path);
