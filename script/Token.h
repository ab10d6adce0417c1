#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>

enum class TokenType : uint8_t {
    String = 0,
    Semicolon = 1,
    OpenParen = 2,
    CloseParen = 3,
    OpenBrace = 4,
    CloseBrace = 5,
    Equals = 6,
    Comma = 7,
    Minus = 8,
    Real = 9,
    Integer = 10,
    Vec = 11,
    Root = 12,
    PictureBlock = 13,
    ButtonBlock = 14,
    AnimationBlock = 15,
    Stage = 16,
    Filename = 17,
    WordBlock = 18,
    CheckBoxBlock = 19,
    SelectboxBlock = 20,
    ScreenKey = 21,
    AnimationKey = 22,
    ButtonKey = 23,
    PictureKey = 24,
    WordKey = 25,
    CheckBoxKey = 26,
    SelectboxKey = 27,
    Unknown = 28,
};
static_assert(static_cast<uint32_t>(TokenType::Unknown) < 32, "TokenSet has a bit for each");

// One element of a screen script. The text is exactly as read (a string keeps its quotes) and lies in the tokenizer.
struct Token {
    std::string_view text;
    TokenType type = TokenType::Unknown;
    size_t offset = 0; // of its first byte in the file
};

// Some of the token types.
class TokenSet {
public:
    constexpr TokenSet() = default;
    constexpr TokenSet(std::initializer_list<TokenType> types)
    {
        for (const TokenType type : types)
            Add(type);
    }
    constexpr void Add(TokenType type) { bits |= 1U << static_cast<uint32_t>(type); }
    constexpr bool Has(TokenType type) const { return (bits >> static_cast<uint32_t>(type) & 1) != 0; }
    constexpr bool operator==(const TokenSet&) const = default;

private:
    uint32_t bits = 0;
};
