#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

// The whole file; empty when there is none.
inline std::string ReadBytes(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

// A fresh folder that is the current one until the test ends.
class TemporaryFolder {
public:
    TemporaryFolder()
        : before(std::filesystem::current_path())
        , folder(std::filesystem::temp_directory_path() / ("tobrik-" + std::to_string(getpid())))
    {
        std::filesystem::create_directories(folder);
        std::filesystem::current_path(folder);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder()
    {
        std::filesystem::current_path(before);
        std::filesystem::remove_all(folder);
    }

    // Its path, without any links in it.
    std::string Path() const { return std::filesystem::canonical(folder).native(); }

    void Write(const std::string& name, const std::string& content) const
    {
        const std::filesystem::path path = folder / name;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
    }

private:
    std::filesystem::path before;
    std::filesystem::path folder;
};
