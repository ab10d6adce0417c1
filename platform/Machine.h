#pragma once

#include <cstdint>
#include <string_view>

// The machine's own clock and developer log, for a desktop that has none of its own and for a program without one.
namespace platform {

// Milliseconds since some moment in the past, wrapping around at 2^32.
uint32_t MachineTickCount();
void MachineSleep(uint32_t milliseconds);
// Writes a code page 950 text to stderr as UTF-8, nothing added; broken characters as U+FFFD, and control characters
// other than the line feed as "\x1B".
void WriteToStderr(std::string_view text);

} // namespace platform
