#include "platform/scripted/ScriptedDesktop.h"
#include "script/ScreenBuilder.h"
#include "script/ScriptParser.h"
#include "tests/support/BmpFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

class ScreenBuilding : public testing::Test {
protected:
    // What could not be built; empty when all could.
    std::string Build(const std::string& blocks)
    {
        ScriptTokenizer tokens;
        ParsedScreen screen;
        EXPECT_TRUE(tokens.TokenizeText("ZULScreen {" + blocks + "}"));
        EXPECT_TRUE(ScriptParser::ParseTokens(tokens, screen));
        const auto failure = BuildScreen(std::move(screen), document);
        return failure ? InWords(*failure) : "";
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
    int32_t kind = KindPicture; // the codes have this order too
    for (const auto& object : document.GetObjects())
        EXPECT_EQ(object->GetKind(), kind++);
    EXPECT_EQ(kind, KindSelectbox + 1);
}

TEST_F(ScreenBuilding, SaysWhichObjectOfItsKindCannotBeBuilt)
{
    good.Write("p.bmp");
    const std::string twoPictures = R"(Picture { Stage 0 { Filename = "p.bmp"; } Stage 0 { Filename = "p.bmp"; } })";
    const std::tuple<const char*, const char*, int32_t> failures[] = {
        { R"(Button { Stage 0 { Filename = "p.bmp"; } Stage 1 { Filename = "Q.bmp"; } })",
            "Button 1, Q.bmp: no such file", 3 },
        { R"(Animation { Stage 9 { Filename = "p.BMP"; } })", "Animation 0, p.BMP: no \".bmp\" in its name", 2 },
        { R"(Word { Stage 0 { WordText = "a"; } Stage 1 { } })", "Word 1: empty text", 3 },
        { R"(CheckBox { Stage 0 { } })", "CheckBox 0: empty text", 2 },
    };
    for (const auto& [blocks, failure, before] : failures) {
        document.Clear();
        EXPECT_EQ(Build(blocks + twoPictures), failure);
        EXPECT_EQ(document.GetObjectCount(), before) << blocks;
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
        EXPECT_EQ(BuildWith(offset, value), std::string("Picture 0, bad.bmp: ") + reason) << offset;
}

TEST_F(ScreenBuilding, TellsThePictureFromItsCompanion)
{
    const std::string picture = R"(Picture { Stage 0 { Filename = "p.bmp"; } })";
    good.Write("p.bmp");
    BmpFile(20, 40).Write("pa.bmp");
    EXPECT_EQ(Build(picture), "Picture 0, pa.bmp: companion: not as large as the picture");
    WriteBytes("pa.bmp", "B");
    EXPECT_EQ(Build(picture), "Picture 0, pa.bmp: companion: not a BMP");
    WriteBytes("p.bmp", "BM");
    EXPECT_EQ(Build(picture), "Picture 0, p.bmp: cut short");
    std::filesystem::remove("p.bmp");
    std::filesystem::create_directory("p.bmp");
    EXPECT_EQ(Build(picture), "Picture 0, p.bmp: cannot be read");
}

} // namespace
