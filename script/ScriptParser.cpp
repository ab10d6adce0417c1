#include "script/ScriptParser.h"

#include "platform/Big5Literal.h"
#include "platform/Kernel.h"
#include "script/ScriptStatements.h"

#include <algorithm>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace {

constexpr Statement<PictureObject> pictureStatements[] = {
    { "PicturePos", VecStatement<&PictureObject::SetPos> },
    { "Filename", TextStatement<&PictureObject::SetFileName> },
    { "PictureSize", VecStatement<&PictureObject::SetView> },
    { "PictureLayer", IntegerStatement<&PictureObject::SetLayer> },
    { "PictureAlpha", IntegerStatement<SetAlpha> },
};

constexpr Statement<ButtonObject> buttonStatements[] = {
    { "ButtonPos", VecStatement<&ButtonObject::SetPos> },
    { "ButtonPicSize", VecStatement<IgnoreVec> },
    { "Filename", TextStatement<&ButtonObject::SetFileName> },
    { "ButtonLayer", IntegerStatement<&ButtonObject::SetLayer> },
    { "ButtonAlpha", IntegerStatement<SetAlpha> },
    { "ButtonSection", IntegerStatement<&ButtonObject::SetSections> },
};

constexpr Statement<AnimationObject> animationStatements[] = {
    { "AnimationPos", VecStatement<&AnimationObject::SetPos> },
    { "AnimationPicSize", VecStatement<IgnoreVec> },
    { "Filename", TextStatement<&AnimationObject::SetFileName> },
    { "AnimationLayer", IntegerStatement<&AnimationObject::SetLayer> },
    { "AnimationSection", IntegerStatement<&AnimationObject::SetSections> },
    { "AnimationInterval", RealStatement<&AnimationObject::SetInterval> },
};

constexpr Statement<WordObject> wordStatements[] = {
    { "WordPos", VecStatement<&WordObject::SetPos> },
    { "WordText", TextStatement<&WordObject::StoreText> },
    { "WordLayer", IntegerStatement<&WordObject::SetLayer> },
    { "WordAlpha", IntegerStatement<SetAlpha> },
};

constexpr Statement<CheckBoxObject> checkBoxStatements[] = {
    { "CheckBoxPos", VecStatement<&CheckBoxObject::SetPos> },
    { "CheckBoxText", TextStatement<&CheckBoxObject::SetLabelText> },
    { "CheckBoxLayer", IntegerStatement<&CheckBoxObject::SetLayer> },
    { "CheckBoxAlpha", IntegerStatement<SetAlpha> },
};

constexpr Statement<SelectboxObject> selectboxStatements[] = {
    { "SelectboxPos", VecStatement<&SelectboxObject::SetPos> },
    { "SelectboxLayer", IntegerStatement<&SelectboxObject::SetLayer> },
    { "SelectboxAlpha", IntegerStatement<SetAlpha> },
    { "SelectboxUpPic", FileStatement<&SelectboxObject::SetUpFile> },
    { "SelectboxDownPic", FileStatement<&SelectboxObject::SetDownFile> },
    { "SelectboxEditPic", FileStatement<&SelectboxObject::SetEditFile> },
    { "SelectboxText", OptionListStatement<&SelectboxObject::AddString> },
};

// Statements up to the closing brace.
template <class Object>
bool ReadStatements(ScriptTokenizer& tokens, std::span<const Statement<Object>> statements, Object& object)
{
    while (tokens.Current().type != TokenType::CloseBrace) {
        const std::string_view key = tokens.Current().text;
        const auto statement = std::find_if(
            statements.begin(), statements.end(), [&](const Statement<Object>& known) { return known.key == key; });
        if (statement == statements.end() || !statement->read(tokens, object))
            return false;
    }
    tokens.Next();
    return true;
}

template <class Object>
bool ReadBlock(ScriptTokenizer& tokens, TokenType blockWord, std::span<const Statement<Object>> statements,
    std::vector<std::unique_ptr<Object>>& objects)
{
    if (!Accept(tokens, blockWord) || !Accept(tokens, TokenType::OpenBrace))
        return false;
    while (Accept(tokens, TokenType::Stage)) {
        auto object = std::make_unique<Object>();
        // Objects come in the order of the file, whatever their stage numbers say.
        if (!Accept(tokens, TokenType::Integer) || !Accept(tokens, TokenType::OpenBrace)
            || !ReadStatements(tokens, statements, *object))
            return false;
        objects.push_back(std::move(object));
    }
    return Accept(tokens, TokenType::CloseBrace);
}

bool ReadScreenStatement(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    const bool isSize = tokens.Current().text == "ScreenSize";
    tokens.Next();
    if (!Accept(tokens, TokenType::Equals) || tokens.Current().type != TokenType::Vec)
        return false;
    (isSize ? screen.screenSize : screen.screenPos) = ScriptParser::ReadVec(tokens);
    return Accept(tokens, TokenType::Semicolon);
}

bool ReadScreenItem(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    switch (tokens.Current().type) {
    case TokenType::PictureBlock:
        return ScriptParser::ReadPictureBlock(tokens, screen);
    case TokenType::ButtonBlock:
        return ScriptParser::ReadButtonBlock(tokens, screen);
    case TokenType::AnimationBlock:
        return ScriptParser::ReadAnimationBlock(tokens, screen);
    case TokenType::WordBlock:
        return ScriptParser::ReadWordBlock(tokens, screen);
    case TokenType::CheckBoxBlock:
        return ScriptParser::ReadCheckBoxBlock(tokens, screen);
    case TokenType::SelectboxBlock:
        return ScriptParser::ReadSelectboxBlock(tokens, screen);
    case TokenType::ScreenKey:
        return ReadScreenStatement(tokens, screen);
    default:
        return false;
    }
}

bool ReadRoot(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    if (!Accept(tokens, TokenType::Root) || !Accept(tokens, TokenType::OpenBrace))
        return false;
    while (!Accept(tokens, TokenType::CloseBrace)) {
        if (!ReadScreenItem(tokens, screen))
            return false;
    }
    return true;
}

} // namespace

bool ScriptParser::Parse(ScriptTokenizer& tokens, const std::string& path, ParsedScreen& screen)
{
    if (!tokens.Tokenize(path)) {
        OutputDebugStringA(u8"無法切割檔案... 可能發生錯誤..."_big5);
        OutputDebugStringA("\n");
        return false;
    }
    return ParseTokens(tokens, screen);
}

bool ScriptParser::ParseTokens(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    if (ReadRoot(tokens, screen))
        return true;
    const Token& offender = tokens.Current();
    OutputDebugStringA(std::string(offender.text).c_str());
    OutputDebugStringA(offender.type == TokenType::Unknown ? "Token Type Unknown Error" : u8"字串文法組合有錯誤"_big5);
    OutputDebugStringA("\n");
    return false;
}

bool ScriptParser::ReadPictureBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<PictureObject>(tokens, TokenType::PictureBlock, pictureStatements, screen.pictures);
}

bool ScriptParser::ReadButtonBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<ButtonObject>(tokens, TokenType::ButtonBlock, buttonStatements, screen.buttons);
}

bool ScriptParser::ReadAnimationBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<AnimationObject>(tokens, TokenType::AnimationBlock, animationStatements, screen.animations);
}

bool ScriptParser::ReadWordBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<WordObject>(tokens, TokenType::WordBlock, wordStatements, screen.words);
}

bool ScriptParser::ReadCheckBoxBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<CheckBoxObject>(tokens, TokenType::CheckBoxBlock, checkBoxStatements, screen.checkBoxes);
}

bool ScriptParser::ReadSelectboxBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<SelectboxObject>(tokens, TokenType::SelectboxBlock, selectboxStatements, screen.selectboxes);
}

vec ScriptParser::ReadVec(ScriptTokenizer& tokens)
{
    vec value { 0, 0 };
    tokens.Next();
    if (Accept(tokens, TokenType::OpenParen) && ReadInteger(tokens, value.x) && Accept(tokens, TokenType::Comma)
        && ReadInteger(tokens, value.y) && Accept(tokens, TokenType::CloseParen))
        return value;
    OutputDebugStringA(u8"處理 vec 時發生錯誤"_big5);
    OutputDebugStringA("\n");
    return { -1, -1 };
}

std::string ScriptParser::ReadString(ScriptTokenizer& tokens)
{
    const Token& token = tokens.Current();
    std::string_view text = token.text;
    if (token.type == TokenType::String)
        text = text.substr(1, text.size() - 2);
    tokens.Next();
    return std::string(text);
}
