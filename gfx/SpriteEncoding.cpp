#include "gfx/Pic16Sprite.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace {

RunType TypeOf_(uint8_t alpha)
{
    const int level = alpha >> 3;
    return level == 0 ? RunZero : level == 31 ? RunNormal : RunAlpha;
}

// How many pixels from the first one on have its type. Of transparent and opaque ones eight are compared at a time:
// only the five level bits of each count, and they are all clear or all set.
size_t RunLength_(const uint8_t* alphas, size_t limit, RunType type)
{
    constexpr uint64_t levelBits = 0xF8F8F8F8F8F8F8F8;
    size_t length = 1;
    for (; type != RunAlpha && length + 8 <= limit; length += 8) {
        uint64_t eight = 0;
        std::memcpy(&eight, alphas + length, sizeof eight);
        if ((eight & levelBits) != (type == RunNormal ? levelBits : 0))
            break;
    }
    while (length < limit && TypeOf_(alphas[length]) == type)
        ++length;
    return length;
}

uint8_t* WriteRun_(uint8_t* out, RunType type, const uint8_t* indices, const uint8_t* alphas, size_t length)
{
    *out++ = static_cast<uint8_t>(type | (length - 1));
    if (type == RunNormal) {
        std::memcpy(out, indices, length);
        return out + length;
    }
    for (size_t i = 0; type == RunAlpha && i < length; ++i) {
        *out++ = indices[i];
        *out++ = alphas[i] >> 3;
    }
    return out;
}

} // namespace

uint32_t SPic16Sprite_::Encode_(
    uint8_t* stream, const uint8_t* indices, uint16_t width, uint16_t height, const uint8_t* alphas)
{
    const size_t count = size_t { width } * height;
    if (!stream || !indices || count == 0)
        return 0;
    uint8_t* out = stream;
    for (size_t i = 0; i < count;) {
        const RunType type = TypeOf_(alphas[i]);
        const size_t length = RunLength_(alphas + i, std::min<size_t>(longestRun, count - i), type);
        out = WriteRun_(out, type, indices + i, alphas + i, length);
        i += length;
    }
    return static_cast<uint32_t>(out - stream);
}
