#include "platform/Big5Literal.h"
#include "platform/Kernel.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <random>

namespace {

HANDLE Open(const char* name)
{
    return CreateFileA(name, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
}

TEST(FileCalls, ReadAnywhereInAFileLargerThanItsBuffer)
{
    const TemporaryFolder folder;
    std::mt19937 random(7);
    std::string content(100000, '\0');
    for (char& byte : content)
        byte = static_cast<char>(random());
    folder.Write("圖.bmp", content);
    const HANDLE file = Open(u8"圖.BMP"_big5);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetFileSize(file, nullptr), content.size());
    for (int i = 0; i < 500; ++i) {
        // Mostly forwards in even steps, as the rows of a picture are read.
        const auto at = static_cast<LONG>(i < 400 ? 240 * static_cast<uint32_t>(i) : random() % 100001);
        char bytes[50000];
        DWORD count = i < 400 ? 230 : static_cast<DWORD>(random() % sizeof bytes);
        const std::string expected = content.substr(static_cast<size_t>(at), count);
        ASSERT_EQ(SetFilePointer(file, at, nullptr, FILE_BEGIN), static_cast<DWORD>(at));
        ASSERT_TRUE(ReadFile(file, bytes, count, &count, nullptr));
        ASSERT_EQ(std::string(bytes, count), expected);
    }
    EXPECT_EQ(SetFilePointer(file, -1, nullptr, FILE_BEGIN), INVALID_SET_FILE_POINTER);
    EXPECT_TRUE(CloseHandle(file));
    EXPECT_FALSE(CloseHandle(INVALID_HANDLE_VALUE));
}

TEST(WithoutADesktop, TheClockRunsAndTheLogGoesToStderr)
{
    const DWORD before = GetTickCount();
    Sleep(20);
    EXPECT_GE(GetTickCount() - before, 20u);
    testing::internal::CaptureStderr();
    OutputDebugStringA((u8"第 1 層"_big5 + std::string("\x1B[2J\r\t\x7F\x80\n \xA4")).c_str());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "第 1 層\\x1B[2J\\x0D\\x09\\x7F\\x80\n \uFFFD");
}

} // namespace
