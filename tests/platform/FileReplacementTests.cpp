#include "platform/Big5Literal.h"
#include "platform/FileReplacement.h"
#include "tests/support/TemporaryFolder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace fs = std::filesystem;
using platform::ReplaceFileContent;

namespace {

TEST(FileReplacement, WritesNewFilesAndKeepsPermissionsOfOldOnes)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(ReplaceFileContent(u8"功.tobrik"_big5, std::string("a\0\r\n", 4)));
    EXPECT_EQ(ReadBytes("功.tobrik"), std::string("a\0\r\n", 4));
    folder.Write("sub/old.tobrik", "a longer content");
    fs::permissions("sub/old.tobrik", fs::perms(0751));
    EXPECT_TRUE(ReplaceFileContent("SUB\\Old.tobrik", "new"));
    EXPECT_EQ(ReadBytes("sub/old.tobrik"), "new");
    EXPECT_EQ(fs::status("sub/old.tobrik").permissions(), fs::perms(0751));
}

TEST(FileReplacement, WritesThroughSymbolicLinks)
{
    const TemporaryFolder folder;
    folder.Write("sub/target", "old");
    fs::create_symlink("target", "sub/near");
    fs::create_symlink("sub/near", "far");
    fs::create_symlink("sub/missing", "dangling");
    fs::create_symlink("circle", "circle");
    EXPECT_TRUE(ReplaceFileContent("far", "new"));
    EXPECT_TRUE(fs::is_symlink("far") && fs::is_symlink("sub/near") && !fs::is_symlink("sub/target"));
    EXPECT_EQ(ReadBytes("sub/target"), "new");
    EXPECT_TRUE(ReplaceFileContent("dangling", "made"));
    EXPECT_EQ(ReadBytes("sub/missing"), "made");
    EXPECT_FALSE(ReplaceFileContent("circle", "x"));
}

TEST(FileReplacement, LeavesEverythingWhenItFails)
{
    const TemporaryFolder folder;
    folder.Write("full", "old");
    for (const char* name : { "", ".", "missing\\a", "full\\a", "\xA4" })
        EXPECT_FALSE(ReplaceFileContent(name, "x")) << name;

    rlimit before {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small { 10, before.rlim_max };
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_FALSE(ReplaceFileContent("full", std::string(100, 'x')));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(ReadBytes("full"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 1);
}

} // namespace
