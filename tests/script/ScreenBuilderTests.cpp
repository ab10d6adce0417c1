#include "platform/scripted/ScriptedDesktop.h"
#include "script/ScreenBuilder.h"
#include "script/ScriptParser.h"
#include "tests/support/BmpFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

class ScreenBuilding : public testing::Test {
protected:
    // "KIND NUMBER FILE: REASON" of what could not be built; empty when all could.
    std::string Build(const std::string& blocks)
    {
        ScriptTokenizer tokens;
        ParsedScreen screen;
        EXPECT_TRUE(tokens.TokenizeText("ZULScreen {" + blocks + "}"));
        EXPECT_TRUE(ScriptParser::ParseTokens(tokens, screen));
        const auto failure = BuildScreen(std::move(screen), document);
        return failure ? std::to_string(failure->kind) + " " + std::to_string(failure->number) + " " + failure->fileName
                + ": " + InWords(failure->reason)
                       : "";
    }
    // What becomes of a picture whose header has this number at the offset.
    std::string BuildWith(size_t offset, uint32_t value)
    {
        std::string bytes = good.Bytes() + std::string(2000, '\0'); // enough for 24 bits a pixel
        PutLong(bytes, offset, value);
        WriteBytes("bad.bmp", bytes);
        return Build(R"(Picture { Stage 0 { Filename = "bad.bmp"; } })");
    }

    const platform::ScriptedDesktop desktop;
    const TemporaryFolder folder;
    const BmpFile good { 40, 20, 255 };
    ScreenDocument document;
};

TEST_F(ScreenBuilding, TakesTheKindsInTheirOrderWhateverTheScriptsIs)
{
    good.Write("p.bmp");
    EXPECT_EQ(Build(R"(Selectbox { Stage 0 { SelectboxText = "a"; } } CheckBox { Stage 0 { CheckBoxText = "b"; } }
        Word { Stage 0 { WordText = "c"; } } Animation { Stage 0 { Filename = "p.bmp"; } }
        Button { Stage 0 { Filename = "p.bmp"; } } Picture { Stage 0 { Filename = "p.bmp"; } })"),
        "");
    int32_t layer = 0;
    for (const auto& object : document.GetObjects()) {
        EXPECT_EQ(object->GetLayer(), layer);
        EXPECT_EQ(object->GetKind(), KindPicture + layer++); // the codes have this order too
    }
    EXPECT_EQ(layer, 6);
}

TEST_F(ScreenBuilding, SaysWhichObjectOfItsKindCannotBeBuiltAndKeepsThoseBefore)
{
    good.Write("p.bmp");
    const std::string twoPictures = R"(Picture { Stage 0 { Filename = "p.bmp"; } Stage 0 { Filename = "p.bmp"; } })";
    const std::pair<const char*, const char*> failures[] = {
        { R"(Button { Stage 0 { Filename = "p.bmp"; } Stage 1 { Filename = "Q.bmp"; } })",
            "1002 1 Q.bmp: no such file" },
        { R"(Animation { Stage 9 { Filename = "p.BMP"; } })", "1003 0 p.BMP: no \".bmp\" in its name" },
        { R"(Word { Stage 0 { WordText = "a"; } Stage 1 { } })", "1004 1 : empty text" },
        { R"(CheckBox { Stage 0 { } })", "1005 0 : empty text" },
    };
    for (const auto& [blocks, failure] : failures) {
        document.Clear();
        EXPECT_EQ(Build(blocks + twoPictures), failure);
        EXPECT_EQ(document.GetObjectCount(), failure[5] == '1' ? 3 : 2) << blocks;
    }
}

TEST_F(ScreenBuilding, SaysWhatIsWrongWithThePicture)
{
    const std::tuple<size_t, uint32_t, const char*> damages[] = {
        { 0, 0x4D41, "not a BMP" },
        { 10, 53, "damaged headers" }, // the pixels begin inside them
        { 14, 12, "a header of 12 bytes; 40 are needed" },
        { 18, 0, "not 1 to 65535 pixels on each side" },
        { 22, 65536, "not 1 to 65535 pixels on each side" },
        { 22, 0xFFFFFFEC, "rows stored top first" },
        { 22, 200, "cut short" },
        { 26, 2 | 8 << 16, "damaged headers" }, // planes
        { 26, 1 | 4 << 16, "4 bits a pixel; 8 are needed" },
        { 26, 1 | 24 << 16, "24 bits a pixel; 8 are needed" },
        { 30, 1, "compressed" },
    };
    for (const auto& [offset, value, reason] : damages)
        EXPECT_EQ(BuildWith(offset, value), std::string("1001 0 bad.bmp: ") + reason) << offset;
}

TEST_F(ScreenBuilding, TellsThePictureFromItsCompanion)
{
    const std::string picture = R"(Picture { Stage 0 { Filename = "p.bmp"; } })";
    good.Write("p.bmp");
    BmpFile(20, 40).Write("pa.bmp");
    EXPECT_EQ(Build(picture), "1001 0 pa.bmp: companion: not as large as the picture");
    WriteBytes("pa.bmp", "B");
    EXPECT_EQ(Build(picture), "1001 0 pa.bmp: companion: not a BMP");
    WriteBytes("p.bmp", "BM");
    EXPECT_EQ(Build(picture), "1001 0 p.bmp: cut short");
    std::filesystem::remove("p.bmp");
    std::filesystem::create_directory("p.bmp");
    EXPECT_EQ(Build(picture), "1001 0 p.bmp: cannot be read");
}

} // namespace
