#include "platform/Machine.h"

#include "platform/CodePage.h"

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

namespace platform {

namespace {

// What a terminal might obey, if a text from a file reached it. A broken character (0) has its own sign.
bool IsControl(uint32_t codePoint)
{
    return codePoint != 0 && codePoint != '\n' && (codePoint < 0x20 || codePoint == 0x7F || codePoint == 0x80);
}

std::string NumberOf(char byte)
{
    char number[8];
    std::snprintf(number, sizeof number, "\\x%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    return number;
}

} // namespace

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
    std::string visible;
    while (!text.empty()) {
        const CodePageCharacter character = FirstCharacter(text);
        const auto length = static_cast<size_t>(character.length);
        visible += IsControl(character.codePoint) ? NumberOf(text.front()) : Utf8FromCodePage(text.substr(0, length));
        text.remove_prefix(length);
    }
    std::fwrite(visible.data(), 1, visible.size(), stderr);
}

} // namespace platform
