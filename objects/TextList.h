#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Texts back to back in one piece of memory: a million short ones take little more than their bytes.
class TextList {
public:
    void Add(std::string_view text)
    {
        bytes += text;
        ends.push_back(bytes.size());
    }
    // The index must be that of a text.
    void Remove(size_t index);
    std::string_view Get(size_t index) const { return std::string_view(bytes).substr(Start(index), Length(index)); }
    size_t GetCount() const { return ends.size(); }

private:
    size_t Start(size_t index) const { return index == 0 ? 0 : ends[index - 1]; }
    size_t Length(size_t index) const { return ends[index] - Start(index); }

    std::string bytes;
    std::vector<size_t> ends; // of each text, in the bytes
};
