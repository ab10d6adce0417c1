#pragma once

#include "objects/vec.h"
#include "platform/FileReplacement.h"
#include "script/ScreenInfo.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class AnimationObject;
class ButtonObject;
class CheckBoxObject;
class PictureObject;
class SelectboxObject;
class WordObject;

// A screen as the bytes of a screen script.
struct ComposedScript {
    std::string bytes;
    // The first text that a script cannot hold, because a double quote is in it. The bytes are of no use then.
    std::optional<std::string> unstorableText;
};
[[nodiscard]] ComposedScript ComposeScript(const ScreenInfo& info);

// Writes a screen as a screen script. Made for one save.
class ScriptWriter {
public:
    // Replaces the file (a backslash path in code page 950) as a whole. Whatever is not Done leaves it as it was, as a
    // screen with an unstorable text does, which is Failed.
    [[nodiscard]] platform::FileWriting Write(ScreenInfo info, const std::string& path);
    // The text that is to blame for it, if any.
    const std::optional<std::string>& GetUnstorableText() const { return composed.unstorableText; }

private:
    friend ComposedScript ComposeScript(const ScreenInfo& info);

    void Compose();
    vec ScreenExtent() const;
    void WriteBlock(ObjectKind kind);
    void WriteStage(const ScreenObject& object);
    void WriteStatements(const PictureObject& picture);
    void WriteStatements(const ButtonObject& button);
    void WriteStatements(const AnimationObject& animation);
    void WriteStatements(const WordObject& word);
    void WriteStatements(const CheckBoxObject& checkBox);
    void WriteStatements(const SelectboxObject& selectbox);
    void WriteOptions(const SelectboxObject& selectbox);
    void WriteVec(std::string_view key, vec value);
    void WriteSectionSize(std::string_view key, vec size);
    void WriteInteger(std::string_view key, int32_t value);
    void WriteAlphaUnlessOpaque(std::string_view key, const ScreenObject& object);
    void WriteText(std::string_view key, const std::string& text);
    std::string Quoted(const std::string& text);
    void WriteLine(std::string_view text);

    ScreenInfo screenInfo;
    size_t level = 0; // of indentation
    ComposedScript composed;
};
