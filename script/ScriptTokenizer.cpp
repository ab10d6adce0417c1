#include "script/ScriptTokenizer.h"

#include "platform/CodePage.h"
#include "platform/FileReading.h"
#include "platform/Kernel.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr std::string_view blanks = " \t\n";
constexpr std::string_view punctuation = "(),;={}";
constexpr std::string_view wordEnds = " \t\n(),;={}";
constexpr std::string_view digits = "0123456789";
constexpr std::string_view numberCharacters = "0123456789.";

constexpr Token reservedWords[] = {
    { ";", TokenType::Semicolon },
    { "(", TokenType::OpenParen },
    { ")", TokenType::CloseParen },
    { "{", TokenType::OpenBrace },
    { "}", TokenType::CloseBrace },
    { "=", TokenType::Equals },
    { ",", TokenType::Comma },
    { "-", TokenType::Minus },
    { "vec", TokenType::Vec },
    { "Stage", TokenType::Stage },
    { "Filename", TokenType::Filename },
    { "PicturePos", TokenType::PictureKey },
    { "PictureSize", TokenType::PictureKey },
    { "PictureLayer", TokenType::PictureKey },
    { "PictureAlpha", TokenType::PictureKey },
    { "ButtonPos", TokenType::ButtonKey },
    { "ButtonLayer", TokenType::ButtonKey },
    { "ButtonAlpha", TokenType::ButtonKey },
    { "ButtonSection", TokenType::ButtonKey },
    { "ButtonPicSize", TokenType::ButtonKey },
    { "AnimationPos", TokenType::AnimationKey },
    { "AnimationLayer", TokenType::AnimationKey },
    { "AnimationSection", TokenType::AnimationKey },
    { "AnimationInterval", TokenType::AnimationKey },
    { "AnimationPicSize", TokenType::AnimationKey },
    { "WordPos", TokenType::WordKey },
    { "WordText", TokenType::WordKey },
    { "WordLayer", TokenType::WordKey },
    { "WordAlpha", TokenType::WordKey },
    { "CheckBoxPos", TokenType::CheckBoxKey },
    { "CheckBoxText", TokenType::CheckBoxKey },
    { "CheckBoxLayer", TokenType::CheckBoxKey },
    { "CheckBoxAlpha", TokenType::CheckBoxKey },
    { "SelectboxPos", TokenType::SelectboxKey },
    { "SelectboxText", TokenType::SelectboxKey },
    { "SelectboxLayer", TokenType::SelectboxKey },
    { "SelectboxAlpha", TokenType::SelectboxKey },
    { "SelectboxUpPic", TokenType::SelectboxKey },
    { "SelectboxDownPic", TokenType::SelectboxKey },
    { "SelectboxEditPic", TokenType::SelectboxKey },
    { "ScreenPos", TokenType::ScreenKey },
    { "ScreenSize", TokenType::ScreenKey },
    { "Picture", TokenType::PictureBlock },
    { "Button", TokenType::ButtonBlock },
    { "Animation", TokenType::AnimationBlock },
    { "Word", TokenType::WordBlock },
    { "CheckBox", TokenType::CheckBoxBlock },
    { "Selectbox", TokenType::SelectboxBlock },
    { "ZULScreen", TokenType::Root },
};

constexpr bool IsOneOf(char character, std::string_view characters)
{
    return characters.find(character) != std::string_view::npos;
}

TokenType TypeOfNumber(std::string_view text)
{
    if (!IsOneOf(text.back(), digits) || text.find_first_not_of(numberCharacters) != std::string_view::npos)
        return TokenType::Unknown;
    return IsOneOf('.', text) ? TokenType::Real : TokenType::Integer;
}

// A column counts two-byte characters as one.
size_t CountCharacters(std::string_view text)
{
    size_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(static_cast<size_t>(platform::FirstCharacter(text).length));
    return count;
}

} // namespace

bool ScriptTokenizer::Tokenize(const std::string& path)
{
    constexpr size_t largestScript = size_t { 64 } << 20;
    std::optional<std::string> script = platform::ReadFileContent(path, largestScript);
    if (script)
        return TokenizeText(*std::move(script));
    static_cast<void>(TokenizeText({}));
    error.emplace();
    return false;
}

bool ScriptTokenizer::TokenizeText(std::string script)
{
    text = std::move(script);
    error.reset();
    JoinLineEnds();
    Rewind();
    for (wellFormedEnd = 0; wellFormedEnd < text.size(); wellFormedEnd = position) {
        if (!ReadElement())
            break;
    }
    Rewind();
    Next();
    return !error;
}

void ScriptTokenizer::JoinLineEnds()
{
    joinedLines.clear();
    size_t kept = 0;
    bool joins = false; // whether the byte is the CR of a CR LF
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n')
            joinedLines.push_back(joins);
        joins = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (!joins)
            text[kept++] = text[i];
    }
    text.resize(kept);
}

void ScriptTokenizer::Rewind()
{
    position = 0;
    line = 0;
    dropped = 0;
    current = {};
    expected = {};
}

void ScriptTokenizer::Next()
{
    if (position == wellFormedEnd && current.text.empty())
        return;
    current = {};
    expected = {};
    while (current.text.empty() && position < wellFormedEnd)
        static_cast<void>(ReadElement());
    if (current.text.empty())
        current.offset = position + dropped;
}

void ScriptTokenizer::RefuseCurrent()
{
    const size_t start = current.text.empty() ? wellFormedEnd : static_cast<size_t>(current.text.data() - text.data());
    KeepError(ScriptProblem::UnexpectedToken, start, current.text);
}

// `start` is that of the element in the text. The first error stays.
void ScriptTokenizer::KeepError(ScriptProblem problem, size_t start, std::string_view found)
{
    if (error)
        return;
    const std::string_view before = std::string_view(text).substr(0, start);
    const auto lines = std::count(before.begin(), before.end(), '\n');
    const auto joined = std::count(joinedLines.begin(), joinedLines.begin() + lines, true);
    error = ScriptError {
        .problem = problem,
        .offset = start + static_cast<size_t>(joined),
        .line = static_cast<size_t>(lines) + 1,
        .column = CountCharacters(before.substr(before.rfind('\n') + 1)) + 1,
        .found = std::string(found),
        .expected = expected,
    };
}

// Steps past the blanks, the comment or the token at `position`; a token becomes the current one.
bool ScriptTokenizer::ReadElement()
{
    if (IsOneOf(text[position], blanks)) {
        SkipBlanks();
        return true;
    }
    return text[position] == '/' ? SkipComment() : ReadToken();
}

void ScriptTokenizer::SkipBlanks()
{
    for (; position < text.size() && IsOneOf(text[position], blanks); ++position) {
        if (text[position] == '\n')
            PassLineEnd();
    }
}

bool ScriptTokenizer::ReadToken()
{
    const size_t start = position;
    const size_t tokenEnd = EndOfElement(start);
    if (tokenEnd == std::string::npos) {
        KeepError(ScriptProblem::OpenString, start, text.substr(start, text.find('\n', start) - start));
        return false;
    }
    position = tokenEnd;
    current.text = std::string_view(text).substr(start, position - start);
    current.offset = start + dropped;
    Classify(current);
    if (current.type == TokenType::String) {
        for (const char byte : current.text)
            if (byte == '\n')
                PassLineEnd();
    }
    if (current.type != TokenType::Unknown)
        return true;
    const bool isNumber = IsOneOf(text[start], digits);
    KeepError(isNumber ? ScriptProblem::MalformedNumber : ScriptProblem::UnknownWord, start, current.text);
    OutputDebugStringA(std::string(current.text).c_str());
    OutputDebugStringA("\n");
    return false;
}

bool ScriptTokenizer::SkipComment()
{
    const size_t start = position;
    if (text.compare(start, 2, "//") != 0) {
        KeepError(ScriptProblem::LoneSlash, start, "/");
        return false;
    }
    const size_t lineEnd = text.find('\n', start);
    position = std::min(lineEnd, text.size());
    return true;
}

// npos for a string that is not closed.
size_t ScriptTokenizer::EndOfElement(size_t start) const
{
    if (IsOneOf(text[start], punctuation))
        return start + 1;
    if (text[start] == '"') {
        const size_t quote = text.find('"', start + 1);
        return quote == std::string::npos ? quote : quote + 1;
    }
    // A number ends at anything else, a word only at a blank or punctuation.
    const size_t end = IsOneOf(text[start], digits) ? text.find_first_not_of(numberCharacters, start)
                                                    : text.find_first_of(wordEnds, start);
    return std::min(end, text.size());
}

void ScriptTokenizer::Classify(Token& token)
{
    token.type = TokenType::Unknown;
    if (token.text.empty())
        return;
    if (IsOneOf(token.text.front(), digits)) {
        token.type = TypeOfNumber(token.text);
        return;
    }
    if (token.text.front() == '"') {
        token.type = TokenType::String;
        return;
    }
    const auto* const word = std::find_if(std::begin(reservedWords), std::end(reservedWords),
        [&](const Token& reserved) { return reserved.text == token.text; });
    if (word != std::end(reservedWords))
        token.type = word->type;
}
