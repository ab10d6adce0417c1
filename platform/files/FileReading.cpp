#include "platform/FileReading.h"

#include "platform/Path.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

// Opening a device can already make it do something, so the name is looked at first; it may lead elsewhere a moment
// later, so the descriptor is looked at as well.
int OpenOrdinaryFile(const std::string& path)
{
    struct stat status { };
    if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return -1;
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0 || (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)))
        return descriptor;
    close(descriptor);
    return -1;
}

ssize_t ReadSome(int descriptor, char* buffer, size_t count)
{
    ssize_t read = 0;
    do
        read = ::read(descriptor, buffer, count);
    while (read < 0 && errno == EINTR);
    return read;
}

// Files of the system's own file systems are longer than they say, so reading goes on until nothing comes.
std::optional<std::string> ReadToTheEnd(int descriptor, size_t limit)
{
    constexpr size_t piece = 65536;
    struct stat status { };
    if (fstat(descriptor, &status) != 0 || static_cast<uint64_t>(status.st_size) > limit)
        return std::nullopt;
    std::string bytes;
    bytes.reserve(static_cast<size_t>(status.st_size) + piece);
    size_t used = 0;
    ssize_t count = 0;
    do {
        bytes.resize(used + piece);
        count = ReadSome(descriptor, bytes.data() + used, piece);
        used += static_cast<size_t>(std::max<ssize_t>(count, 0));
    } while (count > 0 && used <= limit);
    if (count < 0 || used > limit)
        return std::nullopt;
    bytes.resize(used);
    return bytes;
}

} // namespace

int OpenForReading(std::string_view codePagePath)
{
    // Most names are spelled as their files are: then nothing has to be looked for.
    const int descriptor = OpenOrdinaryFile(ExactNativePath(codePagePath));
    return descriptor >= 0 ? descriptor : OpenOrdinaryFile(NativePath(codePagePath));
}

bool FileExists(std::string_view codePagePath)
{
    struct stat status { };
    return stat(NativePath(codePagePath).c_str(), &status) == 0;
}

std::optional<std::string> ReadFileContent(std::string_view codePagePath, size_t limit)
{
    const int descriptor = OpenForReading(codePagePath);
    if (descriptor < 0)
        return std::nullopt;
    std::optional<std::string> bytes = ReadToTheEnd(descriptor, limit);
    close(descriptor);
    return bytes;
}

} // namespace platform
