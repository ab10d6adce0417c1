#pragma once

#include "gfx/LoadFailure.h"
#include "gfx/Pic16X.h"
#include "objects/Loaded.h"
#include "objects/ScreenObject.h"

#include <cstdint>
#include <memory>
#include <string>

// How a picture was made. Changes nothing in drawing or hit testing.
enum PictureMode : int32_t { ModeStatic = 0, ModeMoving = 2, ModeButton = 3, ModeAnimation = 4 };

// A picture from a BMP file; also the base of buttons, animations and words, and the class of backgrounds.
class PictureObject : public ScreenObject {
public:
    // The path of the colour BMP; a relative one is resolved from the current folder. Loads nothing.
    void SetFileName(const std::string& name) { fileName = name; }
    const std::string& GetFileName() const { return fileName; }
    void SetMode(PictureMode newMode) { mode = newMode; }
    PictureMode GetMode() const { return mode; }

    // Loads the picture, with its alpha companion ("a" before ".bmp") where there is one, else with pure green as
    // transparent, and builds the hit mask. `size` and `view` become the picture's; `pos` and `src` stay. False leaves
    // the object without a picture, except that a name without ".bmp" changes nothing at all.
    [[nodiscard]] virtual bool Load();

    bool Draw(uint16_t* dest, int32_t pitch) override;
    bool HandleMessage(ObjectMessage msg, uint32_t wParam, uint32_t lParam) override;
    bool HitTest(vec point, vec screen) override;
    bool PixelHit(vec point) override;
    void Reset() override;

    // Why the last Load (of a word: SetText) answered false.
    const SLoadFailure_& GetLoadFailure() const { return loaded->failure; }
    // The alpha file that belongs to a picture: "a" before the first ".bmp". Empty for a name without ".bmp".
    static std::string CompanionOf(const std::string& fileName);

    // Null while nothing is loaded; the object keeps owning both, until it is loaded anew or reset. The mask is as
    // SPic16X_::MakeMask_ fills it. Sizes are in bytes, and those of the last picture that there was.
    const SPic16X_* GetPicture() const { return loaded->picture.get(); }
    const uint8_t* GetMask() const { return loaded->mask.get(); }
    uint32_t GetPictureBytes() const { return loaded->pictureBytes; }
    uint32_t GetMaskBytes() const { return loaded->maskBytes; }

protected:
    struct LoadedPicture {
        SPicOwner_ picture;
        uint32_t pictureBytes = 0; // as the BMP loader reports it
        std::unique_ptr<uint8_t[]> mask; // one bit a pixel, rows padded to bytes
        uint32_t maskBytes = 0;
        SLoadFailure_ failure;
    };

    // The first half of Load: reads the file and converts it to 555. False leaves the object as Load says; the mask is
    // gone with the old picture.
    bool LoadPicture();
    // The last step of Load. False releases picture and mask.
    bool BuildMask();
    bool IsLoaded() const { return loaded->picture && loaded->mask; }

    std::string fileName;
    Loaded<LoadedPicture> loaded;
    PictureMode mode = ModeStatic;
};
