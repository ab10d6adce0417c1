#include "script/ScriptError.h"

namespace {

const char* InWords(TokenType type)
{
    switch (type) {
    case TokenType::String:
        return "a text in quotes";
    case TokenType::Semicolon:
        return "\";\"";
    case TokenType::OpenParen:
        return "\"(\"";
    case TokenType::CloseParen:
        return "\")\"";
    case TokenType::OpenBrace:
        return "\"{\"";
    case TokenType::CloseBrace:
        return "\"}\"";
    case TokenType::Equals:
        return "\"=\"";
    case TokenType::Comma:
        return "\",\"";
    case TokenType::Minus:
        return "\"-\"";
    case TokenType::Real:
        return "a number with a full stop";
    case TokenType::Integer:
        return "a whole number";
    case TokenType::Vec:
        return "\"vec\"";
    case TokenType::Root:
        return "\"ZULScreen\"";
    case TokenType::PictureBlock:
        return "\"Picture\"";
    case TokenType::ButtonBlock:
        return "\"Button\"";
    case TokenType::AnimationBlock:
        return "\"Animation\"";
    case TokenType::Stage:
        return "\"Stage\"";
    case TokenType::Filename:
        return "\"Filename\"";
    case TokenType::WordBlock:
        return "\"Word\"";
    case TokenType::CheckBoxBlock:
        return "\"CheckBox\"";
    case TokenType::SelectboxBlock:
        return "\"Selectbox\"";
    case TokenType::ScreenKey:
        return "a key of the screen";
    case TokenType::AnimationKey:
        return "a key of animations";
    case TokenType::ButtonKey:
        return "a key of buttons";
    case TokenType::PictureKey:
        return "a key of pictures";
    case TokenType::WordKey:
        return "a key of words";
    case TokenType::CheckBoxKey:
        return "a key of check boxes";
    case TokenType::SelectboxKey:
        return "a key of select boxes";
    case TokenType::Unknown:
        break;
    }
    return "";
}

std::string InWords(const TokenSet& types)
{
    std::string words;
    for (int code = 0; code < static_cast<int>(TokenType::Unknown); ++code) {
        const auto type = static_cast<TokenType>(code);
        if (types.Has(type))
            words += (words.empty() ? "" : " or ") + std::string(InWords(type));
    }
    return words;
}

std::string ExpectedInWords(const ScriptError& error)
{
    switch (error.problem) {
    case ScriptProblem::UnreadableFile:
        break;
    case ScriptProblem::LoneSlash:
        return "\"//\"";
    case ScriptProblem::OpenString:
        return "a closing quote";
    case ScriptProblem::UnknownWord:
        return "a word of the script language";
    case ScriptProblem::MalformedNumber:
        return "a number that ends in a digit";
    case ScriptProblem::UnexpectedToken:
        return InWords(error.expected);
    }
    return "";
}

} // namespace

std::string InWords(const ScriptError& error)
{
    if (error.problem == ScriptProblem::UnreadableFile)
        return "the file cannot be read";
    const std::string found = error.found.empty() ? "the end" : "\"" + error.found + "\"";
    return std::to_string(error.line) + ":" + std::to_string(error.column) + ": found " + found + ", expected "
        + ExpectedInWords(error);
}
