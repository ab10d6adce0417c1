#include "script/ScriptWriter.h"

#include "objects/AnimationObject.h"
#include "objects/ButtonObject.h"
#include "objects/CheckBoxObject.h"
#include "objects/PictureObject.h"
#include "objects/SelectboxObject.h"
#include "objects/WordObject.h"
#include "platform/Big5Literal.h"
#include "script/ScriptKinds.h"

#include <algorithm>
#include <utility>

namespace {

// What follows the last byte 0x5C, even where that byte is the second one of a character: a script names files so.
std::string BaseName(const std::string& fileName)
{
    return fileName.substr(fileName.rfind('\\') + 1);
}

std::string Numbers(vec value)
{
    return std::to_string(value.x) + ", " + std::to_string(value.y);
}

vec FrameSize(const AnimationObject& animation)
{
    const vec strip = animation.GetSize();
    const int32_t frames = std::max(animation.GetSections(), 1);
    return strip.x > strip.y ? vec { strip.x / frames, strip.y } : vec { strip.x, strip.y / frames };
}

} // namespace

ComposedScript ComposeScript(const ScreenInfo& info)
{
    ScriptWriter writer;
    writer.screenInfo = info;
    writer.Compose();
    return std::move(writer.composed);
}

platform::FileWriting ScriptWriter::Write(ScreenInfo info, const std::string& path)
{
    screenInfo = info;
    Compose();
    return composed.unstorableText ? platform::FileWriting::Failed : platform::ReplaceFileContent(path, composed.bytes);
}

void ScriptWriter::Compose()
{
    WriteLine("ZULScreen {");
    WriteVec("ScreenSize", ScreenExtent());
    WriteVec("ScreenPos", screenInfo.pos);
    for (const ObjectKind kind : scriptKinds)
        WriteBlock(kind);
    WriteLine("}");
}

// The right and bottom ends of all pictures; no other kind counts.
vec ScriptWriter::ScreenExtent() const
{
    vec extent { 0, 0 };
    for (const auto& object : screenInfo.objects) {
        if (object->GetKind() != KindPicture)
            continue;
        const vec end = object->GetPos() + object->GetView();
        extent = { std::max(extent.x, end.x), std::max(extent.y, end.y) };
    }
    return extent;
}

void ScriptWriter::WriteBlock(ObjectKind kind)
{
    int32_t stage = 0;
    for (const auto& object : screenInfo.objects) {
        if (object->GetKind() != kind)
            continue;
        if (stage == 0)
            WriteLine(std::string(BlockName(kind)) + " {");
        WriteLine("Stage " + std::to_string(stage) + " {");
        WriteStage(*object);
        WriteLine("}");
        ++stage;
    }
    if (stage > 0)
        WriteLine("}");
}

void ScriptWriter::WriteStage(const ScreenObject& object)
{
    switch (object.GetKind()) {
    case KindNone:
        break;
    case KindPicture:
        return WriteStatements(static_cast<const PictureObject&>(object));
    case KindButton:
        return WriteStatements(static_cast<const ButtonObject&>(object));
    case KindAnimation:
        return WriteStatements(static_cast<const AnimationObject&>(object));
    case KindWord:
        return WriteStatements(static_cast<const WordObject&>(object));
    case KindCheckBox:
        return WriteStatements(static_cast<const CheckBoxObject&>(object));
    case KindSelectbox:
        return WriteStatements(static_cast<const SelectboxObject&>(object));
    }
}

void ScriptWriter::WriteStatements(const PictureObject& picture)
{
    WriteText("Filename", BaseName(picture.GetFileName()));
    WriteVec("PicturePos", picture.GetPos());
    WriteVec("PictureSize", picture.GetSize());
    WriteAlphaUnlessOpaque("PictureAlpha", picture);
}

void ScriptWriter::WriteStatements(const ButtonObject& button)
{
    WriteText("Filename", BaseName(button.GetFileName()));
    WriteVec("ButtonPos", button.GetPos());
    WriteAlphaUnlessOpaque("ButtonAlpha", button);
    WriteSectionSize("ButtonPicSize", button.GetSize());
    WriteInteger("ButtonSection", button.GetSections());
}

void ScriptWriter::WriteStatements(const AnimationObject& animation)
{
    WriteText("Filename", BaseName(animation.GetFileName()));
    WriteVec("AnimationPos", animation.GetPos());
    WriteInteger("AnimationSection", animation.GetSections());
    WriteSectionSize("AnimationPicSize", FrameSize(animation));
}

void ScriptWriter::WriteStatements(const WordObject& word)
{
    WriteText("WordText", word.GetText());
    WriteVec("WordPos", word.GetPos());
    WriteAlphaUnlessOpaque("WordAlpha", word);
}

void ScriptWriter::WriteStatements(const CheckBoxObject& checkBox)
{
    WriteLine(u8"// 所存放的字串"_big5);
    WriteText("CheckBoxText", checkBox.GetLabelText());
    WriteLine(u8"// CheckBox 位於畫串上的起始位置"_big5);
    WriteVec("CheckBoxPos", checkBox.GetPos());
    WriteLine(u8"// CheckBox 所在的層數"_big5);
    WriteInteger("CheckBoxLayer", checkBox.GetLayer());
    WriteLine(u8"// CheckBox 的 Alpha 值設定"_big5);
    WriteInteger("CheckBoxAlpha", static_cast<int32_t>(checkBox.GetAlpha()));
}

void ScriptWriter::WriteStatements(const SelectboxObject& selectbox)
{
    WriteLine(u8"// Selectbox 位於畫串上的起始位置"_big5);
    WriteVec("SelectboxPos", selectbox.GetPos());
    WriteLine(u8"// Selectbox 所在的層數"_big5);
    WriteInteger("SelectboxLayer", selectbox.GetLayer());
    WriteLine(u8"// Selectbox 的 Alpha 值設定"_big5);
    WriteInteger("SelectboxAlpha", static_cast<int32_t>(selectbox.GetAlpha()));
    WriteLine(u8"// Selectbox 所存放的字串"_big5);
    WriteOptions(selectbox);
    WriteLine(u8"// Selectbox 向上按鈕的檔案"_big5);
    WriteText("SelectboxUpPic", selectbox.GetUpFile());
    WriteLine(u8"// Selectbox 向下按鈕的檔案"_big5);
    WriteText("SelectboxDownPic", selectbox.GetDownFile());
    WriteLine(u8"// Selectbox Editbox Pic 的檔案"_big5);
    WriteText("SelectboxEditPic", selectbox.GetEditFile());
}

// An empty list ends like any other, so that it reads back.
void ScriptWriter::WriteOptions(const SelectboxObject& selectbox)
{
    std::string line = "SelectboxText = ";
    for (int32_t i = 0; i < selectbox.GetCount(); ++i)
        line += (i > 0 ? " ,  " : "") + Quoted(selectbox.GetString(i));
    WriteLine(line + (selectbox.GetCount() > 0 ? " ;  " : ";  "));
}

void ScriptWriter::WriteVec(std::string_view key, vec value)
{
    WriteLine(std::string(key) + " = vec (" + Numbers(value) + ") ;");
}

// Spaced unlike every other vec; files are compared with this spacing.
void ScriptWriter::WriteSectionSize(std::string_view key, vec size)
{
    WriteLine(std::string(key) + " = vec ( " + Numbers(size) + " );");
}

void ScriptWriter::WriteInteger(std::string_view key, int32_t value)
{
    WriteLine(std::string(key) + " = " + std::to_string(value) + " ;");
}

void ScriptWriter::WriteAlphaUnlessOpaque(std::string_view key, const ScreenObject& object)
{
    constexpr uint32_t opaque = 255;
    if (object.GetAlpha() != opaque)
        WriteInteger(key, static_cast<int32_t>(object.GetAlpha()));
}

void ScriptWriter::WriteText(std::string_view key, const std::string& text)
{
    WriteLine(std::string(key) + " = " + Quoted(text) + " ;");
}

// There is no escape for a double quote inside.
std::string ScriptWriter::Quoted(const std::string& text)
{
    if (!composed.unstorableText && text.find('"') != std::string::npos)
        composed.unstorableText = text;
    return '"' + text + '"';
}

// Indentation follows the text of the lines: a text that holds " {" indents all that comes after it, for good. Existing
// files are laid out so.
void ScriptWriter::WriteLine(std::string_view text)
{
    constexpr size_t indentation = 4;
    if (text == "}")
        --level;
    std::string line(indentation * level, ' ');
    line += text;
    line += '\n';
    if (line.find(" {") != std::string::npos)
        ++level;
    for (const char byte : line) {
        if (byte == '\n')
            composed.bytes += '\r';
        composed.bytes += byte;
    }
}
