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

constexpr uint64_t levelBits = 0xF8F8F8F8F8F8F8F8;

// For the types that leave no choice of level: all level bits are clear (zero) or set (normal).
bool AreOfType_(const uint8_t* eightAlphas, RunType type)
{
    uint64_t eight = 0;
    std::memcpy(&eight, eightAlphas, sizeof eight);
    return (eight & levelBits) == (type == RunNormal ? levelBits : 0);
}

// All 64 alphas, without a branch for every eight: most runs of most pictures are full.
bool IsFullRun_(const uint8_t* alphas, RunType type)
{
    bool full = true;
    for (size_t i = 0; i < SPic16Sprite_::longestRun; i += 8)
        full &= AreOfType_(alphas + i, type);
    return full;
}

// How many pixels from the first one on have its type.
size_t RunLength_(const uint8_t* alphas, size_t limit, RunType type)
{
    size_t length = 1;
    if (type != RunAlpha) {
        if (limit == SPic16Sprite_::longestRun && IsFullRun_(alphas, type))
            return limit;
        while (length + 8 <= limit && AreOfType_(alphas + length, type))
            length += 8;
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
