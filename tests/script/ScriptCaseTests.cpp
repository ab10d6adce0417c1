#include "platform/CodePage.h"
#include "platform/scripted/ScriptedDesktop.h"
#include "script/ScreenBuilder.h"
#include "script/ScriptParser.h"
#include "script/ScriptWriter.h"
#include "tests/script/SizedObject.h"
#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

// Each script in the folder "cases" has beside it what reading it gives ("NAME.txt": the result, the objects, the
// messages of the developer log, the error) and, where that is of interest, what is written from it ("NAME.written").

namespace {

std::string CasePath(const std::string& file)
{
    return SCRIPT_CASES "/" + file;
}

std::vector<std::string> CasesWith(const std::string& extension)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(SCRIPT_CASES)) {
        if (entry.path().extension() == extension)
            names.push_back(entry.path().stem());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string Quoted(const std::string& text)
{
    std::string quoted = " \"";
    for (const char character : platform::Utf8FromCodePage(text)) {
        if (character >= 0 && character < ' ')
            quoted.append("<").append(std::to_string(character)).append(">");
        else
            quoted += character;
    }
    return quoted + '"';
}

std::string Numbers(vec value)
{
    return " (" + std::to_string(value.x) + ", " + std::to_string(value.y) + ")";
}

// One line for each object of a kind: what all kinds have, then what `own` adds.
template <class Objects, class Own> std::string Lines(const char* kind, const Objects& objects, Own own)
{
    std::string lines;
    for (const auto& object : objects)
        lines += kind + Numbers(object->GetPos()) + " layer " + std::to_string(object->GetLayer()) + " alpha "
            + std::to_string(object->GetAlpha()) + own(*object) + "\n";
    return lines;
}

std::string Sections(int32_t count)
{
    return " sections " + std::to_string(count);
}

std::string Files(const SelectboxObject& box)
{
    return Quoted(box.GetUpFile()) + Quoted(box.GetDownFile()) + Quoted(box.GetEditFile()) + ":";
}

std::string Choices(const SelectboxObject& box)
{
    std::string text;
    for (const auto& choice : box.GetChoices())
        text += Quoted(choice.text);
    return text;
}

std::string Describe(const ParsedScreen& screen)
{
    return (screen.screenSize ? "ScreenSize" + Numbers(*screen.screenSize) + "\n" : "")
        + (screen.screenPos ? "ScreenPos" + Numbers(*screen.screenPos) + "\n" : "")
        + Lines("Picture", screen.pictures,
            [](const auto& picture) { return " view" + Numbers(picture.GetView()) + Quoted(picture.GetFileName()); })
        + Lines("Button", screen.buttons,
            [](const auto& button) { return Sections(button.GetSections()) + Quoted(button.GetFileName()); })
        + Lines("Animation", screen.animations,
            [](const auto& animation) {
                return Sections(animation.GetSections()) + " interval " + std::to_string(animation.GetInterval())
                    + Quoted(animation.GetFileName());
            })
        + Lines("Word", screen.words, [](const auto& word) { return Quoted(word.GetText()); })
        + Lines("CheckBox", screen.checkBoxes, [](const auto& checkBox) { return Quoted(checkBox.GetLabelText()); })
        + Lines("Selectbox", screen.selectboxes, [](const auto& box) { return Files(box) + Choices(box); });
}

// Fills the document as loading does, with nothing loaded. A picture has the size that the script names.
void TakeObjects(ParsedScreen screen, ScreenDocument& document)
{
    for (auto& picture : screen.pictures)
        picture = std::make_unique<Sized<PictureObject>>(*picture, picture->GetView());
    VisitKinds(screen, [&](ObjectKind, auto& parsed, auto add) {
        for (auto& object : parsed)
            (document.*add)(std::move(object));
        return true;
    });
}

// Writes what the script describes and returns the bytes.
std::string Rewrite(const std::string& script)
{
    const TemporaryFolder folder;
    ScriptTokenizer tokens;
    ParsedScreen screen;
    EXPECT_TRUE(tokens.TokenizeText(script));
    EXPECT_TRUE(ScriptParser::ParseTokens(tokens, screen));
    ScreenDocument document;
    TakeObjects(std::move(screen), document);
    EXPECT_EQ(ScriptWriter().Write({ .objects = document.GetObjects() }, "out.tobrik"), platform::FileWriting::Done);
    return ReadBytes("out.tobrik");
}

class ScriptReading : public testing::TestWithParam<std::string> { };
class ScriptWriting : public testing::TestWithParam<std::string> { };

TEST_P(ScriptReading, GivesTheExpectedObjectsAndMessages)
{
    platform::ScriptedDesktop desktop;
    ScriptTokenizer tokens;
    ParsedScreen screen;
    const bool complete = ScriptParser::Parse(tokens, CasePath(GetParam() + ".tobrik"), screen);
    std::string outcome = (complete ? "true\n" : "false\n") + Describe(screen);
    for (const auto& message : desktop.DebugMessages())
        outcome += "log " + (message.text == "\n" ? "(line feed)" : message.text) + "\n";
    if (const auto& error = tokens.GetError())
        outcome
            += "error at " + std::to_string(error->offset) + ", " + platform::Utf8FromCodePage(InWords(*error)) + "\n";
    EXPECT_EQ(outcome, ReadBytes(CasePath(GetParam() + ".txt")));
}

TEST_P(ScriptWriting, GivesTheExpectedBytesAgainAndAgain)
{
    const std::string written = Rewrite(ReadBytes(CasePath(GetParam() + ".tobrik")));
    EXPECT_EQ(written, ReadBytes(CasePath(GetParam() + ".written")));
    EXPECT_EQ(Rewrite(written), written);
}

const auto caseName = [](const auto& test) { return test.param; };
INSTANTIATE_TEST_SUITE_P(Cases, ScriptReading, testing::ValuesIn(CasesWith(".tobrik")), caseName);
INSTANTIATE_TEST_SUITE_P(Cases, ScriptWriting, testing::ValuesIn(CasesWith(".written")), caseName);

} // namespace
