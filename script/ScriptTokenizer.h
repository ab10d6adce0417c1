#pragma once

#include "script/Token.h"

#include <cstddef>
#include <deque>
#include <string>

// A screen script cut into classified tokens, with a cursor on one of them. Tokens stay valid as long as the tokenizer
// holds this script.
class ScriptTokenizer {
public:
    ScriptTokenizer() = default;
    ScriptTokenizer(const ScriptTokenizer&) = delete;
    ScriptTokenizer& operator=(const ScriptTokenizer&) = delete;

    // Reads the whole file (a backslash path in code page 950) and puts the cursor on the first token. False when the
    // file cannot be read, or at the first malformed element; an unknown word is told to the developer log.
    [[nodiscard]] bool Tokenize(const std::string& path);
    // The same for a script in memory, whose line ends are CR LF or LF.
    [[nodiscard]] bool TokenizeText(std::string script);

    // Behind the last token: an empty one of type Unknown.
    const Token& Current() const { return cursor < tokens.size() ? tokens[cursor] : endMarker; }
    void Next();

    // Sets the type from the text.
    static void Classify(Token& token);

private:
    bool ReadElement(size_t& position);
    bool SkipComment(size_t& position) const;
    size_t EndOfElement(size_t start) const;
    bool Append(std::string_view element);

    std::string text;
    std::deque<Token> tokens; // no copying and no spare half while millions are added
    size_t cursor = 0;
    static constexpr Token endMarker {};
};
