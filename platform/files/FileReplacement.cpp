#include "platform/FileReplacement.h"

#include "platform/Path.h"
#include "platform/files/TemporaryFile.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

using std::filesystem::path;

FileWriting OutcomeOf(int error)
{
    switch (error) {
    case 0:
        return FileWriting::Done;
    case ENOSPC:
    case EDQUOT:
        return FileWriting::DiskFull;
    case EACCES:
    case EPERM:
        return FileWriting::NoPermission;
    case EROFS:
        return FileWriting::ReadOnly;
    case ENOENT:
    case ENOTDIR:
        return FileWriting::NoFolder;
    case EISDIR:
    case ELOOP:
        return FileWriting::NoOrdinaryFile;
    case EFBIG:
        return FileWriting::TooLarge;
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
        return FileWriting::BadName;
    default:
        return FileWriting::Failed;
    }
}

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

// Whether the file that is there may be replaced. The folder would allow it for a file that is read-only, too.
FileWriting CheckOldFile(const path& file, const struct stat& status)
{
    if (!S_ISREG(status.st_mode))
        return FileWriting::NoOrdinaryFile;
    if (faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) == 0)
        return FileWriting::Done;
    constexpr mode_t anybodyMayWrite = 0222;
    return (status.st_mode & anybodyMayWrite) == 0 ? FileWriting::ReadOnly : OutcomeOf(errno);
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

// `old` is null where there is no file yet. The permissions come after the bytes, which nobody but the owner reads
// until then.
int WriteThroughTemporaryFile(const path& target, const struct stat* old, std::string_view bytes)
{
    constexpr mode_t ownerOnly = 0600;
    constexpr mode_t newFile = 0666;
    const path folder = target.has_parent_path() ? target.parent_path() : path(".");
    RemoveAbandonedFiles(folder);
    TemporaryFile temporary;
    int error = temporary.Create(folder, old ? ownerOnly : newFile);
    if (error == 0)
        error = temporary.Write(bytes);
    if (error == 0 && old)
        temporary.TakeAfter(target, *old);
    if (error == 0)
        error = temporary.TakePlaceOf(target);
    if (error == 0)
        FlushFolder(folder);
    return error;
}

} // namespace

FileWriting ReplaceFileContent(std::string_view codePagePath, std::string_view bytes)
{
    const std::string native = NativePath(codePagePath);
    if (native.empty())
        return FileWriting::BadName;
    const std::optional<path> target = LinkTarget(native);
    if (!target)
        return FileWriting::NoOrdinaryFile;
    struct stat old { };
    const bool existed = stat(target->c_str(), &old) == 0;
    if (!existed && errno != ENOENT)
        return OutcomeOf(errno);
    const FileWriting allowed = existed ? CheckOldFile(*target, old) : FileWriting::Done;
    if (allowed != FileWriting::Done)
        return allowed;
    return OutcomeOf(WriteThroughTemporaryFile(*target, existed ? &old : nullptr, bytes));
}

void OutliveFileSizeLimit()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace platform
