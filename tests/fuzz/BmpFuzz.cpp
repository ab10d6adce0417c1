#include "gfx/Pic16X.h"
#include "objects/CanvasDrawing.h"
#include "objects/ScreenObject.h"
#include "tests/fuzz/FuzzTargets.h"
#include "tests/support/TemporaryFolder.h"

#include <string>
#include <vector>

namespace {

void DrawPicture(SPicOwner_ picture)
{
    if (!picture)
        return;
    SPic16X_::ConvertTo555_(picture.get());
    std::vector<uint8_t> mask(SPic16X_::MaskSize_(picture.get()));
    SPic16X_::MakeMask_(picture.get(), mask.data(), 31);
    std::vector<uint16_t> canvas(size_t { ScreenWidth } * ScreenHeight);
    const vec size { picture->width, picture->height };
    for (const uint32_t alpha : { 255U, 100U })
        DrawOnCanvas(picture.get(), canvas.data(), 2 * ScreenWidth, { 3, 5 }, { 1, 0 }, size, alpha);
}

} // namespace

// The bytes are the picture and its companion at once.
void FuzzBmp(std::string_view bytes)
{
    const TemporaryFolder folder;
    folder.Write("a.bmp", std::string(bytes));
    for (const uint32_t trim : { 0U, 1U }) {
        DrawPicture(SPicOwner_(SPic16X_::LoadBmpKey_("a.bmp", 0, 255, 0, trim, nullptr, nullptr, nullptr)));
        DrawPicture(SPicOwner_(SPic16X_::LoadBmpAlpha_("a.bmp", "a.bmp", trim, nullptr)));
    }
}
