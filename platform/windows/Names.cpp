#include "platform/windows/Names.h"

#include <algorithm>

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

} // namespace platform
