#include "script/ScriptStatements.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace {

int32_t WrappedInteger(std::string_view digits)
{
    uint32_t value = 0;
    for (const char digit : digits)
        value = value * 10 + static_cast<uint32_t>(digit - '0');
    return static_cast<int32_t>(value);
}

// A second full stop ends the number.
int32_t WholePart(std::string_view real)
{
    constexpr int32_t largest = std::numeric_limits<int32_t>::max();
    constexpr size_t maxDigits = std::numeric_limits<int32_t>::digits10 + 1;
    const std::string_view number = real.substr(real.find_first_not_of('0'));
    if (number.find('.') > maxDigits)
        return largest;
    double value = 0;
    std::from_chars(real.data(), real.data() + real.size(), value, std::chars_format::fixed);
    return static_cast<int32_t>(std::min<double>(value, largest));
}

} // namespace

bool Accept(ScriptTokenizer& tokens, TokenType type)
{
    if (tokens.Current().type != type)
        return false;
    tokens.Next();
    return true;
}

bool BeginValue(ScriptTokenizer& tokens)
{
    tokens.Next();
    return Accept(tokens, TokenType::Equals);
}

bool ReadInteger(ScriptTokenizer& tokens, int32_t& value)
{
    if (tokens.Current().type != TokenType::Integer)
        return false;
    value = WrappedInteger(tokens.Current().text);
    tokens.Next();
    return true;
}

bool ReadWholePart(ScriptTokenizer& tokens, int32_t& value)
{
    if (tokens.Current().type != TokenType::Real)
        return false;
    value = WholePart(tokens.Current().text);
    tokens.Next();
    return true;
}
