#pragma once

#include "script/ScriptError.h"
#include "script/Token.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// The classified tokens of a screen script, with a cursor on one of them. The whole script is checked first; a token is
// then cut again when the cursor comes to it, so that a script takes little more memory than its bytes. The text of a
// token stays valid as long as the tokenizer holds this script.
class ScriptTokenizer {
public:
    ScriptTokenizer() = default;
    ScriptTokenizer(const ScriptTokenizer&) = delete;
    ScriptTokenizer& operator=(const ScriptTokenizer&) = delete;

    // Reads the whole file (a backslash path in code page 950) and puts the cursor on the first token. False when the
    // file cannot be read or has more than 64 MiB, or at the first malformed element, which ends the tokens; an unknown
    // word is told to the developer log.
    [[nodiscard]] bool Tokenize(const std::string& path);
    // The same for a script in memory, whose line ends are CR LF or LF.
    [[nodiscard]] bool TokenizeText(std::string script);

    // Behind the last token: an empty one of type Unknown.
    const Token& Current() const { return current; }
    void Next();
    // Whether the current token is of this type. What it was asked for is what was expected of it, should it not fit.
    bool Is(TokenType type)
    {
        expected.Add(type);
        return current.type == type;
    }

    // Where reading this script failed first, if it did.
    const std::optional<ScriptError>& GetError() const { return error; }
    // Says that the current token does not fit.
    void RefuseCurrent();

    // Sets the type from the text.
    static void Classify(Token& token);

private:
    void JoinLineEnds();
    void Rewind();
    bool ReadElement();
    void SkipBlanks();
    bool SkipComment();
    bool ReadToken();
    void PassLineEnd() { dropped += joinedLines[line++] ? 1 : 0; }
    size_t EndOfElement(size_t start) const;
    void KeepError(ScriptProblem problem, size_t start, std::string_view found);

    std::string text; // every line end is LF
    std::vector<bool> joinedLines; // whether the line's end was CR LF in the file
    size_t wellFormedEnd = 0; // where the tokens end
    size_t position = 0; // of the next element
    size_t line = 0; // in which it is, from 0
    size_t dropped = 0; // CRs before it
    Token current;
    TokenSet expected; // of the current token
    std::optional<ScriptError> error;
};
