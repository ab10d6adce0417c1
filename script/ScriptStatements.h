#pragma once

#include "objects/ScreenObject.h"
#include "objects/vec.h"
#include "script/ScriptTokenizer.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

// The forms of a statement, key "=" value ";". A row of a kind's table names a key, the form of its value and what
// takes the value: VecStatement<&PictureObject::SetPos>. On false the cursor stands on the token that does not fit.
template <class Object> struct Statement {
    std::string_view key;
    bool (*read)(ScriptTokenizer& tokens, Object& object); // starts on the key
};

// Steps past the current token if it is of this type.
[[nodiscard]] bool Accept(ScriptTokenizer& tokens, TokenType type);
// Steps past the key and the "=".
[[nodiscard]] bool BeginValue(ScriptTokenizer& tokens);
// The value at the cursor; false leaves it as it was. Integers wrap around at 2^32; of a real the whole part counts, as
// far as an integer holds it.
[[nodiscard]] bool ReadInteger(ScriptTokenizer& tokens, int32_t& value);
[[nodiscard]] bool ReadWholePart(ScriptTokenizer& tokens, int32_t& value);
// As the parser's ReadVec and ReadString.
vec ReadVecValue(ScriptTokenizer& tokens);
std::string ReadTextValue(ScriptTokenizer& tokens);

inline void IgnoreVec(const ScreenObject&, vec) { }
inline void SetAlpha(ScreenObject& object, int32_t alpha)
{
    object.SetAlpha(static_cast<uint32_t>(alpha));
}

// A broken vec that stops on the ";" passes as (-1, -1).
template <auto set, class Object> bool VecStatement(ScriptTokenizer& tokens, Object& object)
{
    if (!BeginValue(tokens) || !tokens.Is(TokenType::Vec))
        return false;
    std::invoke(set, object, ReadVecValue(tokens));
    return Accept(tokens, TokenType::Semicolon);
}

template <auto set, class Object> bool IntegerStatement(ScriptTokenizer& tokens, Object& object)
{
    int32_t value = 0;
    if (!BeginValue(tokens) || !ReadInteger(tokens, value))
        return false;
    std::invoke(set, object, value);
    return Accept(tokens, TokenType::Semicolon);
}

template <auto set, class Object> bool RealStatement(ScriptTokenizer& tokens, Object& object)
{
    int32_t value = 0;
    if (!BeginValue(tokens) || !ReadWholePart(tokens, value))
        return false;
    std::invoke(set, object, static_cast<float>(value));
    return Accept(tokens, TokenType::Semicolon);
}

// Takes any one token for the text, a number or a keyword as well as a string.
template <auto set, class Object> bool TextStatement(ScriptTokenizer& tokens, Object& object)
{
    if (!BeginValue(tokens))
        return false;
    std::invoke(set, object, ReadTextValue(tokens));
    return Accept(tokens, TokenType::Semicolon);
}

template <auto set, class Object> bool FileStatement(ScriptTokenizer& tokens, Object& object)
{
    if (!BeginValue(tokens) || !tokens.Is(TokenType::String))
        return false;
    std::invoke(set, object, ReadTextValue(tokens));
    return Accept(tokens, TokenType::Semicolon);
}

// Strings between commas, none at all among them; the last may have a comma too.
template <auto add, class Object> bool OptionListStatement(ScriptTokenizer& tokens, Object& object)
{
    if (!BeginValue(tokens))
        return false;
    while (tokens.Is(TokenType::String)) {
        std::invoke(add, object, ReadTextValue(tokens));
        if (!Accept(tokens, TokenType::Comma))
            break;
    }
    return Accept(tokens, TokenType::Semicolon);
}
