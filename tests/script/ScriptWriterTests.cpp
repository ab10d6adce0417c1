#include "objects/ScreenDocument.h"
#include "platform/Big5Literal.h"
#include "script/ScriptWriter.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/script/ScreenText.h"

#include <gtest/gtest.h>

namespace {

template <class Object> std::unique_ptr<Object> FromFile(const std::string& file, vec pos, vec size)
{
    auto object = std::make_unique<Sized<Object>>(Object(), size);
    object->SetPos(pos);
    object->SetFileName(file);
    return object;
}

std::string Written(const ScreenDocument& document)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(ScriptWriter().Write({ { 1000, 600 }, { 0, 0 }, document.GetObjects() }, "screen.tobrik"));
    return ReadBytes("screen.tobrik");
}

TEST(ScriptWriter, WritesAScreenOfAllKinds)
{
    ScreenDocument document;
    document.AddPicture(FromFile<PictureObject>("C:\\Image\\title.bmp", { 100, 50 }, { 320, 240 }));
    auto button = FromFile<ButtonObject>("start.bmp", { 400, 300 }, { 120, 40 });
    button->SetAlpha(128);
    button->SetSections(3);
    document.AddButton(std::move(button));
    document.AddAnimation(FromFile<AnimationObject>("Image\\fire.bmp", { 10, 10 }, { 512, 64 }));
    auto word = std::make_unique<WordObject>();
    word->StoreText(u8"開始遊戲"_big5);
    word->SetPos({ 420, 360 });
    document.AddWord(std::move(word));
    auto checkBox = std::make_unique<CheckBoxObject>();
    checkBox->SetLabelText(u8"全螢幕"_big5);
    checkBox->SetPos({ 50, 500 });
    document.AddCheckBox(std::move(checkBox));
    auto selectbox = std::make_unique<SelectboxObject>();
    selectbox->AddString(u8"第一個選項"_big5);
    selectbox->AddString(u8"第二個選項"_big5);
    selectbox->SetPos({ 600, 100 });
    selectbox->Build();
    document.AddSelectbox(std::move(selectbox));
    EXPECT_EQ(Written(document), ReadBytes(SCRIPT_CASES "/example.tobrik"));
}

TEST(ScriptWriter, MeasuresPicturesByTheirViewsAndStripsByTheirLongerSide)
{
    ScreenDocument document;
    document.AddButton(FromFile<ButtonObject>("b.bmp", { 700, 500 }, { 90, 90 }));
    document.AddPicture(FromFile<PictureObject>("a.bmp", { 10, 400 }, { 50, 60 }));
    auto cropped = FromFile<PictureObject>("c.bmp", { 300, 20 }, { 999, 999 });
    cropped->SetView({ 40, 30 });
    document.AddPicture(std::move(cropped));
    document.AddPicture(FromFile<PictureObject>("d.bmp", { 2147483647, -5 }, { 10, 1 }));
    for (const vec strip : { vec { 64, 512 }, vec { 100, 100 }, vec { 101, 100 } })
        document.AddAnimation(FromFile<AnimationObject>("e.bmp", { 0, 0 }, strip));
    const std::string script = Written(document);
    for (const char* line : { "    ScreenSize = vec (340, 460) ;", "        Stage 2 {",
             "            PictureSize = vec (999, 999) ;", "            AnimationPicSize = vec ( 64, 64 );",
             "            AnimationPicSize = vec ( 100, 12 );", "            AnimationPicSize = vec ( 12, 100 );" })
        EXPECT_NE(script.find(std::string("\n") + line + "\r\n"), std::string::npos) << line;
}

TEST(ScriptWriter, RefusesATextWithADoubleQuoteBeforeItTouchesTheFile)
{
    const TemporaryFolder folder;
    folder.Write("screen.tobrik", "old");
    ScreenDocument document;
    document.AddPicture(FromFile<PictureObject>("a\"b\\c.bmp", { 0, 0 }, { 1, 1 }));
    EXPECT_EQ(ScriptWriter::FindUnstorableText({ .objects = document.GetObjects() }), std::nullopt);
    auto selectbox = std::make_unique<SelectboxObject>();
    selectbox->AddString("5\" disk");
    document.AddSelectbox(std::move(selectbox));
    const ScreenInfo info { .objects = document.GetObjects() };
    EXPECT_EQ(ScriptWriter::FindUnstorableText(info), "5\" disk");
    EXPECT_FALSE(ScriptWriter().Write(info, "screen.tobrik"));
    EXPECT_EQ(ReadBytes("screen.tobrik"), "old");
}

} // namespace
