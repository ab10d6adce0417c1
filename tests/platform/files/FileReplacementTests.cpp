#include "platform/Big5Literal.h"
#include "platform/FileReplacement.h"
#include "tests/support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <iostream>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace fs = std::filesystem;
using platform::FileWriting;
using platform::ReplaceFileContent;

namespace {

constexpr uid_t stranger = 65534;

// Does it as somebody without special rights, in one group, where the test itself has such rights.
template <class Action> void AsStranger(gid_t group, Action act)
{
    const bool isRoot = geteuid() == 0;
    ASSERT_EQ(isRoot ? setegid(group) + seteuid(stranger) : 0, 0);
    act();
    ASSERT_EQ(isRoot ? seteuid(0) + setegid(0) : 0, 0);
}

TEST(FileReplacement, WritesNewFilesAndKeepsPermissionsOfOldOnes)
{
    const TemporaryFolder folder;
    EXPECT_EQ(ReplaceFileContent(u8"功.tobrik"_big5, std::string("a\0\r\n", 4)), FileWriting::Done);
    EXPECT_EQ(ReadBytes("功.tobrik"), std::string("a\0\r\n", 4));
    folder.Write("plain", "");
    EXPECT_EQ(fs::status("功.tobrik").permissions(), fs::status("plain").permissions());
    folder.Write("sub/old.tobrik", "a longer content");
    fs::permissions("sub/old.tobrik", fs::perms(04751));
    EXPECT_EQ(ReplaceFileContent("SUB\\Old.tobrik", "new"), FileWriting::Done);
    EXPECT_EQ(ReadBytes("sub/old.tobrik"), "new");
    EXPECT_EQ(fs::status("sub/old.tobrik").permissions(), fs::perms(04751));
}

TEST(FileReplacement, KeepsExtendedAttributes)
{
    const TemporaryFolder folder;
    folder.Write("old", "old");
    if (setxattr("old", "user.one", "mine", 4, 0) + setxattr("old", "user.two", "", 0, 0) != 0) {
        std::cout << "Keeping attributes was not compared: this file system has none\n";
        return;
    }
    EXPECT_EQ(ReplaceFileContent("old", "new"), FileWriting::Done);
    char value[8] = {};
    EXPECT_EQ(getxattr("old", "user.two", value, sizeof value), 0);
    EXPECT_EQ(getxattr("old", "user.one", value, sizeof value), 4);
    EXPECT_STREQ(value, "mine");
}

TEST(FileReplacement, KeepsOwnerAndGroupAsFarAsTheyMayBeKept)
{
    if (geteuid() != 0) {
        std::cout << "Giving files away was not compared: only root may\n";
        return;
    }
    const TemporaryFolder folder;
    fs::permissions(".", fs::perms(0777));
    // The group of the one who saves a file of owner 0 and group 60, its permissions before and after.
    for (const auto& [group, before, after] :
        { std::tuple(60U, 06664U, 02664U), { 61U, 06646U, 0646U }, { 61U, 0676U, 0666U }, { 0U, 06664U, 06664U } }) {
        fs::remove("shared");
        folder.Write("shared", "old");
        EXPECT_EQ(chown("shared", 0, 60) + chmod("shared", before), 0);
        const auto save = [] { EXPECT_EQ(ReplaceFileContent("shared", "new"), FileWriting::Done); };
        if (group == 0)
            save(); // root may do it all
        else
            AsStranger(group, save);
        struct stat status { };
        EXPECT_EQ(stat("shared", &status), 0);
        EXPECT_EQ(status.st_uid, group == 0 ? 0 : stranger);
        EXPECT_EQ(status.st_gid, group == 0 ? 60 : group);
        EXPECT_EQ(status.st_mode & 07777, after) << std::oct << before;
    }
}

TEST(FileReplacement, WritesThroughSymbolicLinks)
{
    const TemporaryFolder folder;
    folder.Write("sub/target", "old");
    fs::create_symlink("target", "sub/near");
    fs::create_symlink("sub/near", "far");
    fs::create_symlink("sub/missing", "dangling");
    EXPECT_EQ(ReplaceFileContent("far", "new"), FileWriting::Done);
    for (const auto& [name, link] : { std::pair("far", true), { "sub/near", true }, { "sub/target", false } })
        EXPECT_EQ(fs::is_symlink(name), link) << name;
    EXPECT_EQ(ReadBytes("sub/target"), "new");
    EXPECT_EQ(ReplaceFileContent("dangling", "made"), FileWriting::Done);
    EXPECT_EQ(ReadBytes("sub/missing"), "made");
}

TEST(FileReplacement, RemovesTheTemporaryFilesOfProcessesThatAreGone)
{
    const TemporaryFolder folder;
    const std::string gone = ".tobrik-99999999"; // more than a system can have
    for (const std::string& name : { gone + "-0", gone, gone + "-", gone + "-1x", gone + "-01",
             ".tobrik-" + std::to_string(getpid()) + "-0", ".tobrik-" + std::to_string(getppid()) + "-0", gone + "-4" })
        folder.Write(name, "");
    fs::create_symlink(gone, gone + "-2");
    fs::create_directory(gone + "-3");
    const int locked = open((gone + "-0").c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(locked, LOCK_EX), 0); // as a process on another machine does
    EXPECT_EQ(ReplaceFileContent("a.tobrik", "x"), FileWriting::Done);
    close(locked);
    EXPECT_FALSE(fs::exists(gone + "-4"));
    EXPECT_EQ(std::distance(fs::directory_iterator("."), fs::directory_iterator()), 9);
}

TEST(FileReplacement, LeavesEverythingWhenItFails)
{
    const TemporaryFolder folder;
    for (const auto& [name, mode] : { std::pair("old", 0644), { "kept/protected", 0444 }, { "kept/others", 0644 } }) {
        folder.Write(name, "old");
        fs::permissions(name, fs::perms(mode));
    }
    fs::permissions("kept", fs::perms(0555));
    fs::create_symlink("circle", "circle");
    const std::string longName(300, 'a');
    AsStranger(stranger, [&] {
        for (const auto& [name, outcome] : { std::pair("", FileWriting::BadName), { "\xA4", FileWriting::BadName },
                 { longName.c_str(), FileWriting::BadName }, { ".", FileWriting::NoOrdinaryFile },
                 { "circle", FileWriting::NoOrdinaryFile }, { "\\dev\\full", FileWriting::NoOrdinaryFile },
                 { "missing\\a", FileWriting::NoFolder }, { "old\\a", FileWriting::NoFolder },
                 { "kept\\others", FileWriting::NoPermission }, { "kept\\new", FileWriting::NoPermission },
                 { "kept\\protected", FileWriting::ReadOnly } })
            EXPECT_EQ(ReplaceFileContent(name, "x"), outcome) << name;
    });
    fs::permissions("kept", fs::perms(0755));
    rlimit before {};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small { 10, before.rlim_max };
    platform::OutliveFileSizeLimit();
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_EQ(ReplaceFileContent("old", std::string(100, 'x')), FileWriting::TooLarge);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(ReadBytes("old"), "old");
    EXPECT_EQ(std::distance(fs::recursive_directory_iterator("."), fs::recursive_directory_iterator()), 5);
}

} // namespace
