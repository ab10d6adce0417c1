#include "platform/files/TemporaryFile.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view namePrefix = ".tobrik-";

std::string TemporaryName(pid_t process, int counter)
{
    return std::string(namePrefix) + std::to_string(process) + "-" + std::to_string(counter);
}

// The process that a temporary file is named after, 0 for a name of another shape.
pid_t MakerOf(const std::string& name)
{
    if (!name.starts_with(namePrefix))
        return 0;
    const char* const end = name.data() + name.size();
    pid_t process = 0;
    int counter = 0;
    const char* const dash = std::from_chars(name.data() + namePrefix.size(), end, process).ptr;
    if (process <= 0 || dash == end)
        return 0;
    std::from_chars(dash + 1, end, counter);
    return name == TemporaryName(process, counter) ? process : 0;
}

bool IsAbandoned(const fs::path& file)
{
    const pid_t maker = MakerOf(file.filename().native());
    if (maker == 0)
        return false;
    // In a container the number may be the same in each run: what an earlier process has left under ours is not ours.
    const bool running = maker != getpid() && (kill(maker, 0) == 0 || errno != ESRCH);
    if (running)
        return false;
    const int descriptor = open(file.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    struct stat status { };
    const bool ordinary = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    const bool locked = flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    close(descriptor);
    return ordinary && !locked;
}

// Each with its closing zero byte.
std::string AttributeNames(const fs::path& file)
{
    std::string names(static_cast<size_t>(std::max<ssize_t>(listxattr(file.c_str(), nullptr, 0), 0)), '\0');
    const ssize_t length = listxattr(file.c_str(), names.data(), names.size());
    names.resize(static_cast<size_t>(std::max<ssize_t>(length, 0)));
    return names;
}

// Gives a file the extended attributes of another and takes away those that it got from its folder.
void CopyAttributes(const fs::path& from, const fs::path& to)
{
    constexpr size_t longestValue = 65536;
    std::string value(longestValue, '\0');
    const std::string inherited = AttributeNames(to);
    for (size_t at = 0; at < inherited.size(); at = inherited.find('\0', at) + 1)
        removexattr(to.c_str(), inherited.c_str() + at);
    const std::string names = AttributeNames(from);
    for (size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
        const ssize_t length = getxattr(from.c_str(), names.c_str() + at, value.data(), value.size());
        if (length >= 0)
            setxattr(to.c_str(), names.c_str() + at, value.data(), static_cast<size_t>(length), 0);
    }
}

} // namespace

TemporaryFile::~TemporaryFile()
{
    static_cast<void>(Close());
    if (exists)
        unlink(name.c_str());
}

int TemporaryFile::Create(const fs::path& folder, mode_t mode)
{
    constexpr int attempts = 100;
    int error = EEXIST;
    for (int i = 0; error == EEXIST && i < attempts; ++i) {
        name = folder / TemporaryName(getpid(), i);
        descriptor = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        error = descriptor < 0 ? errno : 0;
    }
    exists = error == 0;
    if (exists)
        flock(descriptor, LOCK_EX | LOCK_NB);
    return error;
}

int TemporaryFile::Write(std::string_view bytes) const
{
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written > 0)
            bytes.remove_prefix(static_cast<size_t>(written));
        else if (written == 0)
            return EIO;
        else if (errno != EINTR)
            return errno;
    }
    return 0;
}

void TemporaryFile::TakeAfter(const fs::path& other, const struct stat& status) const
{
    constexpr uid_t sameOwner = static_cast<uid_t>(-1);
    mode_t mode = status.st_mode & 07777;
    if (fchown(descriptor, status.st_uid, status.st_gid) != 0) {
        mode &= ~static_cast<mode_t>(S_ISUID);
        // A group that had no part in the old file may do no more with this one than everybody else.
        if (fchown(descriptor, sameOwner, status.st_gid) != 0)
            mode &= ~static_cast<mode_t>(S_ISGID | (~mode << 3 & S_IRWXG));
    }
    CopyAttributes(other, name);
    // At the end: a change of the owner takes away some of the permissions.
    fchmod(descriptor, mode);
}

int TemporaryFile::TakePlaceOf(const fs::path& target)
{
    // Some file systems have nothing to flush and refuse it.
    if (fsync(descriptor) != 0 && errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP)
        return errno;
    if (const int error = Close(); error != 0)
        return error;
    if (rename(name.c_str(), target.c_str()) != 0)
        return errno;
    exists = false;
    return 0;
}

int TemporaryFile::Close()
{
    return descriptor < 0 || close(std::exchange(descriptor, -1)) == 0 ? 0 : errno;
}

void RemoveAbandonedFiles(const fs::path& folder)
{
    std::error_code error;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        if (IsAbandoned(entry->path()))
            unlink(entry->path().c_str());
}

} // namespace platform
