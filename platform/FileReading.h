#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Every file that is read is opened here. Names are backslash paths in code page 950. Only an ordinary file can be
// read; a folder, a pipe or a device is refused at once, without waiting for anybody and without a side effect.
namespace platform {

// A descriptor for the caller to close, -1 when the file cannot be read.
[[nodiscard]] int OpenForReading(std::string_view codePagePath);

// Whether the name leads to anything: a file, a folder, a device.
bool FileExists(std::string_view codePagePath);

// The whole file; nothing when it cannot be read or has more than `limit` bytes, whatever it says about its size.
[[nodiscard]] std::optional<std::string> ReadFileContent(std::string_view codePagePath, size_t limit);

} // namespace platform
