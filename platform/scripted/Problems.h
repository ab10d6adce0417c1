#pragma once

#include <string>
#include <vector>

namespace platform {

// What a designer would have been stuck with, each problem written to stderr as it comes up.
class Problems {
public:
    void Report(std::string problem);
    std::vector<std::string> Take(); // those since the last look
    bool Any() const { return !problems.empty(); }

private:
    std::vector<std::string> problems;
};

} // namespace platform
