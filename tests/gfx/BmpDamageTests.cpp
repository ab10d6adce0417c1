#include "gfx/Pic16X.h"
#include "tests/support/BmpFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <random>

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
    // Loads it as a picture, and as a picture and as the companion of a good file of the original size; all agree.
    SPicOwner_ Load(const std::string& bytes)
    {
        WriteBytes("bad.bmp", bytes);
        uint32_t size = 99;
        SPicOwner_ keyed(SPic16X_::LoadBmpKey_("bad.bmp", 0, 255, 0, 0, &size, nullptr, nullptr));
        EXPECT_EQ(!keyed, size == 99);
        good.Write("good.bmp");
        const SPicOwner_ color(SPic16X_::LoadBmpAlpha_("bad.bmp", "good.bmp", 0, nullptr));
        const SPicOwner_ alpha(SPic16X_::LoadBmpAlpha_("good.bmp", "bad.bmp", 0, nullptr));
        const bool paired = keyed && keyed->width == good.width && keyed->height == good.height;
        EXPECT_TRUE((color != nullptr) == paired && (alpha != nullptr) == paired);
        return keyed;
    }

    const long openBefore = OpenFiles();
    const TemporaryFolder folder;
    const BmpFile good { 5, 3, 255 };
};

TEST_F(BmpDamage, CutFilesLoadOnlyWhileAllPixelsAreThere)
{
    const std::string whole = good.Bytes();
    constexpr size_t lastPadding = 3;
    for (size_t length = 0; length <= whole.size(); ++length)
        EXPECT_EQ(Load(whole.substr(0, length)) != nullptr, length + lastPadding >= whole.size()) << length;
}

TEST_F(BmpDamage, WrongFieldsAreRefused)
{
    const std::pair<size_t, std::vector<uint32_t>> fields[] = {
        { 0, { 0x4D41, 0x424D } }, // signature
        { 10, { 0, 53, 1082, 0x7FFFFFFF, 0xFFFFFFFF } }, // pixel data offset
        { 14, { 0, 39, 1065, 0xFFFFFFF2, 0xFFFFFFFF } }, // info header size
        { 18, { 0, 9, 65535, 65536, 0x10005, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFB } }, // width
        { 22, { 0, 4, 65535, 65536, 0x10003, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFD } }, // height
        { 26, { 8 << 16, 2 | 8 << 16, 1, 1 | 4 << 16, 1 | 16 << 16, 1 | 32 << 16, 1 | 0x108 << 16 } }, // planes, bits
        { 30, { 1, 0x10000, 0x80000000 } }, // compression
    };
    for (const auto& [offset, values] : fields)
        for (const uint32_t value : values) {
            std::string bytes = good.Bytes();
            PutLong(bytes, offset, value);
            EXPECT_FALSE(Load(bytes)) << offset << " is " << value;
        }
    std::string huge = good.Bytes();
    PutLong(huge, 18, 65535);
    PutLong(huge, 22, 65535);
    EXPECT_FALSE(Load(huge));
    std::string trueColor = good.Bytes(); // sound, but of 24 bits
    PutLong(trueColor, 18, 1);
    PutWord(trueColor, 28, 24);
    EXPECT_FALSE(Load(trueColor));
}

TEST_F(BmpDamage, ScatteredDamageLeavesPicturesThatCanBeDrawn)
{
    std::mt19937 random(5);
    for (int i = 0; i < 500; ++i) {
        std::string bytes = good.Bytes();
        for (auto count = 1 + random() % 3; count > 0; --count)
            bytes[random() % 40] = static_cast<char>(random() % 8 == 0 ? random() : random() % 9);
        if (const SPicOwner_ picture = Load(bytes)) {
            const int w = picture->width, h = picture->height;
            std::vector<uint16_t> canvas(static_cast<size_t>(w * h));
            SPic16X_::Draw_(picture.get(), canvas.data(), 2 * w, 0, 0, 0, 0, w, h, 255, 0);
        }
    }
}

TEST_F(BmpDamage, NamesWithoutAFileAreRefused)
{
    for (const char* name : { static_cast<const char*>(nullptr), "", "missing.bmp", "." })
        EXPECT_FALSE(SPic16X_::LoadBmpKey_(name, 0, 255, 0, 0, nullptr, nullptr, nullptr));
}

} // namespace
