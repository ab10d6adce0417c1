#include "script/ScriptParser.h"

#include "platform/Big5Literal.h"
#include "platform/Kernel.h"
#include "script/ScriptKinds.h"
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

// Says that the current token should have been one of the keys. Always false.
template <class Object> bool ExpectKeys(ScriptTokenizer& tokens, std::span<const Statement<Object>> statements)
{
    for (const auto& statement : statements) {
        Token key { .text = statement.key };
        ScriptTokenizer::Classify(key);
        static_cast<void>(tokens.Is(key.type));
    }
    return false;
}

// Statements up to the closing brace.
template <class Object>
bool ReadStatements(ScriptTokenizer& tokens, std::span<const Statement<Object>> statements, Object& object)
{
    while (!tokens.Is(TokenType::CloseBrace)) {
        const std::string_view key = tokens.Current().text;
        const auto statement = std::find_if(
            statements.begin(), statements.end(), [&](const Statement<Object>& known) { return known.key == key; });
        if (statement == statements.end())
            return ExpectKeys(tokens, statements);
        if (!statement->read(tokens, object))
            return false;
    }
    tokens.Next();
    return true;
}

template <class Object>
bool ReadBlock(ScriptTokenizer& tokens, ObjectKind kind, std::span<const Statement<Object>> statements,
    std::vector<std::unique_ptr<Object>>& objects)
{
    if (!Accept(tokens, BlockWord(kind)) || !Accept(tokens, TokenType::OpenBrace))
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
    if (!Accept(tokens, TokenType::Equals) || !tokens.Is(TokenType::Vec))
        return false;
    (isSize ? screen.screenSize : screen.screenPos) = ScriptParser::ReadVec(tokens);
    return Accept(tokens, TokenType::Semicolon);
}

bool ReadKindBlock(ScriptTokenizer& tokens, ObjectKind kind, ParsedScreen& screen)
{
    switch (kind) {
    case KindNone:
        break;
    case KindPicture:
        return ScriptParser::ReadPictureBlock(tokens, screen);
    case KindButton:
        return ScriptParser::ReadButtonBlock(tokens, screen);
    case KindAnimation:
        return ScriptParser::ReadAnimationBlock(tokens, screen);
    case KindWord:
        return ScriptParser::ReadWordBlock(tokens, screen);
    case KindCheckBox:
        return ScriptParser::ReadCheckBoxBlock(tokens, screen);
    case KindSelectbox:
        return ScriptParser::ReadSelectboxBlock(tokens, screen);
    }
    return false;
}

bool ReadScreenItem(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    if (tokens.Is(TokenType::ScreenKey))
        return ReadScreenStatement(tokens, screen);
    for (const ObjectKind kind : scriptKinds) {
        if (tokens.Is(BlockWord(kind)))
            return ReadKindBlock(tokens, kind, screen);
    }
    return false;
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
    tokens.RefuseCurrent();
    const Token& offender = tokens.Current();
    OutputDebugStringA(std::string(offender.text).c_str());
    OutputDebugStringA(offender.type == TokenType::Unknown ? "Token Type Unknown Error" : u8"字串文法組合有錯誤"_big5);
    OutputDebugStringA("\n");
    return false;
}

bool ScriptParser::ReadPictureBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<PictureObject>(tokens, KindPicture, pictureStatements, screen.pictures);
}

bool ScriptParser::ReadButtonBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<ButtonObject>(tokens, KindButton, buttonStatements, screen.buttons);
}

bool ScriptParser::ReadAnimationBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<AnimationObject>(tokens, KindAnimation, animationStatements, screen.animations);
}

bool ScriptParser::ReadWordBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<WordObject>(tokens, KindWord, wordStatements, screen.words);
}

bool ScriptParser::ReadCheckBoxBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<CheckBoxObject>(tokens, KindCheckBox, checkBoxStatements, screen.checkBoxes);
}

bool ScriptParser::ReadSelectboxBlock(ScriptTokenizer& tokens, ParsedScreen& screen)
{
    return ReadBlock<SelectboxObject>(tokens, KindSelectbox, selectboxStatements, screen.selectboxes);
}

vec ScriptParser::ReadVec(ScriptTokenizer& tokens)
{
    return ReadVecValue(tokens);
}

std::string ScriptParser::ReadString(ScriptTokenizer& tokens)
{
    return ReadTextValue(tokens);
}
