#include "platform/Path.h"

#include "platform/CodePage.h"
#include "platform/Names.h"

#include <algorithm>
#include <filesystem>

namespace platform {

namespace {

namespace fs = std::filesystem;

bool IsFileName(std::string_view text)
{
    while (!text.empty()) {
        const CodePageCharacter character = FirstCharacter(text);
        if (character.codePoint == 0)
            return false;
        text.remove_prefix(static_cast<size_t>(character.length));
    }
    return true;
}

// How `name` is spelled in the folder ("" or ending in a slash): as it stands if that exists, else as the first
// name in byte order that differs in case only, else as it stands.
std::string SpellingIn(const std::string& folder, const std::string& name)
{
    std::error_code error;
    if (fs::exists(folder + name, error))
        return name;
    std::string found;
    fs::directory_iterator entry(folder.empty() ? "." : folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string entryName = entry->path().filename().native();
        if (SameName(entryName, name) && (found.empty() || entryName < found))
            found = entryName;
    }
    return found.empty() ? name : found;
}

bool HasDriveLetter(std::string_view path)
{
    return path.size() >= 2 && path[1] == ':'
        && ((path[0] >= 'a' && path[0] <= 'z') || (path[0] >= 'A' && path[0] <= 'Z'));
}

} // namespace

std::string ExactNativePath(std::string_view codePagePath)
{
    if (!IsFileName(codePagePath))
        return {};
    std::string path = Utf8FromCodePage(codePagePath);
    std::replace(path.begin(), path.end(), '\\', '/');
    if (HasDriveLetter(path))
        path.erase(0, 2);
    return path;
}

std::string NativePath(std::string_view codePagePath)
{
    std::string path = ExactNativePath(codePagePath);
    std::error_code error;
    if (path.empty() || fs::exists(path, error))
        return path;

    std::string spelled;
    for (size_t at = 0; at < path.size();) {
        if (path[at] == '/') {
            spelled += path[at++];
            continue;
        }
        const size_t end = std::min(path.find('/', at), path.size());
        spelled += SpellingIn(spelled, path.substr(at, end - at));
        at = end;
    }
    return spelled;
}

std::optional<std::string> CodePagePath(std::string_view nativePath)
{
    std::error_code error;
    const fs::path absolute = fs::absolute(fs::path(nativePath), error);
    if (error || nativePath.empty())
        return std::nullopt;
    std::string path = absolute.lexically_normal().native();
    // A backslash within a name would come back as a separator.
    if (path.find('\\') != std::string::npos || path.find('\0') != std::string::npos)
        return std::nullopt;
    std::replace(path.begin(), path.end(), '/', '\\');
    std::string bytes = CodePageFromUtf8(path);
    if (Utf8FromCodePage(bytes) != path)
        return std::nullopt;
    return bytes;
}

std::string DesktopPath(std::string_view codePagePath)
{
    if (HasDriveLetter(codePagePath))
        codePagePath.remove_prefix(2);
    std::string path;
    while (!codePagePath.empty()) {
        const auto length = static_cast<size_t>(FirstCharacter(codePagePath).length);
        const std::string_view character = codePagePath.substr(0, length);
        path += character == "\\" ? "/" : character;
        codePagePath.remove_prefix(length);
    }
    return path;
}

} // namespace platform
