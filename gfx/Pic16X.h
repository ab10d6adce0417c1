#pragma once

#include <cstdint>
#include <memory>

namespace platform {
struct Font;
}
struct SLoadFailure_;

// Kind codes. The other codes below 15 are reserved: no operation makes such a picture, and each treats it as empty.
enum PicKind : uint16_t { PicEmpty = 0, PicPlain = 1, PicKeyed = 2, PicSprite = 7, PicKindCount = 15 };

// A picture: one heap block that starts with this header and goes on as its kind says (SPic16_, SPic16Key_,
// SPic16Sprite_). Whoever created a picture releases it with Delete_.
//
// Colours: 565 has red in bits 15 to 11, green in 10 to 5, blue in 4 to 0; 555 has bit 15 zero, red in 14 to 10, green
// in 9 to 5, blue in 4 to 0. They are the two layouts that the window system documents for 16-bit device-independent
// bitmaps. Loaders make 565 pictures; everything is drawn in 555.
struct SPic16X_ {
    uint16_t kind;
    uint16_t width;
    uint16_t height;

    // What depends on the kind, down to Draw_, is carried out in gfx/PicOps.cpp.
    //
    // In pixels; 0 for null and for empty kinds.
    static uint16_t Width_(const SPic16X_* picture);
    static uint16_t Height_(const SPic16X_* picture);

    // Converts the colours from 565 to 555 in place. The picture must not be null. A loaded one needs it exactly once,
    // before it is drawn: a second time would shift its channels once more. A text picture is 555 from the start.
    static void ConvertTo555_(SPic16X_* picture);
    // Draws the w by h rectangle at (sourceX, sourceY) of the picture, as it looks after mirroring (flags bit 0) and
    // flipping (bit 1), at (destinationX, destinationY) of a 555 buffer whose rows are `pitch` bytes apart. Alpha 0 to
    // 7 draws nothing, 248 to 255 is opaque. Clips nothing: the picture must not be null and both rectangles must lie
    // inside. A w or h below 1 draws nothing.
    static void Draw_(const SPic16X_* picture, uint16_t* destination, int32_t pitch, int32_t destinationX,
        int32_t destinationY, int32_t sourceX, int32_t sourceY, int32_t w, int32_t h, uint8_t alpha, uint8_t flags);

    static void Delete_(SPic16X_* picture); // ignores null

    // The 555 colour of 0x00BBGGRR, and the way back (channels become multiples of 8).
    static uint16_t Color16_(uint32_t value);
    static uint32_t ColorValue_(uint16_t color555);

    // Loads an uncompressed 8-bit BMP as a 565 sprite (gfx/BmpLoading.cpp); null on any failure, with nothing left open
    // or allocated. File names are backslash paths in code page 950. The out pointers may be null and are written only
    // on success, but for `failure`, which is None then; the size is that of the returned block in bytes. `trim` 1 cuts
    // the picture to its visible pixels.
    //
    // The alpha file must have the same dimensions; the blue of its palette colours is the opacity.
    static SPic16X_* LoadBmpAlpha_(const char* colorFileName, const char* alphaFileName, uint32_t trim,
        uint32_t* blockSize, SLoadFailure_* failure = nullptr);
    // One palette colour, compared after reduction to 16 bits, is transparent. `left` and `top` are the columns and
    // rows that were cut off before the first one kept, 0 without trimming; they stay unwritten when nothing is left.
    static SPic16X_* LoadBmpKey_(const char* fileName, uint8_t keyRed, uint8_t keyGreen, uint8_t keyBlue, uint32_t trim,
        uint32_t* blockSize, uint16_t* left, uint16_t* top, SLoadFailure_* failure = nullptr);

    // The hit mask of a sprite (gfx/HitMask.cpp): one bit a pixel, least significant first, rows padded to whole bytes,
    // set where the pixel's level is at least `threshold` (0 to 31; opaque pixels have 31).
    //
    // In bytes. The picture must not be null, here and in MakeMask_.
    static uint32_t MaskSize_(const SPic16X_* picture);
    // Fills the caller's MaskSize_ bytes, whatever they held. The picture must be a sprite. Always 1.
    static uint32_t MakeMask_(const SPic16X_* sprite, uint8_t* mask, uint8_t threshold);
    // Whether the bit of a pixel is set. `mask` is one that MakeMask_ has filled, `width` that of its sprite in pixels;
    // x and y must lie inside the sprite.
    static bool MaskBit_(const uint8_t* mask, uint16_t width, uint16_t x, uint16_t y);

    // Renders one line of text (gfx/TextPicture.cpp; code page 950) with the font (null: the device's default) in a 555
    // colour on a 555 background. `keyed` not 0: a kind-2 picture whose key is the background, else a kind-1 picture.
    // `spacing` extra pixels follow every character. The width is rounded up to a multiple of 4. Null on any failure,
    // empty text included.
    static SPic16X_* NewText_(
        const char* text, platform::Font* font, uint16_t color, uint16_t background, uint32_t keyed, int32_t spacing);
};

struct SPicDeleter_ {
    void operator()(SPic16X_* picture) const { SPic16X_::Delete_(picture); }
};
using SPicOwner_ = std::unique_ptr<SPic16X_, SPicDeleter_>;
