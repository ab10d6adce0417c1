#include "platform/Desktop.h"

#include "platform/process/MachineClock.h"
#include "platform/process/StderrLog.h"

namespace platform {

namespace {

Desktop* installedDesktop = nullptr;

} // namespace

uint32_t Desktop::TickCount()
{
    return MachineTickCount();
}

void Desktop::Sleep(uint32_t milliseconds)
{
    MachineSleep(milliseconds);
}

void Desktop::DebugOutput(std::string_view text)
{
    WriteToStderr(text);
}

void InstallDesktop(Desktop* desktop)
{
    installedDesktop = desktop;
}

Desktop* InstalledDesktop()
{
    return installedDesktop;
}

} // namespace platform
