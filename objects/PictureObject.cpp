#include "objects/PictureObject.h"

#include "gfx/FileR.h"
#include "objects/CanvasDrawing.h"

#include <new>

namespace {

constexpr const char* pictureExtension = ".bmp";
// Only fully opaque pixels count as hit.
constexpr uint8_t maskThreshold = 31;
constexpr struct {
    uint8_t red, green, blue;
} transparentColor { 0, 255, 0 }; // of pictures without a companion

} // namespace

bool PictureObject::Load()
{
    if (!LoadPicture())
        return false;
    size = { SPic16X_::Width_(GetPicture()), SPic16X_::Height_(GetPicture()) };
    view = size;
    return BuildMask();
}

std::string PictureObject::CompanionOf(const std::string& fileName)
{
    const size_t extension = fileName.find(pictureExtension);
    return extension == std::string::npos ? std::string() : std::string(fileName).insert(extension, 1, 'a');
}

bool PictureObject::LoadPicture()
{
    const std::string companion = CompanionOf(fileName);
    if (companion.empty()) {
        loaded->failure = { .problem = LoadProblem::NameWithoutBmp };
        return false;
    }
    loaded->picture.reset();
    loaded->mask.reset();

    uint32_t* const bytes = &loaded->pictureBytes;
    SLoadFailure_* const failure = &loaded->failure;
    SPicOwner_ picture(CFileR_().Open_(companion.c_str())
            ? SPic16X_::LoadBmpAlpha_(fileName.c_str(), companion.c_str(), 0, bytes, failure)
            : SPic16X_::LoadBmpKey_(fileName.c_str(), transparentColor.red, transparentColor.green,
                transparentColor.blue, 0, bytes, nullptr, nullptr, failure));
    if (!picture || loaded->pictureBytes == 0)
        return false;
    SPic16X_::ConvertTo555_(picture.get());
    loaded->picture = std::move(picture);
    return true;
}

bool PictureObject::BuildMask()
{
    loaded->maskBytes = SPic16X_::MaskSize_(GetPicture());
    loaded->mask.reset(new (std::nothrow) uint8_t[loaded->maskBytes]);
    if (loaded->mask && SPic16X_::MakeMask_(GetPicture(), loaded->mask.get(), maskThreshold) != 0)
        return true;
    loaded->picture.reset();
    loaded->mask.reset();
    loaded->failure = { .problem = LoadProblem::TooLarge };
    return false;
}

bool PictureObject::Draw(uint16_t* dest, int32_t pitch)
{
    return DrawOnCanvas(GetPicture(), dest, pitch, pos, src, view, alpha);
}

bool PictureObject::HandleMessage(ObjectMessage, uint32_t, uint32_t)
{
    return false;
}

bool PictureObject::HitTest(vec point, vec screen)
{
    // A full-screen backdrop cannot be picked.
    if (!IsLoaded() || (boundaryCheck && size == screen))
        return false;
    return CoversPoint(pos, view, point);
}

bool PictureObject::PixelHit(vec point)
{
    if (!IsLoaded() || point.x < 0 || point.y < 0)
        return false;
    const int64_t localX = int64_t { point.x } - pos.x;
    const int64_t localY = int64_t { point.y } - pos.y;
    if (localX < 0 || localX >= view.x || localY < 0 || localY >= view.y)
        return false;
    const int64_t x = src.x + localX;
    const int64_t y = src.y + localY;
    const uint16_t width = SPic16X_::Width_(GetPicture());
    if (x < 0 || x >= width || y < 0 || y >= SPic16X_::Height_(GetPicture()))
        return false;
    return SPic16X_::MaskBit_(GetMask(), width, static_cast<uint16_t>(x), static_cast<uint16_t>(y));
}

void PictureObject::Reset()
{
    *this = PictureObject();
}
