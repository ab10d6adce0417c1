#pragma once

#include "objects/PictureObject.h"
#include "platform/scripted/ScriptedDesktop.h"
#include "tests/support/BmpFile.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/VecPrinting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

// Where an object under test lives: a clock, a current folder of its own for pictures, and a canvas to be drawn on.
class ObjectTest : public testing::Test {
protected:
    static constexpr uint16_t untouched = 0x7C1F;
    static constexpr uint16_t blue = 0x001F; // of the letters

    // A picture in equal sections along its longer side, each in a colour of its own.
    static void WriteStrip(const std::string& name, vec size, int32_t sections)
    {
        BmpFile file(size.x, size.y);
        for (int32_t y = 0; y < size.y; ++y)
            for (int32_t x = 0; x < size.x; ++x)
                file.At(x, y) = static_cast<uint8_t>(size.x > size.y ? x * sections / size.x : y * sections / size.y);
        for (uint32_t section = 0; section < 31; ++section)
            file.palette[section] = (section + 1) << 19;
        file.Write(name);
    }
    static constexpr uint16_t SectionColor(int section) { return static_cast<uint16_t>((section + 1) << 10); }
    static bool Load(PictureObject& object, const std::string& name) { return object.SetFileName(name), object.Load(); }

    // A message's second word with the pointer there.
    static uint32_t Pointer(int x, int y) { return static_cast<uint16_t>(x) | static_cast<uint32_t>(y) << 16; }

    bool Draw(ScreenObject& object, uint32_t afterMs = 0)
    {
        desktop.Advance(afterMs);
        std::fill(canvas.begin(), canvas.end(), untouched);
        return object.Draw(canvas.data(), 2 * ScreenWidth);
    }
    ptrdiff_t Count(uint16_t color) const { return std::count(canvas.begin(), canvas.end(), color); }
    ptrdiff_t Drawn() const { return std::ssize(canvas) - Count(untouched); }

    platform::ScriptedDesktop desktop;
    TemporaryFolder folder;
    std::vector<uint16_t> canvas = std::vector<uint16_t>(size_t { ScreenWidth } * ScreenHeight, untouched);
};
