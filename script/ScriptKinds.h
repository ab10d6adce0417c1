#pragma once

#include "objects/ScreenObject.h"
#include "script/Token.h"

#include <algorithm>
#include <iterator>
#include <string_view>

// The kinds in the order of a script's blocks, in which a screen is also built from one.
constexpr ObjectKind scriptKinds[] = { KindPicture, KindButton, KindAnimation, KindWord, KindCheckBox, KindSelectbox };

// The type of the word that begins a kind's block; Unknown for what is no object's kind. Each switch over kinds in this
// folder goes without a default, so that a new kind does not compile before it is read, built and written.
constexpr TokenType BlockWord(ObjectKind kind)
{
    switch (kind) {
    case KindNone:
        break;
    case KindPicture:
        return TokenType::PictureBlock;
    case KindButton:
        return TokenType::ButtonBlock;
    case KindAnimation:
        return TokenType::AnimationBlock;
    case KindWord:
        return TokenType::WordBlock;
    case KindCheckBox:
        return TokenType::CheckBoxBlock;
    case KindSelectbox:
        return TokenType::SelectboxBlock;
    }
    return TokenType::Unknown;
}

// The word itself; empty for what is no object's kind.
constexpr std::string_view BlockName(ObjectKind kind)
{
    switch (kind) {
    case KindNone:
        break;
    case KindPicture:
        return "Picture";
    case KindButton:
        return "Button";
    case KindAnimation:
        return "Animation";
    case KindWord:
        return "Word";
    case KindCheckBox:
        return "CheckBox";
    case KindSelectbox:
        return "Selectbox";
    }
    return {};
}

// A kind that has a block also has its place among them.
static_assert([] {
    constexpr int32_t moreCodesThanKinds = 100;
    for (int32_t code = KindNone; code < KindNone + moreCodesThanKinds; ++code) {
        const auto kind = static_cast<ObjectKind>(code);
        const auto places = std::count(std::begin(scriptKinds), std::end(scriptKinds), kind);
        if (places != (BlockWord(kind) == TokenType::Unknown ? 0 : 1))
            return false;
    }
    return true;
}());
