#include "platform/windows/ResourceLookup.h"

#include <cstdint>

namespace platform {

std::optional<int> ResourceNumber(const char* name)
{
    const auto value = reinterpret_cast<uintptr_t>(name);
    return value <= UINT16_MAX ? std::optional(static_cast<int>(value)) : std::nullopt;
}

} // namespace platform
