#pragma once

#include "objects/ScreenObject.h"
#include "platform/Types.h"
#include "platform/headless/HeadlessDesktop.h"
#include "tests/support/BmpFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

// Where an object under test lives: a clock, a current folder of its own for pictures, and a canvas to be drawn on.
class ObjectTest : public testing::Test {
protected:
    static constexpr uint16_t untouched = 0x7C1F;
    static constexpr uint16_t blue = 0x001F; // of the letters

    ObjectTest()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "objectsXXXXXX").string();
        std::filesystem::current_path(mkdtemp(pattern.data()));
    }
    ~ObjectTest() override
    {
        const auto folder = std::filesystem::current_path();
        std::filesystem::current_path(before);
        std::filesystem::remove_all(folder);
    }

    // A picture in equal sections, each in a colour of its own.
    static void WriteStrip(const std::string& name, vec size, int32_t sections, bool stacked)
    {
        BmpFile file(size.x, size.y);
        for (int32_t i = 0; i < size.x * size.y; ++i)
            file.At(i % size.x, i / size.x)
                = static_cast<uint8_t>(stacked ? i / size.x * sections / size.y : i % size.x * sections / size.x);
        for (uint32_t section = 0; section < 31; ++section)
            file.palette[section] = (section + 1) << 19;
        file.Write(name);
    }
    static constexpr uint16_t SectionColor(int section) { return static_cast<uint16_t>((section + 1) << 10); }

    // A message's second word with the pointer there.
    static uint32_t Pointer(int x, int y) { return static_cast<uint32_t>(MAKELPARAM(x, y)); }

    bool Draw(ScreenObject& object)
    {
        std::fill(canvas.begin(), canvas.end(), untouched);
        return object.Draw(canvas.data(), 2 * ScreenWidth);
    }
    uint16_t PixelAt(int x, int y) const { return canvas[static_cast<size_t>(y * ScreenWidth + x)]; }
    // How many pixels of each colour were drawn.
    std::map<uint16_t, int> Drawn() const
    {
        std::map<uint16_t, int> pixels;
        for (const uint16_t pixel : canvas)
            ++pixels[pixel];
        pixels.erase(untouched);
        return pixels;
    }

    platform::HeadlessDesktop desktop;
    std::vector<uint16_t> canvas = std::vector<uint16_t>(size_t { ScreenWidth } * ScreenHeight, untouched);

private:
    std::filesystem::path before = std::filesystem::current_path();
};
