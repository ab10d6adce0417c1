#include "script/ScriptStatements.h"

#include "platform/Big5Literal.h"
#include "platform/Kernel.h"

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
    if (!tokens.Is(type))
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
    if (!tokens.Is(TokenType::Integer))
        return false;
    value = WrappedInteger(tokens.Current().text);
    tokens.Next();
    return true;
}

bool ReadWholePart(ScriptTokenizer& tokens, int32_t& value)
{
    if (!tokens.Is(TokenType::Real))
        return false;
    value = WholePart(tokens.Current().text);
    tokens.Next();
    return true;
}

vec ReadVecValue(ScriptTokenizer& tokens)
{
    vec value { 0, 0 };
    tokens.Next();
    if (Accept(tokens, TokenType::OpenParen) && ReadInteger(tokens, value.x) && Accept(tokens, TokenType::Comma)
        && ReadInteger(tokens, value.y) && Accept(tokens, TokenType::CloseParen))
        return value;
    OutputDebugStringA(u8"處理 vec 時發生錯誤"_big5);
    OutputDebugStringA("\n");
    return { -1, -1 };
}

std::string ReadTextValue(ScriptTokenizer& tokens)
{
    std::string_view text = tokens.Current().text;
    if (tokens.Is(TokenType::String))
        text = text.substr(1, text.size() - 2);
    tokens.Next();
    return std::string(text);
}
