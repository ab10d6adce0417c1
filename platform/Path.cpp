#include "platform/Path.h"

#include "platform/CodePage.h"

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

char LowerCase(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// Letters are those of ASCII; every other character is only equal to itself.
bool DifferInCaseOnly(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
        [](char a, char b) { return LowerCase(a) == LowerCase(b); });
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
        if (DifferInCaseOnly(entryName, name) && (found.empty() || entryName < found))
            found = entryName;
    }
    return found.empty() ? name : found;
}

bool HasDriveLetter(std::string_view path)
{
    return path.size() >= 2 && path[1] == ':' && LowerCase(path[0]) >= 'a' && LowerCase(path[0]) <= 'z';
}

} // namespace

std::string NativePath(std::string_view codePagePath)
{
    if (!IsFileName(codePagePath))
        return {};
    std::string path = Utf8FromCodePage(codePagePath);
    std::replace(path.begin(), path.end(), '\\', '/');
    if (HasDriveLetter(path))
        path.erase(0, 2);
    std::error_code error;
    if (fs::exists(path, error))
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
    if (!CodePageCanSpell(path) || path.find('\\') != std::string::npos || path.find('\0') != std::string::npos)
        return std::nullopt;
    std::replace(path.begin(), path.end(), '/', '\\');
    return CodePageFromUtf8(path);
}

} // namespace platform
