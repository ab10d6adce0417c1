#pragma once

#include "script/Token.h"

#include <cstddef>
#include <cstdint>
#include <string>

enum class ScriptProblem : uint8_t {
    UnreadableFile,
    LoneSlash, // a comment begins with two
    OpenString, // without its closing quote
    UnknownWord,
    MalformedNumber,
    UnexpectedToken,
};

// Where a script stops being one, and why: its first failure.
struct ScriptError {
    ScriptProblem problem = ScriptProblem::UnreadableFile;
    size_t offset = 0; // in the bytes of the file
    // Counted from 1, a two-byte character as one; 0 when the file cannot be read.
    size_t line = 0;
    size_t column = 0;
    std::string found; // the element, of an open string its first line; empty where the script ends
    TokenSet expected; // of an unexpected token: what would have been read on from there
};

// "3:12: found "}", expected ";"": line, column, what is there and what is not. What was found stays code page 950.
std::string InWords(const ScriptError& error);
