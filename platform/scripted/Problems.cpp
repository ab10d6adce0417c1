#include "platform/scripted/Problems.h"

#include <cstdio>
#include <utility>

namespace platform {

void Problems::Report(std::string problem)
{
    std::fprintf(stderr, "ScriptedDesktop: %s\n", problem.c_str());
    problems.push_back(std::move(problem));
}

std::vector<std::string> Problems::Take()
{
    return std::exchange(problems, {});
}

} // namespace platform
