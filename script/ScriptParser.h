#pragma once

#include "objects/vec.h"
#include "script/ParsedScreen.h"
#include "script/ScriptTokenizer.h"

#include <string>

// Builds the objects that a screen script describes. Every operation works at the tokenizer's cursor; on false the
// cursor stands on the token that does not fit, and the objects completed before it stay in `screen`.
class ScriptParser {
public:
    // Reads the file (a backslash path in code page 950). What goes wrong is told to the developer log.
    [[nodiscard]] static bool Parse(ScriptTokenizer& tokens, const std::string& path, ParsedScreen& screen);
    // The part of Parse behind the tokenizer: the root block.
    [[nodiscard]] static bool ParseTokens(ScriptTokenizer& tokens, ParsedScreen& screen);

    // Each starts on its kind's block word and appends one object a stage.
    [[nodiscard]] static bool ReadPictureBlock(ScriptTokenizer& tokens, ParsedScreen& screen);
    [[nodiscard]] static bool ReadButtonBlock(ScriptTokenizer& tokens, ParsedScreen& screen);
    [[nodiscard]] static bool ReadAnimationBlock(ScriptTokenizer& tokens, ParsedScreen& screen);
    [[nodiscard]] static bool ReadWordBlock(ScriptTokenizer& tokens, ParsedScreen& screen);
    [[nodiscard]] static bool ReadCheckBoxBlock(ScriptTokenizer& tokens, ParsedScreen& screen);
    [[nodiscard]] static bool ReadSelectboxBlock(ScriptTokenizer& tokens, ParsedScreen& screen);

    // Starts on "vec". A broken one is (-1, -1), told to the log, with the cursor where it broke.
    static vec ReadVec(ScriptTokenizer& tokens);
    // Takes the current token, whatever its type, and strips its quotes.
    static std::string ReadString(ScriptTokenizer& tokens);
};
