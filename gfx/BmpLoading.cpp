#include "gfx/BmpReader.h"
#include "gfx/ColorFormats.h"
#include "gfx/Pic16Sprite.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <limits>
#include <new>

namespace {

// A sprite in the making: the palette indices and the alpha of every pixel, and the block that they are encoded into.
class CSpriteWork_ {
public:
    explicit CSpriteWork_(const SBmpInfo_& info);

    // False when memory is exhausted, and for pictures whose block could outgrow a 32-bit size.
    bool IsReady_() const { return planes && sprite; }
    std::span<uint8_t> Indices_() { return { planes.get(), pixelCount }; }
    std::span<uint8_t> Alphas_() { return { planes.get() + pixelCount, pixelCount }; }

    void Trim_() { SPic16Sprite_::Trim_(sprite.get(), Indices_().data(), Alphas_().data(), &left, &top); }
    // Encodes the planes and lets go of them. A block of the exact size, which the caller owns; null when memory is
    // exhausted.
    SPic16X_* Finish_(uint32_t* blockSize);

    uint16_t left = 0; // what trimming cut off
    uint16_t top = 0;

private:
    size_t pixelCount;
    std::unique_ptr<uint8_t[]> planes;
    std::unique_ptr<SPic16Sprite_, SPicDeleter_> sprite;
};

CSpriteWork_::CSpriteWork_(const SBmpInfo_& info)
    : pixelCount(size_t { info.width } * info.height)
{
    if (SPic16Sprite_::headBytes + 3 * pixelCount > std::numeric_limits<uint32_t>::max())
        return;
    planes.reset(new (std::nothrow) uint8_t[2 * pixelCount]);
    sprite.reset(SPic16Sprite_::New_(info.width, info.height));
    if (!sprite)
        return;
    sprite->keyIndex = 0;
    sprite->reserved = 0;
    std::copy(std::begin(info.palette), std::end(info.palette), sprite->palette);
}

SPic16X_* CSpriteWork_::Finish_(uint32_t* blockSize)
{
    const uint32_t streamBytes
        = SPic16Sprite_::Encode_(sprite->Stream_(), Indices_().data(), sprite->width, sprite->height, Alphas_().data());
    planes.reset(); // Done with: the result may take their memory.
    SPic16Sprite_* result = SPic16Sprite_::NewSized_(streamBytes);
    if (!result)
        return nullptr;
    *result = *sprite;
    std::memcpy(result->Stream_(), sprite->Stream_(), streamBytes);
    if (blockSize)
        *blockSize = SPic16Sprite_::headBytes + streamBytes;
    return result;
}

bool ReadEightBitInfo_(const char* fileName, SBmpInfo_& info, SLoadFailure_& failure)
{
    if (!ReadBmpInfo_(fileName, true, info, &failure))
        return false;
    if (info.bitsPerPixel == 8)
        return true;
    failure = { .problem = LoadProblem::Depth, .bitsPerPixel = info.bitsPerPixel };
    return false;
}

// The alpha file's headers, which have to suit the colour file's.
bool ReadCompanionInfo_(const char* fileName, const SBmpInfo_& color, SBmpInfo_& alpha, SLoadFailure_& failure)
{
    const bool isRead = ReadEightBitInfo_(fileName, alpha, failure);
    if (isRead && color.width == alpha.width && color.height == alpha.height)
        return true;
    if (isRead)
        failure.problem = LoadProblem::OtherSize;
    failure.inCompanion = true;
    return false;
}

// The pixels of a file whose headers were read before.
bool ReadPlane_(const char* fileName, std::span<uint8_t> plane, SLoadFailure_& failure)
{
    if (ReadBmpIndices_(fileName, plane))
        return true;
    failure.problem = LoadProblem::Unreadable;
    return false;
}

SPic16X_* RefuseAsTooLarge_(SLoadFailure_& failure)
{
    failure.problem = LoadProblem::TooLarge;
    return nullptr;
}

// Turns palette indices of the alpha file into alphas of 0 to 248: the top five bits of the colour's blue. Most of an
// alpha file is flat: eight indices like the eight that were looked up last (zeros at first) are not looked up again.
void MapToAlphas_(std::span<uint8_t> plane, const uint16_t* palette565)
{
    uint8_t alphas[CBmpReader_::paletteSize];
    for (int i = 0; i < CBmpReader_::paletteSize; ++i)
        alphas[i] = static_cast<uint8_t>((palette565[i] & 0x1F) * 8);

    using Eight_ = std::array<uint8_t, 8>;
    Eight_ indices {};
    Eight_ mapped;
    mapped.fill(alphas[0]);
    size_t i = 0;
    for (; i + mapped.size() <= plane.size(); i += mapped.size()) {
        uint8_t* const pixels = plane.data() + i;
        if (std::memcmp(pixels, indices.data(), indices.size()) != 0) {
            std::copy_n(pixels, indices.size(), indices.begin());
            std::ranges::transform(indices, mapped.begin(), [&](uint8_t index) { return alphas[index]; });
        }
        std::ranges::copy(mapped, pixels);
    }
    for (uint8_t& pixel : plane.subspan(i))
        pixel = alphas[pixel];
}

// The highest index of the colour among the entries that the file defines, -1 if there is none.
int KeyIndex_(const SBmpInfo_& info, uint16_t color565)
{
    int index = info.colorCount - 1;
    while (index >= 0 && info.palette[index] != color565)
        --index;
    return index;
}

} // namespace

SPic16X_* SPic16X_::LoadBmpAlpha_(
    const char* colorFileName, const char* alphaFileName, uint32_t trim, uint32_t* blockSize, SLoadFailure_* failure)
{
    SLoadFailure_ unasked;
    SLoadFailure_& why = failure ? *failure : unasked;
    why = {};
    SBmpInfo_ color;
    SBmpInfo_ alpha;
    if (!ReadEightBitInfo_(colorFileName, color, why) || !ReadCompanionInfo_(alphaFileName, color, alpha, why))
        return nullptr;
    CSpriteWork_ work(color);
    if (!work.IsReady_())
        return RefuseAsTooLarge_(why);
    if (!ReadPlane_(colorFileName, work.Indices_(), why))
        return nullptr;
    if (!ReadPlane_(alphaFileName, work.Alphas_(), why)) {
        why.inCompanion = true;
        return nullptr;
    }
    MapToAlphas_(work.Alphas_(), alpha.palette);
    if (trim == 1)
        work.Trim_();
    SPic16X_* result = work.Finish_(blockSize);
    return result ? result : RefuseAsTooLarge_(why);
}

SPic16X_* SPic16X_::LoadBmpKey_(const char* fileName, uint8_t keyRed, uint8_t keyGreen, uint8_t keyBlue, uint32_t trim,
    uint32_t* blockSize, uint16_t* left, uint16_t* top, SLoadFailure_* failure)
{
    SLoadFailure_ unasked;
    SLoadFailure_& why = failure ? *failure : unasked;
    why = {};
    SBmpInfo_ info;
    if (!ReadEightBitInfo_(fileName, info, why))
        return nullptr;
    CSpriteWork_ work(info);
    if (!work.IsReady_())
        return RefuseAsTooLarge_(why);
    if (!ReadPlane_(fileName, work.Indices_(), why))
        return nullptr;
    const int keyIndex = KeyIndex_(info, ToColor565_(keyRed, keyGreen, keyBlue));
    std::transform(work.Indices_().begin(), work.Indices_().end(), work.Alphas_().begin(),
        [keyIndex](uint8_t index) -> uint8_t { return index == keyIndex ? 0 : 255; });
    if (trim == 1)
        work.Trim_();
    SPic16X_* result = work.Finish_(blockSize);
    if (!result)
        return RefuseAsTooLarge_(why);
    const bool isPlaced = result->width > 0; // An invisible picture is trimmed to nothing, nowhere.
    if (isPlaced && left)
        *left = work.left;
    if (isPlaced && top)
        *top = work.top;
    return result;
}
