#include "gfx/Pic16.h"
#include "gfx/Pic16Key.h"
#include "gfx/Pic16Sprite.h"
#include "gfx/RowOps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

constexpr int canvasWidth = 320;
constexpr int canvasHeight = 24;

// What drawing is compared with: for every pixel of a picture its colour and level (0: transparent).
struct ModelPixel {
    int level;
    uint16_t color;
};

int Scaled(int value, int level)
{
    return (2 * value * level + 31) / 62;
}

uint16_t Blended(uint16_t source, uint16_t destination, int level)
{
    int result = 0;
    for (const int shift : { 0, 5, 10 })
        result |= (Scaled(source >> shift & 31, level) + Scaled(destination >> shift & 31, 31 - level)) << shift;
    return static_cast<uint16_t>(result);
}

class Drawing : public testing::Test {
protected:
    int Random(int lowest, int highest) { return std::uniform_int_distribution(lowest, highest)(random); }
    uint16_t RandomColor() { return static_cast<uint16_t>(Random(0, 0x7FFF)); }

    void MakePicture(uint16_t width, uint16_t height)
    {
        model.clear();
        if (const int kind = Random(0, 3); kind == 0) {
            FillPixels(SPic16_::New_(width, height), -1);
        } else if (kind == 1) {
            SPic16Key_* keyed = SPic16Key_::New_(width, height);
            FillPixels(keyed, keyed->key = RandomColor());
        } else {
            FillSprite(SPic16Sprite_::New_(width, height));
        }
        if (Random(0, 20) == 0) { // a kind that nothing is drawn of
            picture->kind = static_cast<uint16_t>(Random(0, 1) * Random(8, 20));
            model.assign(model.size(), { 0, 0 });
        }
    }
    template <class Picture> void FillPixels(Picture* pixels, int key)
    {
        picture.reset(pixels);
        for (size_t i = 0; i < pixels->PixelCount_(); ++i) {
            const uint16_t color = key >= 0 && Random(0, 2) == 0 ? static_cast<uint16_t>(key) : RandomColor();
            pixels->Pixels_()[i] = color;
            model.push_back({ color == key ? 0 : 31, color });
        }
    }
    // All four run types, of any length.
    void FillSprite(SPic16Sprite_* sprite)
    {
        picture.reset(sprite);
        sprite->keyIndex = static_cast<uint8_t>(Random(0, 255));
        for (uint16_t& color : sprite->palette)
            color = RandomColor();
        uint8_t* out = sprite->Stream_();
        int type = 0;
        for (int left = sprite->width * sprite->height; left > 0;) {
            type = Random(0, 2) == 0 ? type : Random(0, 3);
            const int count = std::min({ left, 64, Random(0, 2) == 0 ? 3 : Random(1, 150) });
            left -= count;
            *out++ = static_cast<uint8_t>(type << 6 | (count - 1));
            for (int i = 0; i < count; ++i) {
                const int index = Random(0, 3) == 0 ? sprite->keyIndex : Random(0, 255);
                int level = type == 0 || (type == 3 && index == sprite->keyIndex) ? 0 : 31;
                if (type != 0)
                    *out++ = static_cast<uint8_t>(index);
                if (type == 2)
                    *out++ = static_cast<uint8_t>(level = Random(0, 31));
                model.push_back({ level, sprite->palette[index] });
            }
        }
    }

    // Draws a random rectangle somewhere and compares all of the canvas with the model's.
    void DrawAnywhere()
    {
        const int width = picture->width, height = picture->height;
        const int w = Random(1, width), h = Random(1, height);
        const int sourceX = Random(0, width - w), sourceY = Random(0, height - h);
        const int x = Random(0, canvasWidth - w), y = Random(0, canvasHeight - h);
        const int alpha = Random(0, 2) == 0 ? Random(240, 255) : Random(0, 255);
        const int flags = Random(0, 3);
        const bool bottomUp = Random(0, 3) == 0; // the buffer's row 0 is the canvas's last one
        const auto rowOf = [&](int canvasY) { return (bottomUp ? canvasHeight - 1 - canvasY : canvasY) * canvasWidth; };
        SPic16X_::Draw_(picture.get(), canvas.data() + rowOf(0), bottomUp ? -2 * canvasWidth : 2 * canvasWidth, x, y,
            sourceX, sourceY, w, h, static_cast<uint8_t>(alpha), static_cast<uint8_t>(flags));
        for (int j = 0; j < h; ++j)
            for (int i = 0; i < w; ++i) {
                const int column = (flags & 1) != 0 ? width - 1 - sourceX - i : sourceX + i;
                const int row = (flags & 2) != 0 ? height - 1 - sourceY - j : sourceY + j;
                const ModelPixel source = model[static_cast<size_t>(row * width + column)];
                uint16_t& target = expected[static_cast<size_t>(rowOf(y + j) + x + i)];
                target = Blended(source.color, target, Scaled(source.level, alpha >> 3));
            }
        ASSERT_EQ(canvas, expected) << "kind " << picture->kind << " alpha " << alpha << " flags " << flags;
    }

    std::mt19937 random { 20 };
    SPicOwner_ picture;
    std::vector<ModelPixel> model;
    std::vector<uint16_t> canvas = std::vector<uint16_t>(canvasWidth * canvasHeight);
    std::vector<uint16_t> expected = canvas;
};

TEST_F(Drawing, AgreesWithThePixelModelInEverySetOfRowOperations)
{
    const SRowOps_* best = SRowOps_::used;
    for (int i = 0; i < 3000 && !HasFatalFailure(); ++i) {
        MakePicture(static_cast<uint16_t>(Random(1, i % 20 == 0 ? 300 : 24)), static_cast<uint16_t>(Random(1, 16)));
        for (const SRowOps_* set : SRowOps_::Available_()) {
            SCOPED_TRACE(set->name);
            SRowOps_::used = set;
            DrawAnywhere();
        }
    }
    SRowOps_::used = best;
}

} // namespace
