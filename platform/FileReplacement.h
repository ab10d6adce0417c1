#pragma once

#include <string_view>

namespace platform {

// What became of writing a file.
enum class FileWriting {
    Done,
    DiskFull, // or the user's share of it
    NoPermission, // for the file or its folder
    ReadOnly, // the file or its whole file system
    NoFolder,
    NoOrdinaryFile, // a folder, a pipe, links in a circle
    TooLarge, // for the file system or a limit on the program
    BadName, // one that no file can have
    Failed, // anything else
};

// Makes `bytes` the whole content of the file (a backslash path in code page 950), which is created when it is missing.
// They go to a temporary file beside it, which takes its place once it is complete and on the disk; owner, group,
// permissions and extended attributes stay as far as the system allows, and a symbolic link is written through.
// Whatever is not Done leaves the file as it was and no temporary file.
[[nodiscard]] FileWriting ReplaceFileContent(std::string_view codePagePath, std::string_view bytes);

// From now on a limit on file sizes makes writing fail; by default it ends the program.
void OutliveFileSizeLimit();

} // namespace platform
