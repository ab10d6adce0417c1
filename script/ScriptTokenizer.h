#pragma once

#include "script/Token.h"

#include <cstddef>
#include <string>

// The classified tokens of a screen script, with a cursor on one of them. The whole script is checked first; a token is
// then cut again when the cursor comes to it, so that a script takes little more memory than its bytes. The text of a
// token stays valid as long as the tokenizer holds this script.
class ScriptTokenizer {
public:
    ScriptTokenizer() = default;
    ScriptTokenizer(const ScriptTokenizer&) = delete;
    ScriptTokenizer& operator=(const ScriptTokenizer&) = delete;

    // Reads the whole file (a backslash path in code page 950) and puts the cursor on the first token. False when the
    // file cannot be read or has more than 64 MiB, or at the first malformed element; an unknown word is told to the
    // developer log.
    [[nodiscard]] bool Tokenize(const std::string& path);
    // The same for a script in memory, whose line ends are CR LF or LF.
    [[nodiscard]] bool TokenizeText(std::string script);

    // Behind the last token: an empty one of type Unknown.
    const Token& Current() const { return current; }
    void Next();

    // Sets the type from the text.
    static void Classify(Token& token);

private:
    bool ReadElement();
    bool SkipComment();
    size_t EndOfElement(size_t start) const;

    std::string text;
    size_t position = 0; // of the next element
    Token current;
};
