#pragma once

#include "platform/CodePage.h"

#include <algorithm>
#include <cstddef>
#include <string>

// u8"開新檔案"_big5 is a text in code page 950: sources stay UTF-8, the bytes are made when the literal is first used.
namespace platform {
template <size_t size> struct Utf8Literal {
    char8_t text[size] {};
    constexpr Utf8Literal(const char8_t (&source)[size]) { std::copy_n(source, size, text); }
};
} // namespace platform

template <platform::Utf8Literal literal> const char* operator""_big5()
{
    static const std::string bytes = platform::CodePageFromUtf8(reinterpret_cast<const char*>(literal.text));
    return bytes.c_str();
}
