#include "bench/peers/Contestant.h"

#include <SDL.h>

#include <utility>

namespace {

struct SurfaceDeleter {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using SurfaceOwner = std::unique_ptr<SDL_Surface, SurfaceDeleter>;

constexpr uint16_t key = 0x7C1F;

SurfaceOwner NewSurface(int width, int height, SDL_PixelFormatEnum format)
{
    return SurfaceOwner(SDL_CreateRGBSurfaceWithFormat(0, width, height, SDL_BITSPERPIXEL(format), format));
}

template <class Pixel> Pixel* RowOf(const SDL_Surface& surface, int row)
{
    return reinterpret_cast<Pixel*>(static_cast<char*>(surface.pixels) + ptrdiff_t { row } * surface.pitch);
}

// Fills the surface with what `pixelAt` gives for each pixel, counted in row order.
template <class Pixel, class PixelAt> void Fill(const SDL_Surface& surface, PixelAt pixelAt)
{
    size_t pixel = 0;
    for (int row = 0; row < surface.h; ++row)
        for (int column = 0; column < surface.w; ++column)
            RowOf<Pixel>(surface, row)[column] = pixelAt(pixel++);
}

// The colours in 555. A keyed shape has magenta for transparent pixels and is drawn by runs; object alpha can stay with
// SDL, which has a quick path for it as long as there is no key.
SurfaceOwner MakePlainSprite(const Workload& workload)
{
    const Picture& picture = workload.picture;
    SurfaceOwner sprite = NewSurface(picture.width, picture.height, SDL_PIXELFORMAT_RGB555);
    Fill<uint16_t>(*sprite, [&](size_t pixel) { return picture.levels[pixel] == 0 ? key : picture.Color(pixel); });
    SDL_SetSurfaceBlendMode(sprite.get(), workload.half ? SDL_BLENDMODE_BLEND : SDL_BLENDMODE_NONE);
    if (workload.half)
        SDL_SetSurfaceAlphaMod(sprite.get(), EightBits(halfLevel));
    if (workload.shape == Shape::Keyed) {
        SDL_SetColorKey(sprite.get(), SDL_TRUE, key);
        SDL_SetSurfaceRLE(sprite.get(), 1);
    }
    return sprite;
}

// The colours with their alpha, drawn by runs. The object alpha is baked in: SDL makes no runs of a surface that has
// both.
SurfaceOwner MakeAlphaSprite(const Workload& workload)
{
    const Picture& picture = workload.picture;
    SurfaceOwner sprite = NewSurface(picture.width, picture.height, SDL_PIXELFORMAT_ARGB8888);
    Fill<uint32_t>(*sprite, [&](size_t pixel) {
        const uint16_t color = picture.Color(pixel);
        return static_cast<uint32_t>(EightBits(workload.BakedLevel(pixel)) << 24 | EightBits(Red(color)) << 16
            | EightBits(Green(color)) << 8 | EightBits(Blue(color)));
    });
    SDL_SetSurfaceBlendMode(sprite.get(), SDL_BLENDMODE_BLEND);
    SDL_SetSurfaceRLE(sprite.get(), 1);
    return sprite;
}

SurfaceOwner MakeSprite(const Workload& workload)
{
    const bool plain = workload.shape == Shape::Opaque || (workload.shape == Shape::Keyed && !workload.half);
    return plain ? MakePlainSprite(workload) : MakeAlphaSprite(workload);
}

class SdlStage : public Stage {
public:
    explicit SdlStage(const Workload& workload)
        : place { workload.left, workload.top, workload.picture.width, workload.picture.height }
        , sprite(MakeSprite(workload))
        , frame(NewSurface(frameWidth, frameHeight, SDL_PIXELFORMAT_RGB555))
    {
    }
    void Paint(const Frame& scene) override
    {
        Fill<uint16_t>(*frame, [&](size_t pixel) { return scene[pixel]; });
    }
    void Draw() override
    {
        SDL_Rect where = place; // the call writes to it
        SDL_BlitSurface(sprite.get(), nullptr, frame.get(), &where);
    }
    Frame Look() const override
    {
        Frame seen;
        for (int row = 0; row < frameHeight; ++row)
            seen.insert(seen.end(), RowOf<uint16_t>(*frame, row), RowOf<uint16_t>(*frame, row) + frameWidth);
        return seen;
    }
    // SDL makes the runs at the first drawing, and without a word makes none where it cannot.
    bool DrawsAsWished()
    {
        Draw();
        return !SDL_HasSurfaceRLE(sprite.get()) || (sprite->flags & SDL_RLEACCEL) != 0;
    }

private:
    SDL_Rect place;
    SurfaceOwner sprite;
    SurfaceOwner frame;
};

} // namespace

Contestant SdlContestant()
{
    SDL_version version {};
    SDL_GetVersion(&version);
    return { .name = "SDL " + std::to_string(version.major) + '.' + std::to_string(version.minor) + '.'
            + std::to_string(version.patch),
        .prepare = [](const Workload& workload) -> std::unique_ptr<Stage> {
            auto stage = std::make_unique<SdlStage>(workload);
            return stage->DrawsAsWished() ? std::move(stage) : nullptr;
        } };
}
