#include "platform/FileReplacement.h"

#include "platform/Path.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace platform {

namespace {

using std::filesystem::path;

// A new file beside the one that it shall replace; removed again unless it took that one's place.
class TemporaryFile {
public:
    explicit TemporaryFile(const path& folder)
    {
        constexpr int attempts = 100;
        for (int i = 0; descriptor < 0 && i < attempts; ++i) {
            name = folder / (".tobrik-" + std::to_string(getpid()) + "-" + std::to_string(i));
            descriptor = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (descriptor < 0 && errno != EEXIST)
                break;
        }
        exists = descriptor >= 0;
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        Close();
        if (exists)
            unlink(name.c_str());
    }

    bool IsOpen() const { return descriptor >= 0; }

    // Not every system lets a file be given away; its permissions are what matters.
    bool TakeOwnerAndPermissions(const struct stat& other) const
    {
        const bool givenAway = fchown(descriptor, other.st_uid, other.st_gid) == 0;
        static_cast<void>(givenAway);
        return fchmod(descriptor, other.st_mode & 07777) == 0;
    }

    bool Write(std::string_view bytes) const
    {
        while (!bytes.empty()) {
            const ssize_t written = write(descriptor, bytes.data(), bytes.size());
            if (written > 0)
                bytes.remove_prefix(static_cast<size_t>(written));
            else if (written == 0 || errno != EINTR)
                return false;
        }
        return fsync(descriptor) == 0;
    }

    bool TakePlaceOf(const path& target)
    {
        if (!Close() || rename(name.c_str(), target.c_str()) != 0)
            return false;
        exists = false;
        return true;
    }

private:
    bool Close() { return descriptor < 0 || close(std::exchange(descriptor, -1)) == 0; }

    path name;
    int descriptor = -1;
    bool exists = false;
};

// The file that a name leads to through symbolic links, whether it exists or not; nothing when they run in a circle.
std::optional<path> LinkTarget(path name)
{
    constexpr int maxLinks = 40;
    std::error_code error;
    for (int i = 0; i < maxLinks; ++i) {
        if (!std::filesystem::is_symlink(name, error))
            return name;
        const path next = std::filesystem::read_symlink(name, error);
        if (error)
            return std::nullopt;
        name = name.parent_path() / next;
    }
    return std::nullopt;
}

// The renaming itself outlives a power cut only once the folder is on the disk too. The new file is in place by then,
// so a folder that cannot be flushed is no failure.
void FlushFolder(const path& folder)
{
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    fsync(descriptor);
    close(descriptor);
}

} // namespace

bool ReplaceFileContent(std::string_view codePagePath, std::string_view bytes)
{
    const std::string native = NativePath(codePagePath);
    const std::optional<path> target = native.empty() ? std::nullopt : LinkTarget(native);
    if (!target)
        return false;
    struct stat old { };
    const bool existed = stat(target->c_str(), &old) == 0;
    if (existed && (!S_ISREG(old.st_mode) || access(target->c_str(), W_OK) != 0))
        return false;

    const path folder = target->has_parent_path() ? target->parent_path() : path(".");
    TemporaryFile temporary(folder);
    if (!temporary.IsOpen() || (existed && !temporary.TakeOwnerAndPermissions(old)) || !temporary.Write(bytes)
        || !temporary.TakePlaceOf(*target))
        return false;
    FlushFolder(folder);
    return true;
}

} // namespace platform
