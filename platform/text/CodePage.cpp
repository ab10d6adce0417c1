#include "platform/CodePage.h"

#include <iconv.h>

namespace platform {

namespace {

constexpr int leadCount = 0xFE - 0x81 + 1;
constexpr int trailCount = 157;

bool IsLead(uint8_t byte)
{
    return byte >= 0x81 && byte <= 0xFE;
}

// The place of a second byte in its row of 157, or -1.
int TrailIndex(uint8_t byte)
{
    if (byte >= 0x40 && byte <= 0x7E)
        return byte - 0x40;
    if (byte >= 0xA1 && byte <= 0xFE)
        return byte - 0xA1 + 63;
    return -1;
}

// The first code point of a user-defined row, 0 for the others.
int UserDefinedRow(int lead)
{
    if (lead >= 0xFA)
        return 0xE000 + (lead - 0xFA) * trailCount;
    if (lead >= 0x8E && lead <= 0xA0)
        return 0xE311 + (lead - 0x8E) * trailCount;
    if (lead <= 0x8D)
        return 0xEEB8 + (lead - 0x81) * trailCount;
    return 0;
}

// Both directions of the page's two-byte part: from the C library's table, completed by the user-defined rows.
class PageTables {
public:
    PageTables();

    // 0: the page does not define it.
    uint32_t CodePointOf(uint8_t lead, int trailIndex) const
    {
        return codePoints[(lead - 0x81) * trailCount + trailIndex];
    }
    uint16_t PairOf(uint32_t codePoint) const { return codePoint <= 0xFFFF ? pairs[codePoint] : uint16_t { 0 }; }

private:
    void FillRow(int lead, iconv_t toUtf16);

    uint16_t codePoints[leadCount * trailCount] {};
    uint16_t pairs[0x10000] {};
};

uint16_t DecodeByLibrary(iconv_t toUtf16, int lead, int trail)
{
    char pair[2] = { static_cast<char>(lead), static_cast<char>(trail) };
    uint8_t unit[2] {};
    char* from = pair;
    char* to = reinterpret_cast<char*>(unit);
    size_t fromLeft = sizeof pair;
    size_t toLeft = sizeof unit;
    iconv(toUtf16, nullptr, nullptr, nullptr, nullptr);
    if (iconv(toUtf16, &from, &fromLeft, &to, &toLeft) != 0 || toLeft != 0)
        return 0;
    return static_cast<uint16_t>(unit[0] | unit[1] << 8);
}

void PageTables::FillRow(int lead, iconv_t toUtf16)
{
    const int userDefined = UserDefinedRow(lead);
    for (int trail = 0x40; trail <= 0xFE; ++trail) {
        const int index = TrailIndex(static_cast<uint8_t>(trail));
        if (index < 0)
            continue;
        const auto pair = static_cast<uint16_t>(lead << 8 | trail);
        const auto codePoint
            = userDefined ? static_cast<uint16_t>(userDefined + index) : DecodeByLibrary(toUtf16, lead, trail);
        codePoints[(lead - 0x81) * trailCount + index] = codePoint;
        // Ten characters stand in the page twice. Their later place is the one they are written as, but for the
        // round corners, which are repeated near the end.
        const bool repeatedCorner = pair >= 0xF9FA && pair <= 0xF9FD;
        if (codePoint != 0 && !repeatedCorner)
            pairs[codePoint] = pair;
    }
}

PageTables::PageTables()
{
    // A system without the table keeps ASCII and the user-defined rows.
    const iconv_t toUtf16 = iconv_open("UTF-16LE", "BIG5");
    const bool opened = reinterpret_cast<intptr_t>(toUtf16) != -1;
    for (int lead = 0x81; lead <= 0xFE; ++lead)
        if (opened || UserDefinedRow(lead) != 0)
            FillRow(lead, toUtf16);
    if (opened)
        iconv_close(toUtf16);
}

const PageTables& Page()
{
    static const PageTables page;
    return page;
}

// No character of the page lies beyond U+FFFF: three bytes are enough.
void AppendUtf8(std::string& text, uint32_t codePoint)
{
    const auto append = [&text](uint32_t byte) { text += static_cast<char>(byte); };
    const auto sixBits = [codePoint](int shift) { return 0x80 | (codePoint >> shift & 0x3F); };
    if (codePoint < 0x80) {
        append(codePoint);
    } else if (codePoint < 0x800) {
        append(0xC0 | codePoint >> 6);
        append(sixBits(0));
    } else {
        append(0xE0 | codePoint >> 12);
        append(sixBits(6));
        append(sixBits(0));
    }
}

constexpr uint32_t malformed = 0xFFFFFFFF;

// Takes the first character off a UTF-8 text; a byte that belongs to none comes off alone, as `malformed`.
uint32_t TakeUtf8(std::string_view& text)
{
    static constexpr uint32_t smallest[] = { 0, 0x80, 0x800, 0x10000 };
    const auto first = static_cast<uint8_t>(text.front());
    text.remove_prefix(1);
    if (first < 0x80)
        return first;
    const size_t tails = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || text.size() < tails)
        return malformed;
    uint32_t codePoint = first & (0x3Fu >> tails);
    for (size_t i = 0; i < tails; ++i) {
        const auto byte = static_cast<uint8_t>(text[i]);
        if ((byte & 0xC0) != 0x80)
            return malformed;
        codePoint = codePoint << 6 | (byte & 0x3F);
    }
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest[tails] || codePoint > 0x10FFFF || surrogate)
        return malformed;
    text.remove_prefix(tails);
    return codePoint;
}

// Every range of capitals is followed by its small letters at one distance.
uint32_t LowerCase(uint32_t codePoint)
{
    static constexpr struct {
        uint32_t first, last, distance;
    } capitals[] = { { 'A', 'Z', 32 }, { 0x0391, 0x03A9, 32 }, { 0x0401, 0x0401, 80 }, { 0x0410, 0x042F, 32 },
        { 0x2160, 0x216B, 16 }, { 0xFF21, 0xFF3A, 32 } };
    for (const auto& range : capitals)
        if (codePoint >= range.first && codePoint <= range.last)
            return codePoint + range.distance;
    return codePoint;
}

} // namespace

CodePageCharacter FirstCharacter(std::string_view text)
{
    const auto lead = static_cast<uint8_t>(text.front());
    if (lead <= 0x80)
        return { lead, 1 };
    if (!IsLead(lead) || text.size() < 2 || text[1] == '\0')
        return { 0, 1 };
    const int index = TrailIndex(static_cast<uint8_t>(text[1]));
    return { index < 0 ? 0 : Page().CodePointOf(lead, index), 2 };
}

std::string Utf8FromCodePage(std::string_view text)
{
    std::string utf8;
    utf8.reserve(text.size() + text.size() / 2);
    while (!text.empty()) {
        const CodePageCharacter character = FirstCharacter(text);
        const bool broken = character.codePoint == 0 && text.front() != '\0';
        AppendUtf8(utf8, broken ? 0xFFFD : character.codePoint);
        text.remove_prefix(static_cast<size_t>(character.length));
    }
    return utf8;
}

std::string CodePageFromUtf8(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const uint32_t codePoint = TakeUtf8(text);
        if (codePoint <= 0x80)
            bytes += static_cast<char>(codePoint);
        else if (const uint16_t pair = Page().PairOf(codePoint))
            (bytes += static_cast<char>(pair >> 8)) += static_cast<char>(pair & 0xFF);
        else
            bytes += '?';
    }
    return bytes;
}

std::string FoldCase(std::string_view utf8)
{
    std::string folded;
    folded.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::string_view before = utf8;
        const uint32_t codePoint = TakeUtf8(utf8);
        if (const uint32_t lower = LowerCase(codePoint); lower != codePoint)
            AppendUtf8(folded, lower);
        else
            folded += before.substr(0, before.size() - utf8.size());
    }
    return folded;
}

std::string_view CutToBytes(std::string_view text, size_t limit)
{
    size_t end = 0;
    while (end < text.size()) {
        const auto length = static_cast<size_t>(FirstCharacter(text.substr(end)).length);
        if (end + length > limit)
            break;
        end += length;
    }
    return text.substr(0, end);
}

} // namespace platform
