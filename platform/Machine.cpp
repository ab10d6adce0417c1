#include "platform/Machine.h"

#include "platform/CodePage.h"

#include <chrono>
#include <cstdio>
#include <thread>

namespace platform {

uint32_t MachineTickCount()
{
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count());
}

void MachineSleep(uint32_t milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void WriteToStderr(std::string_view text)
{
    const std::string utf8 = Utf8FromCodePage(text);
    std::fwrite(utf8.data(), 1, utf8.size(), stderr);
}

} // namespace platform
