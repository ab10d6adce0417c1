#include "gfx/BmpReader.h"
#include "tests/support/BmpFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <numeric>
#include <tuple>

namespace {

TEST(FileReader, ReadsWholeCountsOfOneFileAtATime)
{
    constexpr uint32_t far = 0xFFFFFFF0;
    const TemporaryFolder folder;
    std::ofstream("large").seekp(far) << "ab";
    CFileR_ file;
    char bytes[3] = "";
    EXPECT_FALSE(file.Read_(bytes, 0)) << "nothing is open";
    for (const char* name : { static_cast<const char*>(nullptr), "", "missing", "." })
        EXPECT_FALSE(file.Open_(name));
    ASSERT_TRUE(file.Open_("large"));
    EXPECT_FALSE(file.Open_("large")) << "one is open";
    EXPECT_EQ(file.Size_(), far + 2);
    ASSERT_TRUE(file.SeekSet_(far));
    EXPECT_FALSE(file.Read_(bytes, -1));
    EXPECT_TRUE(file.Read_(bytes, 2));
    EXPECT_STREQ(bytes, "ab");
    EXPECT_TRUE(file.Read_(bytes, 0));
    ASSERT_TRUE(file.SeekSet_(far + 1));
    EXPECT_FALSE(file.Read_(bytes, 2)) << "only one is left";
    file.Close_();
    EXPECT_EQ(file.Size_(), 0u);
}

TEST(BmpReading, GivesWhatAFileOfEitherDepthHolds)
{
    const TemporaryFolder folder;
    BmpFile bmp(9, 2); // nine bytes and three of padding in a row: pixels of 8 bits, or three of 24
    std::iota(bmp.indices.begin(), bmp.indices.end(), uint8_t { 1 });
    bmp.palette = { 0x112233, 0xFF8040 };
    std::string bytes = bmp.Bytes();
    WriteBytes("8.bmp", bytes);
    PutLong(bytes, 18, 3);
    PutWord(bytes, 28, 24);
    WriteBytes("24.bmp", bytes);
    CBmpReader_ reader;
    std::vector<uint8_t> plane(18);
    using Row = std::tuple<const char*, uint32_t, int, int, int, int>;
    for (const auto& [name, width, colors, blue, in565, in555] :
        { Row("24.bmp", 3, 0, 0, 0, 0), { "8.bmp", 9, 2, 0x40, 0xFC08, 0x7E08 }, { "24.bmp", 3, 0, 0, 0, 0 } }) {
        ASSERT_TRUE(reader.Open_(name)) << "closes the one before";
        EXPECT_EQ(reader.Width_(), width);
        EXPECT_EQ(reader.ColorCount_(), colors);
        EXPECT_EQ(reader.PaletteEntry_(1).blue, blue);
        EXPECT_TRUE(reader.ReadRow_(0, plane.data()));
        EXPECT_TRUE(reader.ReadRow_(1, plane.data() + 9));
        EXPECT_EQ(plane, bmp.indices);
        EXPECT_FALSE(reader.ReadRow_(2, plane.data()));
        EXPECT_FALSE(reader.ReadRow_(0, nullptr));
        for (const bool as565 : { false, true }) {
            SBmpInfo_ info;
            EXPECT_TRUE(ReadBmpInfo_(name, as565, info));
            EXPECT_EQ(info.palette[1], as565 ? in565 : in555);
        }
        EXPECT_EQ(ReadBmpIndices_(name, plane), width == 9);
        for (const size_t count : { 0U, 6U, 17U })
            EXPECT_FALSE(ReadBmpIndices_(name, std::span(plane).first(count)));
    }
    EXPECT_FALSE(reader.Open_("missing.bmp"));
    EXPECT_FALSE(reader.ReadRow_(0, plane.data()));
}

} // namespace
