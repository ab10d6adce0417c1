#include "platform/Path.h"

#include "platform/CodePage.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

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

bool Exists(const std::string& path)
{
    std::error_code error;
    return fs::exists(path, error);
}

// Looks for a path that may be spelled in another case than its files and folders are.
class SpellingSearch {
public:
    // The spelling under which all of the path exists: the exact one of each name before the others, and these in byte
    // order. Where there is none, that of as many leading names as exist.
    std::string Find(const std::string& path)
    {
        Follow("", path);
        return best;
    }

private:
    // `spelled` may exist, `rest` comes after it. True ends the search: all exists, or it takes too long.
    bool Follow(std::string spelled, std::string_view rest)
    {
        while (rest.starts_with('/')) {
            spelled += '/';
            rest.remove_prefix(1);
        }
        if (!spelled.empty() && !Exists(spelled))
            return false;
        if (rest.size() < missing) {
            best = spelled + std::string(rest);
            missing = rest.size();
        }
        const std::string name(rest.substr(0, rest.find('/')));
        rest.remove_prefix(name.size());
        if (name.empty() || Follow(spelled + name, rest))
            return true;
        for (const std::string& other : OtherSpellings(spelled, name))
            if (Follow(spelled + other, rest))
                return true;
        return foldersLeft == 0;
    }

    // The names in the folder ("" or ending in a slash) that differ in case only.
    std::vector<std::string> OtherSpellings(const std::string& folder, const std::string& name)
    {
        std::vector<std::string> names;
        std::error_code error;
        if (foldersLeft == 0)
            return names;
        --foldersLeft;
        const std::string folded = FoldCase(name);
        fs::directory_iterator entry(folder.empty() ? "." : folder, error);
        for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
            std::string other = entry->path().filename().native();
            // Both cases of a letter take as many bytes, so that most names need not be folded.
            if (other.size() == name.size() && other != name && FoldCase(other) == folded)
                names.push_back(std::move(other));
        }
        std::ranges::sort(names);
        return names;
    }

    std::string best;
    size_t missing = std::string::npos; // how many bytes at the end of `best` do not exist
    int foldersLeft = 200; // that may be read: links can make endlessly many
};

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
    const std::string path = ExactNativePath(codePagePath);
    return path.empty() || Exists(path) ? path : SpellingSearch().Find(path);
}

bool IsMisread(std::string_view nativePath)
{
    return nativePath.find('\\') != std::string_view::npos
        || HasDriveLetter(nativePath.substr(nativePath.rfind('/') + 1));
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
