#include "platform/Big5Literal.h"
#include "platform/text/FontSearch.h"
#include "tests/platform/drawing/MemoryCanvas.h"
#include "tests/support/TemporaryFolder.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <climits>
#include <cstdlib>
#include <gtest/gtest.h>
#include <utility>

namespace {

constexpr uint16_t blue555 = 0x001F;
const Grid nothing(20, std::string(100, '.'));

// A transparent line of text in blue, in the font that words have.
class TextLine : public testing::Test {
protected:
    ~TextLine() override { DeleteObject(font); }

    SIZE Extent(std::string_view text) { return Draw(text).first; }
    Grid Drawn(std::string_view text, int x = 0, int y = 0) { return Draw(text, x, y).second; }

    std::pair<SIZE, Grid> Draw(std::string_view text, int x = 0, int y = 0)
    {
        MemoryCanvas canvas(100, 20);
        SIZE size {};
        const HGDIOBJ previous = SelectObject(canvas.context, font); // null: the default font stays
        SetTextCharacterExtra(canvas.context, extra);
        SetTextColor(canvas.context, RGB(3, 5, 255));
        SetBkMode(canvas.context, mode);
        EXPECT_TRUE(GetTextExtentPoint32A(canvas.context, text.data(), static_cast<int>(text.size()), &size));
        EXPECT_TRUE(TextOutA(canvas.context, x, y, text.data(), static_cast<int>(text.size())));
        SelectObject(canvas.context, previous);
        return { size, canvas.Pixels(blue555) };
    }

    HFONT font = CreateFontA(14, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 3, 2, nullptr);
    int extra = 0;
    int mode = TRANSPARENT;
};

// Adds the glyph of the font's 13-pixel strike at (pen, 0); its baseline lies below row 12. Returns its advance.
int AddStrike(FT_Face face, FT_ULong codePoint, size_t pen, Grid& grid)
{
    EXPECT_EQ(FT_Load_Char(face, codePoint, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO), 0);
    const FT_Bitmap& bitmap = face->glyph->bitmap;
    const auto top = static_cast<unsigned>(12 - face->glyph->bitmap_top);
    const size_t left = pen + static_cast<size_t>(face->glyph->bitmap_left);
    for (unsigned y = 0; y < bitmap.rows; ++y)
        for (unsigned x = 0; x < bitmap.width; ++x)
            if (bitmap.buffer[y * static_cast<unsigned>(bitmap.pitch) + x / 8] & 0x80 >> x % 8)
                grid.at(top + y).at(left + x) = '#';
    return static_cast<int>(face->glyph->advance.x / 64);
}

TEST_F(TextLine, ShowsThePixelsOfTheFontsOwnStrikes)
{
    const auto file = platform::FindFont(0);
    FT_Library library = nullptr;
    FT_Face face = nullptr;
    ASSERT_EQ(FT_Init_FreeType(&library), 0);
    ASSERT_TRUE(file);
    ASSERT_EQ(FT_New_Face(library, file->path.c_str(), file->index, &face), 0);
    EXPECT_STREQ(face->family_name, "AR PL UMing TW");
    ASSERT_EQ(FT_Set_Pixel_Sizes(face, 13, 13), 0);
    Grid expected = nothing;
    int pen = 0;
    for (const FT_ULong codePoint : { 0x4E2Du, 0x6587u, 0x41u, 0x67u, 0x20u, 0xFF0Cu, 0x4E00u, 0x9F98u })
        pen += AddStrike(face, codePoint, static_cast<size_t>(pen), expected) + 1;
    extra = 1;
    EXPECT_EQ(Drawn(u8"中文Ag ，一龘"_big5), expected);
    EXPECT_EQ(Extent(u8"中文Ag ，一龘"_big5).cx, pen);
    FT_Done_FreeType(library);
}

TEST_F(TextLine, IsSixteenPixelsHighAndNarrowWithoutAFontOfItsOwn)
{
    const HFONT sixteen = CreateFontA(0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 3, 2, nullptr);
    DeleteObject(std::exchange(font, sixteen));
    EXPECT_EQ(Extent("\xA4\xA4g").cx, 14 + 7) << "only the context's own font is narrow";
    EXPECT_EQ(Extent("\xA4\xA4g").cy, 16);
    const Grid wide = Drawn("x = 10");
    font = nullptr;
    EXPECT_NE(Drawn("x = 10"), wide);
    EXPECT_EQ(Extent("\xA4\xA4g").cy, 16);
    EXPECT_EQ(Extent("\xA4\xA4").cx, 12) << "from the font that words have";
    EXPECT_EQ(Drawn(u8"\uEEB8"_big5)[1].substr(0, 13), ".##########..") << "a box for what no font has";
    EXPECT_EQ(Extent("").cx, 0);
    DeleteObject(sixteen);
}

TEST_F(TextLine, LeavesRoomForAWholeStatusLineWithoutAFontOfItsOwn)
{
    DeleteObject(std::exchange(font, nullptr));
    for (const char* line : { "Mouse Pos : x = -9999, y = -9999", "Total Layer Number = -9999", "Object Layer = -9999",
             "Object Position = ( -9999, -9999 )", "Object PicSize = ( -9999, -9999 )" })
        EXPECT_LE(Extent(line).cx, 190) << line;
}

TEST_F(TextLine, AddsTheExtraAfterEveryCharacterOnItsWhiteBackgroundToo)
{
    extra = 2;
    mode = OPAQUE;
    const auto [size, grid] = Draw("\xA4\xA4 ");
    EXPECT_EQ(size.cx, 13 + 2 + 6 + 2);
    EXPECT_EQ(size.cy, 14);
    EXPECT_EQ(grid[0].substr(13, 12), "??????????..");
    EXPECT_EQ(grid[14], nothing[14]);
}

TEST_F(TextLine, ShowsABoxForWhatNoFontHas)
{
    const Grid fullBox = Drawn(u8"\uEEB8"_big5); // a user-defined one
    EXPECT_EQ(fullBox[1].substr(0, 14), ".###########..");
    EXPECT_EQ(fullBox[2].substr(0, 14), ".#.........#..");
    EXPECT_EQ(Drawn("\xA4\x30"), fullBox);
    EXPECT_EQ(Drawn("\xFF")[12].substr(0, 7), ".####..");
    EXPECT_EQ(Drawn("\xA4"), Drawn("\xFF"));
    EXPECT_EQ(Extent("\xA4\x30\xFF\n").cx, 13 + 6 + 6);
}

TEST_F(TextLine, IsCutAtTheEdgesWhereverItIsPut)
{
    const std::string text = u8"國國國國國"_big5;
    EXPECT_EQ(Drawn(text, -13, -3)[0].substr(0, 52), Drawn(text)[3].substr(13, 52));
    mode = OPAQUE;
    for (const int anyExtra : { INT_MIN, 0, INT_MAX })
        for (const int place : { INT_MIN, INT_MAX }) {
            extra = anyExtra;
            EXPECT_GE(Extent(text).cx, 0);
            EXPECT_EQ(Drawn(text, place, place), nothing);
        }
}

// Runs in a process of its own, so that no font has been looked for before.
TEST(WithoutAnyFont, TheLogSaysThatEveryCharacterIsABox)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto drawWithFonts = [](const std::string& fonts) {
        const TemporaryFolder folder;
        folder.Write("no-fonts.conf", "<fontconfig>" + fonts + "</fontconfig>");
        setenv("FONTCONFIG_FILE", (folder.Path() + "/no-fonts.conf").c_str(), 1);
        MemoryCanvas canvas(26, 16);
        SetTextColor(canvas.context, RGB(0, 0, 255));
        TextOutA(canvas.context, 0, 0, u8"中a"_big5, 3);
        return canvas.Pixels(blue555)[1] == "?##############??######?.." ? 0 : 1;
    };
    EXPECT_EXIT(std::exit(drawWithFonts("")), testing::ExitedWithCode(0), "No font with Chinese characters");
    const char* latin = "<dir>/usr/share/fonts/truetype/dejavu</dir>"; // has the letters
    EXPECT_EXIT(
        std::exit(drawWithFonts(latin)), [](int) { return true; }, "No font with Chinese characters");
}

} // namespace
