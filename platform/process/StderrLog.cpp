#include "platform/process/StderrLog.h"

#include "platform/CodePage.h"

#include <cstdio>
#include <string>

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
