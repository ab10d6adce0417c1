#pragma once

#include <cstdint>

// The machine's own clock, for a desktop that has none of its own and for a program without one.
namespace platform {

// Milliseconds since some moment in the past, wrapping around at 2^32.
uint32_t MachineTickCount();
void MachineSleep(uint32_t milliseconds);

} // namespace platform
