#pragma once

#include "objects/PictureObject.h"
#include "platform/scripted/ScriptedDesktop.h"
#include "tests/support/BmpFile.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/VecPrinting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <concepts>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

// As the case files write it: "3,4".
inline std::istream& operator>>(std::istream& in, vec& v)
{
    char comma = 0;
    return in >> v.x >> comma >> v.y;
}
// What a line of a case file tells of an answer.
inline std::string Told(bool yes)
{
    return yes ? " yes" : " no";
}
inline std::string Told(int32_t number)
{
    return " " + std::to_string(number);
}
inline std::string Told(vec v)
{
    return Told(v.x) + "," + std::to_string(v.y);
}
inline std::string Told(const std::string& text)
{
    return text;
}

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

    // Makes a word of a case file carry out the act: with as many values from the line as it takes.
    template <class Act> void On(const std::string& word, Act act) { acts[word] = Reading(std::function(act)); }
    template <class Result, class... Taken> static auto Reading(std::function<Result(Taken...)> act)
    {
        return [act](std::istream& words) -> std::string {
            std::tuple<std::decay_t<Taken>...> taken;
            std::apply([&words](auto&... value) { EXPECT_TRUE((words >> ... >> value)); }, taken);
            if constexpr (std::is_void_v<Result>)
                return std::apply(act, taken), "";
            else
                return Told(std::apply(act, taken));
        };
    }
    // Does what each line of a file of cases/ says before the colon, and expects of it what stands behind, up to a
    // remark: the answer, and what was noted meanwhile.
    void Play(const std::string& name)
    {
        std::ifstream lines(OBJECT_CASES "/" + name + ".txt");
        ASSERT_TRUE(lines) << name;
        std::string line;
        for (int number = 1; std::getline(lines, line); ++number) {
            SCOPED_TRACE(name + ", line " + std::to_string(number));
            const size_t colon = line.find(':');
            std::istringstream words(line.substr(0, colon));
            std::string word;
            words >> word;
            noted.clear();
            const std::string answer = acts.at(word)(words);
            EXPECT_EQ(answer + noted, line.substr(colon + 1, line.find("  #") - colon - 1)) << line;
        }
    }

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

    std::map<std::string, std::function<std::string(std::istream&)>> acts;
    std::string noted;
    platform::ScriptedDesktop desktop;
    TemporaryFolder folder;
    std::vector<uint16_t> canvas = std::vector<uint16_t>(size_t { ScreenWidth } * ScreenHeight, untouched);
};

// One object of a kind, whose life is told in case files.
template <class Kind> class KindTest : public ObjectTest {
protected:
    KindTest()
    {
        On("strip", &ObjectTest::WriteStrip);
        if constexpr (std::derived_from<Kind, PictureObject>)
            On("load", [this](const std::string& name) { return Load(object, name); });
        On("reset", [this] { object.Reset(); });
        On("pos", [this](vec pos) { object.SetPos(pos); });
        On("src", [this](vec src) { object.SetSrc(src); });
        On("view", [this](vec view) { object.SetView(view); });
        On("alpha", [this](uint32_t alpha) { object.SetAlpha(alpha); });
        On("place", [this] { return Told(object.GetPos()) + Told(object.GetSrc()) + Told(object.GetView()); });
        On("size", [this] { return object.GetSize(); });
        On("hit", [this](vec point) { return object.HitTest(point, {}); });
        On("pixel-hit", [this](vec point) { return object.PixelHit(point); });
        On("drawn-at",
            [this](vec point) { return canvas.at(static_cast<size_t>(point.y * ScreenWidth + point.x)) != untouched; });
        On("draw", [this](uint32_t afterMs) {
            const bool drawn = Draw(object, afterMs);
            return (drawn ? Seen() : Told(false)) + State();
        });
        for (const auto& [word, message] : { std::pair("press", MsgLeftDown), { "release", MsgLeftUp },
                 { "move", MsgMouseMove }, { "right-press", MsgRightDown } })
            On(word, [this, message = message](vec point) {
                const bool answer = object.HandleMessage(message, 0, Pointer(point.x, point.y));
                return Told(answer) + State();
            });
    }
    // What else a line tells after a message or a frame.
    virtual std::string State() { return ""; }
    // How many pixels were drawn of which section's colour; of letters only that there are some.
    std::string Seen() const
    {
        std::map<uint16_t, int32_t> counts;
        for (const uint16_t color : canvas)
            ++counts[color];
        std::string seen;
        for (const auto& [color, count] : counts)
            if (color == blue)
                seen += count > 20 ? " letters" : " specks";
            else if (color != untouched)
                seen += Told(color / 0x400 - 1) + "=" + std::to_string(count);
        return seen;
    }

    Kind object;
};
