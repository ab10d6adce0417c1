#pragma once

#include <optional>
#include <string>
#include <string_view>

// Between the program's file names (backslash paths in code page 950) and the system's (UTF-8, slashes).
namespace platform {

// Decodes, turns separators and drops a drive letter. Empty when the name cannot be a file's name (a broken character,
// a NUL).
std::string ExactNativePath(std::string_view codePagePath);
// Then looks for the exact name and for names that differ only in case (of any letter that the page has), in all the
// folders that match so. What does not exist keeps its spelling.
std::string NativePath(std::string_view codePagePath);

// Whether the program would take the file's name for another: a backslash in it would separate, a letter and a colon at
// the beginning of its last part would name a drive.
bool IsMisread(std::string_view nativePath);

// The absolute backslash path of a native one; nothing when code page 950 cannot spell it.
std::optional<std::string> CodePagePath(std::string_view nativePath);

// The path as messages show it: still code page 950, with slashes and without a drive letter, as the desktop spells it.
// Broken characters stay.
std::string DesktopPath(std::string_view codePagePath);

} // namespace platform
