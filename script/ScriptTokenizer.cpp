#include "script/ScriptTokenizer.h"

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

void JoinLineEnds(std::string& text)
{
    size_t kept = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const bool beforeLineFeed = i + 1 < text.size() && text[i + 1] == '\n';
        if (text[i] != '\r' || !beforeLineFeed)
            text[kept++] = text[i];
    }
    text.resize(kept);
}

} // namespace

bool ScriptTokenizer::Tokenize(const std::string& path)
{
    constexpr size_t largestScript = size_t { 64 } << 20;
    std::optional<std::string> script = platform::ReadFileContent(path, largestScript);
    return script && TokenizeText(*std::move(script));
}

bool ScriptTokenizer::TokenizeText(std::string script)
{
    text = std::move(script);
    JoinLineEnds(text);
    position = 0;
    bool wellFormed = true;
    while (wellFormed && position < text.size())
        wellFormed = ReadElement();
    if (!wellFormed)
        text.clear();
    position = 0;
    Next();
    return wellFormed;
}

void ScriptTokenizer::Next()
{
    current = {};
    while (current.text.empty() && position < text.size())
        static_cast<void>(ReadElement());
}

// Steps past the blank, comment or token that begins at `position`; a token becomes the current one.
bool ScriptTokenizer::ReadElement()
{
    const size_t start = position;
    if (IsOneOf(text[start], blanks)) {
        ++position;
        return true;
    }
    if (text[start] == '/')
        return SkipComment();
    position = EndOfElement(start);
    if (position == std::string::npos)
        return false;
    current.text = std::string_view(text).substr(start, position - start);
    Classify(current);
    if (current.type != TokenType::Unknown)
        return true;
    OutputDebugStringA(std::string(current.text).c_str());
    OutputDebugStringA("\n");
    return false;
}

bool ScriptTokenizer::SkipComment()
{
    if (text.compare(position, 2, "//") != 0)
        return false;
    const size_t lineEnd = text.find('\n', position);
    position = lineEnd == std::string::npos ? text.size() : lineEnd + 1;
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
