#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// Code page 950 (Big5 with its extensions and user-defined rows): the form of every text inside the program. This and
// the functions that call it are the only places where texts meet Unicode. The Unicode Consortium publishes the page as
// mapping tables (CP950.TXT, with the user-defined rows bestfit950.txt).
namespace platform {

// One character of a code-page text. A broken one (a lone lead byte, FF, a pair that the page does not define) has no
// code point; it takes two bytes where a second byte is there, except that a NUL is never swallowed.
struct CodePageCharacter {
    uint32_t codePoint = 0; // 0: broken
    int length = 0; // bytes: 1 or 2
};

// The character that `text` begins with; `text` is not empty.
CodePageCharacter FirstCharacter(std::string_view text);

// Broken characters become U+FFFD.
std::string Utf8FromCodePage(std::string_view text);
// What the page cannot spell becomes one "?" a character.
std::string CodePageFromUtf8(std::string_view text);

// A UTF-8 text with every letter in lower case that the page has: Latin of either width, Greek, Cyrillic, Roman
// numerals. All else stays as it is, malformed bytes too.
std::string FoldCase(std::string_view utf8);

// The longest beginning of `text` that has at most `limit` bytes and ends between two characters.
std::string_view CutToBytes(std::string_view text, size_t limit);

} // namespace platform
