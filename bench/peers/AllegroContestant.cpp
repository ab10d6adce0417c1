#include "bench/peers/Contestant.h"

#define ALLEGRO_NO_MAGIC_MAIN // leaves main alone
#include <allegro.h>

namespace {

struct BitmapDeleter {
    void operator()(BITMAP* bitmap) const { destroy_bitmap(bitmap); }
};
using BitmapOwner = std::unique_ptr<BITMAP, BitmapDeleter>;

struct RunsDeleter {
    void operator()(RLE_SPRITE* runs) const { destroy_rle_sprite(runs); }
};
using RunsOwner = std::unique_ptr<RLE_SPRITE, RunsDeleter>;

template <class Pixel> Pixel* RowOf(const BITMAP& bitmap, int row)
{
    return reinterpret_cast<Pixel*>(bitmap.line[row]);
}

// Fills the bitmap with what `pixelAt` gives for each pixel, counted in row order.
template <class Pixel, class PixelAt> void Fill(const BITMAP& bitmap, PixelAt pixelAt)
{
    size_t pixel = 0;
    for (int row = 0; row < bitmap.h; ++row)
        for (int column = 0; column < bitmap.w; ++column)
            RowOf<Pixel>(bitmap, row)[column] = pixelAt(pixel++);
}

// The opaque pixels in 15 bits, the others of the mask colour, magenta.
BitmapOwner MakeOpaquePart(const Picture& picture)
{
    BitmapOwner bitmap(create_bitmap_ex(15, picture.width, picture.height));
    Fill<uint16_t>(*bitmap, [&](size_t pixel) {
        return picture.levels[pixel] == opaqueLevel ? picture.Color(pixel) : uint16_t { MASK_COLOR_15 };
    });
    return bitmap;
}

// The pixels of the rim with their alpha, the object alpha baked in, and the others of the mask colour. There are
// run-length sprites of 32 bits too, but on 64-bit machines they are broken.
BitmapOwner MakeRim(const Workload& workload)
{
    const Picture& picture = workload.picture;
    BitmapOwner bitmap(create_bitmap_ex(32, picture.width, picture.height));
    Fill<uint32_t>(*bitmap, [&](size_t pixel) {
        const uint8_t level = picture.levels[pixel];
        const uint16_t color = picture.Color(pixel);
        const int masked = MASK_COLOR_32;
        return static_cast<uint32_t>(level == 0 || level == opaqueLevel
                ? masked
                : makeacol32(EightBits(Red(color)), EightBits(Green(color)), EightBits(Blue(color)),
                    EightBits(workload.BakedLevel(pixel))));
    });
    return bitmap;
}

// A 15-bit frame. Rectangles are copied, shapes drawn as run-length sprites, and a rim on top as a bitmap with alpha.
class AllegroStage : public Stage {
public:
    explicit AllegroStage(const Workload& drawn)
        : workload(drawn)
        , frame(create_bitmap_ex(15, frameWidth, frameHeight))
        , rectangle(MakeOpaquePart(drawn.picture))
        , runs(get_rle_sprite(rectangle.get()))
        , rim(drawn.shape == Shape::SoftEdges ? MakeRim(drawn) : nullptr)
    {
    }
    void Paint(const Frame& scene) override
    {
        Fill<uint16_t>(*frame, [&](size_t pixel) { return scene[pixel]; });
    }
    void Draw() override
    {
        if (workload.half) {
            set_trans_blender(0, 0, 0, EightBits(halfLevel));
            draw_trans_rle_sprite(frame.get(), runs.get(), workload.left, workload.top);
        } else if (workload.shape == Shape::Opaque) {
            blit(rectangle.get(), frame.get(), 0, 0, workload.left, workload.top, rectangle->w, rectangle->h);
        } else {
            draw_rle_sprite(frame.get(), runs.get(), workload.left, workload.top);
        }
        if (rim) {
            set_alpha_blender();
            draw_trans_sprite(frame.get(), rim.get(), workload.left, workload.top);
        }
    }
    Frame Look() const override
    {
        Frame seen;
        for (int row = 0; row < frameHeight; ++row)
            seen.insert(seen.end(), RowOf<uint16_t>(*frame, row), RowOf<uint16_t>(*frame, row) + frameWidth);
        return seen;
    }

private:
    const Workload& workload;
    BitmapOwner frame;
    BitmapOwner rectangle;
    RunsOwner runs;
    BitmapOwner rim; // null without soft edges
};

// Drawing into memory needs no display. The layouts are what a display would choose otherwise: 15 bits as this
// library's 555, and in 32 bits red on top and alpha at the bottom. With alpha on top Allegro takes a quicker
// blender that loses a bit of one channel.
void StartAllegro()
{
    install_allegro(SYSTEM_NONE, &errno, nullptr);
    _rgb_r_shift_15 = 10;
    _rgb_g_shift_15 = 5;
    _rgb_b_shift_15 = 0;
    _rgb_r_shift_32 = 24;
    _rgb_g_shift_32 = 16;
    _rgb_b_shift_32 = 8;
    _rgb_a_shift_32 = 0;
}

} // namespace

Contestant AllegroContestant()
{
    StartAllegro();
    const std::string id = allegro_id; // goes on with the platform after a comma
    return { .name = id.substr(0, id.find(',')),
        .prepare = [](const Workload& workload) { return std::make_unique<AllegroStage>(workload); } };
}
