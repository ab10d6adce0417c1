#include "platform/Desktop.h"
#include "platform/Kernel.h"
#include "platform/process/MachineClock.h"
#include "platform/process/StderrLog.h"

DWORD GetTickCount()
{
    platform::Desktop* desktop = platform::InstalledDesktop();
    return desktop ? desktop->TickCount() : platform::MachineTickCount();
}

void Sleep(DWORD milliseconds)
{
    if (platform::Desktop* desktop = platform::InstalledDesktop())
        desktop->Sleep(milliseconds);
    else
        platform::MachineSleep(milliseconds);
}

void OutputDebugStringA(const char* text)
{
    if (!text)
        return;
    if (platform::Desktop* desktop = platform::InstalledDesktop())
        desktop->DebugOutput(text);
    else
        platform::WriteToStderr(text);
}
