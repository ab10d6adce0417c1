#pragma once

#include <string_view>

namespace platform {

// The developer log of a desktop that has none of its own and of a program without one. Writes a code page 950 text to
// stderr as UTF-8, nothing added; broken characters as U+FFFD, and control characters other than the line feed as
// "\x1B".
void WriteToStderr(std::string_view text);

} // namespace platform
