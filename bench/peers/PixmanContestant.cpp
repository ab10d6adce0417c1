#include "bench/peers/Contestant.h"

#include <pixman.h>

#include <memory>
#include <string>
#include <vector>

namespace {

struct ImageDeleter {
    void operator()(pixman_image_t* image) const { pixman_image_unref(image); }
};
using ImageOwner = std::unique_ptr<pixman_image_t, ImageDeleter>;

ImageOwner NewImage(int width, int height, pixman_format_code_t format)
{
    return ImageOwner(pixman_image_create_bits(format, width, height, nullptr, 0));
}

template <class Pixel> Pixel* RowOf(const ImageOwner& image, int row)
{
    return reinterpret_cast<Pixel*>(reinterpret_cast<char*>(pixman_image_get_data(image.get()))
        + ptrdiff_t { row } * pixman_image_get_stride(image.get()));
}

// Fills the image with what `pixelAt` gives for each pixel, counted in row order.
template <class Pixel, class PixelAt> void Fill(const ImageOwner& image, PixelAt pixelAt)
{
    size_t pixel = 0;
    for (int row = 0; row < pixman_image_get_height(image.get()); ++row)
        for (int column = 0; column < pixman_image_get_width(image.get()); ++column)
            RowOf<Pixel>(image, row)[column] = pixelAt(pixel++);
}

// Green's highest bit is repeated as its sixth, so that full green stays full.
uint16_t To565(uint16_t color)
{
    return static_cast<uint16_t>((color & 0x7FE0) << 1 | (color >> 4 & 0x20) | (color & 31));
}

uint16_t From565(uint16_t color)
{
    return static_cast<uint16_t>((color >> 1 & 0x7FE0) | (color & 31));
}

ImageOwner MakePlainImage(const Picture& picture)
{
    ImageOwner image = NewImage(picture.width, picture.height, PIXMAN_r5g6b5);
    Fill<uint16_t>(image, [&](size_t pixel) { return To565(picture.Color(pixel)); });
    return image;
}

// The colours with their alpha, the object alpha baked in and multiplied into the channels as pixman wants it.
ImageOwner MakeAlphaImage(const Workload& workload)
{
    ImageOwner image = NewImage(workload.picture.width, workload.picture.height, PIXMAN_a8r8g8b8);
    Fill<uint32_t>(image, [&](size_t pixel) {
        const uint32_t alpha = EightBits(workload.BakedLevel(pixel));
        const auto premultiplied = [&](int channel) { return (EightBits(channel) * alpha + 127) / 255; };
        const uint16_t color = workload.picture.Color(pixel);
        return alpha << 24 | premultiplied(Red(color)) << 16 | premultiplied(Green(color)) << 8
            | premultiplied(Blue(color));
    });
    return image;
}

// Keeps pixman to the pixels with these levels; the boxes of a region are to pixman what runs are to others.
void ClipToLevels(const ImageOwner& image, const Picture& picture, uint8_t lowest, uint8_t highest)
{
    std::vector<pixman_box32_t> boxes;
    for (int row = 0; row < picture.height; ++row) {
        const uint8_t* levels = &picture.levels[PixelIndex(0, row, picture.width)];
        const auto wanted = [&](int column) { return levels[column] >= lowest && levels[column] <= highest; };
        for (int left = 0; left < picture.width; ++left) {
            int right = left;
            while (right < picture.width && wanted(right))
                ++right;
            if (right > left)
                boxes.push_back({ left, row, right, row + 1 });
            left = right;
        }
    }
    pixman_region32_t region;
    pixman_region32_init_rects(&region, boxes.data(), static_cast<int>(boxes.size()));
    pixman_image_set_clip_region32(image.get(), &region);
    pixman_region32_fini(&region);
    // Without these two the clip of a source has no effect.
    pixman_image_set_source_clipping(image.get(), 1);
    pixman_image_set_has_client_clip(image.get(), 1);
}

// A 565 frame, since pixman has fast paths of OVER for it and for 555 none. Opaque pixels are copied, the others drawn
// over the frame: one call for each of the two kinds that there is.
class PixmanStage : public Stage {
public:
    explicit PixmanStage(const Workload& drawn)
        : workload(drawn)
        , frame(NewImage(frameWidth, frameHeight, PIXMAN_r5g6b5))
    {
        if (!workload.half) {
            copied = MakePlainImage(workload.picture);
            ClipToLevels(copied, workload.picture, opaqueLevel, opaqueLevel);
        }
        if (workload.half || workload.shape == Shape::SoftEdges) {
            blended = MakeAlphaImage(workload);
            ClipToLevels(blended, workload.picture, 1, workload.half ? opaqueLevel : opaqueLevel - 1);
        }
    }
    void Paint(const Frame& scene) override
    {
        Fill<uint16_t>(frame, [&](size_t pixel) { return To565(scene[pixel]); });
    }
    void Draw() override
    {
        if (copied)
            Composite(PIXMAN_OP_SRC, copied);
        if (blended)
            Composite(PIXMAN_OP_OVER, blended);
    }
    Frame Look() const override
    {
        Frame seen;
        for (int row = 0; row < frameHeight; ++row)
            for (int column = 0; column < frameWidth; ++column)
                seen.push_back(From565(RowOf<uint16_t>(frame, row)[column]));
        return seen;
    }

private:
    void Composite(pixman_op_t operation, const ImageOwner& sprite)
    {
        pixman_image_composite32(operation, sprite.get(), nullptr, frame.get(), 0, 0, 0, 0, workload.left, workload.top,
            workload.picture.width, workload.picture.height);
    }

    const Workload& workload;
    ImageOwner frame;
    ImageOwner copied; // null where no pixel is opaque
    ImageOwner blended; // null where every pixel is opaque or transparent
};

} // namespace

Contestant PixmanContestant()
{
    return { .name = std::string("pixman ") + pixman_version_string(),
        .prepare = [](const Workload& workload) { return std::make_unique<PixmanStage>(workload); } };
}
