#include "bench/peers/Contestant.h"
#include "gfx/Pic16Sprite.h"
#include "gfx/RowOps.h"

#include <algorithm>

namespace {

SPicOwner_ MakeSprite(const Picture& picture)
{
    SPic16Sprite_* sprite
        = SPic16Sprite_::New_(static_cast<uint16_t>(picture.width), static_cast<uint16_t>(picture.height));
    sprite->keyIndex = 0;
    std::ranges::copy(picture.palette, sprite->palette);
    std::vector<uint8_t> alphas;
    for (const uint8_t level : picture.levels)
        alphas.push_back(static_cast<uint8_t>(level << 3));
    SPic16Sprite_::Encode_(sprite->Stream_(), picture.indices.data(), sprite->width, sprite->height, alphas.data());
    return SPicOwner_(sprite);
}

// A 555 frame and a run-length sprite with palette indices; the object alpha comes with the call.
class OwnStage : public Stage {
public:
    OwnStage(const SRowOps_* usedRowOps, const Workload& drawn)
        : rowOps(usedRowOps)
        , workload(drawn)
        , sprite(MakeSprite(drawn.picture))
    {
    }
    void Paint(const Frame& scene) override { frame = scene; }
    void Draw() override
    {
        SRowOps_::used = rowOps;
        SPic16X_::Draw_(sprite.get(), frame.data(), 2 * frameWidth, workload.left, workload.top, 0, 0, sprite->width,
            sprite->height, workload.half ? halfAlpha : 255, 0);
    }
    Frame Look() const override { return frame; }

private:
    const SRowOps_* rowOps;
    const Workload& workload;
    SPicOwner_ sprite;
    Frame frame;
};

} // namespace

std::vector<Contestant> OwnContestants()
{
    std::vector<Contestant> contestants;
    for (const SRowOps_* rowOps : SRowOps_::Available_())
        contestants.push_back({ .name = std::string("this library, ") + rowOps->name,
            .prepare = [rowOps](const Workload& workload) { return std::make_unique<OwnStage>(rowOps, workload); } });
    return contestants;
}
