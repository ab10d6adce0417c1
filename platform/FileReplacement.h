#pragma once

#include <string_view>

namespace platform {

// Makes `bytes` the whole content of the file (a backslash path in code page 950), which is created when it is missing.
// They go to a temporary file beside it, which takes its place once it is complete and on the disk; permissions stay,
// and a symbolic link is written through. False leaves the file as it was and no temporary file: it cannot be written,
// is read-only, or is no ordinary file.
[[nodiscard]] bool ReplaceFileContent(std::string_view codePagePath, std::string_view bytes);

} // namespace platform
