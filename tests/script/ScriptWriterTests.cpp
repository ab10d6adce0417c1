#include "objects/ScreenDocument.h"
#include "script/ScriptParser.h"
#include "script/ScriptWriter.h"
#include "tests/script/SizedObject.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

template <class Object> std::unique_ptr<Object> WithSize(const Object& object, vec size)
{
    return std::make_unique<Sized<Object>>(object, size);
}

template <class Object> std::unique_ptr<Object> FromFile(const std::string& file, vec pos, vec size)
{
    auto object = WithSize(Object(), size);
    object->SetPos(pos);
    object->SetFileName(file);
    return object;
}

std::string Written(const ScreenDocument& document, vec screenPos = { 0, 0 })
{
    const TemporaryFolder folder;
    EXPECT_EQ(ScriptWriter().Write({ { 1000, 600 }, screenPos, document.GetObjects() }, "screen.tobrik"),
        platform::FileWriting::Done);
    return ReadBytes("screen.tobrik");
}

TEST(ScriptWriter, WritesAScreenOfAllKindsAsItWasRead)
{
    const std::string example = ReadBytes(SCRIPT_CASES "/example.tobrik");
    ScriptTokenizer tokens;
    ParsedScreen screen;
    ASSERT_TRUE(tokens.TokenizeText(example));
    ASSERT_TRUE(ScriptParser::ParseTokens(tokens, screen));
    screen.pictures[0]->SetFileName("C:\\Image\\title.bmp"); // only its base name is stored
    ScreenDocument document;
    document.AddPicture(WithSize(*screen.pictures[0], { 320, 240 }));
    document.AddButton(WithSize(*screen.buttons[0], { 120, 40 }));
    document.AddAnimation(WithSize(*screen.animations[0], { 512, 64 }));
    document.AddWord(std::move(screen.words[0]));
    document.AddCheckBox(std::move(screen.checkBoxes[0]));
    document.AddSelectbox(std::move(screen.selectboxes[0]));
    EXPECT_EQ(Written(document), example);
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
    const std::string script = Written(document, { 12, -34 });
    for (const char* line :
        { "    ScreenSize = vec (340, 460) ;", "    ScreenPos = vec (12, -34) ;", "        Stage 2 {",
            "            PictureSize = vec (999, 999) ;", "            AnimationPicSize = vec ( 64, 64 );",
            "            AnimationPicSize = vec ( 100, 12 );", "            AnimationPicSize = vec ( 12, 100 );" })
        EXPECT_NE(script.find(std::string("\n") + line + "\r\n"), std::string::npos) << line;
}

TEST(ScriptWriter, FindsTheFirstTextWithADoubleQuote)
{
    ScreenDocument document;
    document.AddPicture(FromFile<PictureObject>("a\"b\\c.bmp", { 0, 0 }, { 1, 1 })); // only "c.bmp" is stored
    EXPECT_EQ(ComposeScript({ .objects = document.GetObjects() }).unstorableText, std::nullopt);
    auto selectbox = std::make_unique<SelectboxObject>();
    selectbox->AddString("5\" disk");
    selectbox->AddString("a later \"");
    document.AddSelectbox(std::move(selectbox));
    EXPECT_EQ(ComposeScript({ .objects = document.GetObjects() }).unstorableText, "5\" disk");
}

} // namespace
