#include "platform/Big5Literal.h"
#include "platform/FileReading.h"
#include "platform/Kernel.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

using platform::ReadFileContent;

namespace {

TEST(FileReading, RefusesAtOnceWhatIsNoOrdinaryFile)
{
    const TemporaryFolder folder;
    folder.Write("Image/a.bmp", "");
    ASSERT_EQ(mkfifo("pipe.bmp", 0600), 0);
    std::filesystem::create_symlink("/dev/zero", "endless.bmp");
    for (const char* name :
        { "", "missing.bmp", "Image", "Image\\", "pipe.bmp", "Pipe.bmp", "\\dev\\zero", "endless.bmp", "\xA4.bmp" }) {
        EXPECT_EQ(
            CreateFileA(name, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr), INVALID_HANDLE_VALUE)
            << name;
        EXPECT_FALSE(ReadFileContent(name, 1000)) << name;
    }
}

TEST(FileReading, ReadsUpToTheLimitWhateverAFileSaysAboutItsSize)
{
    const TemporaryFolder folder;
    std::string content = std::string("a\0\r\n", 4) + std::string(100000, 'b');
    folder.Write("Image/功.tobrik", content);
    const char* name = u8"image\\功.tobrik"_big5;
    EXPECT_EQ(ReadFileContent(name, content.size()), content);
    EXPECT_FALSE(ReadFileContent(name, content.size() - 1));
    ASSERT_EQ(std::filesystem::file_size("/proc/self/maps"), 0U);
    EXPECT_EQ(ReadFileContent("\\proc\\version", 1000), ReadBytes("/proc/version"));
    EXPECT_FALSE(ReadFileContent("\\proc\\self\\maps", 10));
}

} // namespace
