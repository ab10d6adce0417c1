#include "platform/Names.h"

#include <algorithm>
#include <cstdint>

namespace platform {

namespace {

char LowerCase(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

bool SameName(std::string_view one, std::string_view other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
        [](char left, char right) { return LowerCase(left) == LowerCase(right); });
}

std::optional<int> ResourceNumber(const char* name)
{
    const auto value = reinterpret_cast<uintptr_t>(name);
    return value <= UINT16_MAX ? std::optional(static_cast<int>(value)) : std::nullopt;
}

} // namespace platform
