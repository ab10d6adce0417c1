#include "gfx/BmpReader.h"
#include "gfx/Pic16X.h"
#include "tests/support/BmpFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

// Damaged files under the name of a picture; whatever happens, no file stays open.
class BmpDamage : public testing::Test {
protected:
    ~BmpDamage() override { EXPECT_EQ(OpenFiles(), openBefore); }

    static long OpenFiles()
    {
        const std::filesystem::directory_iterator files("/proc/self/fd");
        return std::distance(begin(files), end(files));
    }
    // Whether it loads as a picture; and as a picture with a companion, and as a companion, exactly then.
    bool Loads(const std::string& bytes)
    {
        WriteBytes("bad.bmp", bytes);
        uint32_t size = 99;
        const SPicOwner_ keyed(SPic16X_::LoadBmpKey_("bad.bmp", 0, 255, 0, 0, &size, nullptr, nullptr));
        EXPECT_EQ(!keyed, size == 99);
        good.Write("good.bmp");
        for (const auto& [color, alpha] : { std::pair("bad.bmp", "good.bmp"), { "good.bmp", "bad.bmp" } })
            EXPECT_EQ(!SPicOwner_(SPic16X_::LoadBmpAlpha_(color, alpha, 0, nullptr)), !keyed);
        return keyed != nullptr;
    }

    const long openBefore = OpenFiles();
    const TemporaryFolder folder;
    const BmpFile good { 5, 3, 255 };
};

TEST_F(BmpDamage, CutFilesLoadOnlyWhileAllPixelsAreThere)
{
    const std::string whole = good.Bytes();
    for (size_t length = 0; length <= whole.size(); ++length) {
        const bool complete = length + 3 >= whole.size(); // the last row's padding
        EXPECT_EQ(Loads(whole.substr(0, length)), complete) << length;
        EXPECT_EQ(CBmpReader_().Open_("bad.bmp"), complete) << length; // refused before anything is allocated
    }
}

TEST_F(BmpDamage, WrongFieldsAreRefused)
{
    const std::pair<size_t, std::vector<uint32_t>> fields[] = {
        { 0, { 0x4D41, 0x424D } }, // signature
        { 10, { 0, 53, 1082, 0x7FFFFFFF, 0xFFFFFFFF } }, // pixel data offset
        { 14, { 0, 39, 1065, 0xFFFFFFF2, 0xFFFFFFFF } }, // info header size
        { 18, { 0, 65536, 0x10005, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFB } }, // width
        { 22, { 0, 65536, 0x10003, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFD } }, // height
        { 26, { 8 << 16, 2 | 8 << 16, 1, 1 | 4 << 16, 1 | 24 << 16, 1 | 32 << 16, 1 | 0x108 << 16 } }, // planes, bits
        { 30, { 1, 0x10000, 0x80000000 } }, // compression
    };
    const std::string enough(8 * 65536, '\0'); // pixels for any of the sizes and depths
    for (const auto& [offset, values] : fields)
        for (const uint32_t value : values) {
            std::string bytes = good.Bytes() + enough;
            PutLong(bytes, offset, value);
            EXPECT_FALSE(Loads(bytes)) << offset << " is " << value;
        }
}

} // namespace
