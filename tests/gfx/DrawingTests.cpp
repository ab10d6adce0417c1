#include "gfx/Pic16.h"
#include "gfx/Pic16Key.h"
#include "gfx/Pic16Sprite.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

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
        const int kind = Random(0, 3);
        if (kind == 0) {
            SPic16_* plain = SPic16_::New_(width, height);
            picture.reset(plain);
            FillPixels(plain->Pixels_(), plain->PixelCount_(), -1);
        } else if (kind == 1) {
            SPic16Key_* keyed = SPic16Key_::New_(width, height);
            picture.reset(keyed);
            keyed->key = RandomColor();
            FillPixels(keyed->Pixels_(), keyed->PixelCount_(), keyed->key);
        } else {
            SPic16Sprite_* sprite = SPic16Sprite_::New_(width, height);
            picture.reset(sprite);
            FillSprite(*sprite);
        }
    }
    void FillPixels(uint16_t* pixels, size_t count, int key)
    {
        for (size_t i = 0; i < count; ++i) {
            pixels[i] = key >= 0 && Random(0, 2) == 0 ? static_cast<uint16_t>(key) : RandomColor();
            model.push_back({ pixels[i] == key ? 0 : 31, pixels[i] });
        }
    }
    // All four run types, of any length.
    void FillSprite(SPic16Sprite_& sprite)
    {
        sprite.keyIndex = static_cast<uint8_t>(Random(0, 255));
        for (uint16_t& color : sprite.palette)
            color = RandomColor();
        uint8_t* out = sprite.Stream_();
        for (int left = sprite.width * sprite.height; left > 0;) {
            const int type = Random(0, 3);
            const int count = std::min({ left, 64, Random(0, 1) == 0 ? 3 : Random(1, 100) });
            left -= count;
            *out++ = static_cast<uint8_t>(type << 6 | (count - 1));
            for (int i = 0; i < count; ++i) {
                const int index = Random(0, 3) == 0 ? sprite.keyIndex : Random(0, 255);
                int level = type == 0 || (type == 3 && index == sprite.keyIndex) ? 0 : 31;
                if (type != 0)
                    *out++ = static_cast<uint8_t>(index);
                if (type == 2)
                    *out++ = static_cast<uint8_t>(level = Random(0, 31));
                model.push_back({ level, sprite.palette[index] });
            }
        }
    }

    // Draws a random rectangle on a canvas with room around it and compares all of the canvas with the model's.
    void DrawAnywhere()
    {
        const int width = picture->width, height = picture->height;
        const int w = Random(1, width), h = Random(1, height);
        const int sourceX = Random(0, width - w), sourceY = Random(0, height - h);
        const int x = Random(1, 6), y = Random(1, 6);
        const int rowPixels = x + w + Random(1, 6), rows = y + h + 2;
        const int alpha = Random(0, 2) == 0 ? Random(240, 255) : Random(0, 255);
        const int flags = Random(0, 3);
        const bool upsideDown = Random(0, 3) == 0; // rows from the bottom: a negative pitch
        SCOPED_TRACE(testing::Message() << "kind " << picture->kind << " alpha " << alpha << " flags " << flags
                                        << " at " << sourceX << ", " << sourceY << " size " << w << " x " << h);
        std::vector<uint16_t> canvas(static_cast<size_t>(rowPixels * rows));
        for (uint16_t& pixel : canvas)
            pixel = RandomColor();
        std::vector<uint16_t> expected = canvas;
        for (int j = 0; j < h; ++j)
            for (int i = 0; i < w; ++i) {
                const int column = (flags & 1) != 0 ? width - 1 - sourceX - i : sourceX + i;
                const int row = (flags & 2) != 0 ? height - 1 - sourceY - j : sourceY + j;
                const int canvasRow = upsideDown ? rows - 1 - y - j : y + j;
                const ModelPixel source = model[static_cast<size_t>(row * width + column)];
                uint16_t& target = expected[static_cast<size_t>(canvasRow * rowPixels + x + i)];
                target = Blended(source.color, target, Scaled(source.level, alpha >> 3));
            }
        uint16_t* origin = canvas.data() + (upsideDown ? rowPixels * (rows - 1) : 0);
        SPic16X_::Draw_(picture.get(), origin, (upsideDown ? -2 : 2) * rowPixels, x, y, sourceX, sourceY, w, h,
            static_cast<uint8_t>(alpha), static_cast<uint8_t>(flags));
        ASSERT_EQ(canvas, expected);
    }

    std::mt19937 random { 20 };
    SPicOwner_ picture;
    std::vector<ModelPixel> model;
};

TEST_F(Drawing, AgreesWithThePixelModel)
{
    for (int i = 0; i < 3000 && !HasFatalFailure(); ++i) {
        MakePicture(static_cast<uint16_t>(Random(1, i % 50 == 0 ? 300 : 24)), static_cast<uint16_t>(Random(1, 16)));
        DrawAnywhere();
    }
}

} // namespace
