#pragma once

#include <filesystem>
#include <string_view>
#include <sys/stat.h>

namespace platform {

// A new file that shall take the place of another one, under a hidden name beside it: ".tobrik-", the number of the
// process, "-" and a counter. Removed again unless it took that place. What can fail answers 0 or an error number of
// the system.
class TemporaryFile {
public:
    TemporaryFile() = default;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    [[nodiscard]] int Create(const std::filesystem::path& folder, mode_t mode);
    [[nodiscard]] int Write(std::string_view bytes) const;
    // Takes over owner, group, extended attributes (access lists are among them) and permissions, as far as the system
    // allows.
    void TakeAfter(const std::filesystem::path& other, const struct stat& status) const;
    // Once everything is on the disk.
    [[nodiscard]] int TakePlaceOf(const std::filesystem::path& target);

private:
    int Close();

    std::filesystem::path name;
    int descriptor = -1;
    bool exists = false;
};

// Removes the temporary files in the folder whose process is gone. One that is locked stays, for its process may run on
// another machine that shares the folder; so does one whose number another process has by now, until that one ends.
void RemoveAbandonedFiles(const std::filesystem::path& folder);

} // namespace platform
