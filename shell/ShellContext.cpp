#include "shell/ShellContext.h"

#include <cassert>

namespace {
ShellContext* theShell = nullptr;
} // namespace

ShellContext::ShellContext()
{
    assert(!theShell);
    theShell = this;
}

ShellContext::~ShellContext()
{
    theShell = nullptr;
}

ShellContext& Shell()
{
    return *theShell;
}
