#include "platform/ResourceNames.h"

#include <cstdint>

namespace platform {

namespace {

char LowerCase(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace

bool SameName(const char* one, const char* other)
{
    for (; *one && *other; ++one, ++other)
        if (LowerCase(*one) != LowerCase(*other))
            return false;
    return *one == *other;
}

bool IsResourceNumber(const char* name, int& number)
{
    const auto value = reinterpret_cast<uintptr_t>(name);
    if (value > UINT16_MAX)
        return false;
    number = static_cast<int>(value);
    return true;
}

} // namespace platform
