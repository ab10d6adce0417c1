#include "objects/ScreenDocument.h"
#include "tests/objects/FakePicture.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr int32_t lowest = std::numeric_limits<int32_t>::min();
constexpr int32_t highest = std::numeric_limits<int32_t>::max();

TEST(ClipObject, FitsToTheCanvas)
{
    const struct {
        bool keepInside;
        vec pos, src, size, newPos, newSrc, newView;
    } cases[] = {
        { false, { -30, 10 }, { 0, 0 }, { 40, 30 }, { 0, 10 }, { 30, 0 }, { 10, 30 } },
        { false, { 0, 10 }, { 30, 0 }, { 40, 30 }, { 0, 10 }, { 30, 0 }, { 10, 30 } }, // fitted again
        { false, { 0, -8 }, { 30, 0 }, { 40, 30 }, { 0, 0 }, { 0, 8 }, { 40, 22 } }, // both offsets are replaced
        { false, { 790, 590 }, { 0, 0 }, { 40, 30 }, { 790, 590 }, { 0, 0 }, { 10, 10 } },
        { false, { 900, 10 }, { 0, 0 }, { 40, 30 }, { 800, 10 }, { 0, 0 }, { 0, 30 } },
        { false, { -100, -50 }, { 0, 0 }, { 1000, 700 }, { 0, 0 }, { 100, 50 }, { 800, 600 } },
        { false, { lowest, highest }, { 0, 0 }, { 40, 30 }, { 0, 600 }, { highest, 0 }, { 0, 0 } },
        { true, { 790, 10 }, { 3, 4 }, { 40, 30 }, { 760, 10 }, { 0, 0 }, { 40, 30 } },
        { true, { -9, 900 }, { 0, 0 }, { 40, 30 }, { 0, 570 }, { 0, 0 }, { 40, 30 } },
        { true, { 100, -50 }, { 0, 0 }, { 1000, 700 }, { 0, 0 }, { 0, 0 }, { 800, 600 } },
        { true, { highest, lowest }, { 0, 0 }, { 65535, 65535 }, { 0, 0 }, { 0, 0 }, { 800, 600 } },
    };
    const ScreenDocument document;
    for (const auto& fit : cases) {
        SCOPED_TRACE(testing::Message() << fit.keepInside << " at " << fit.pos.x << ", " << fit.pos.y);
        FakePicture object(fit.pos, fit.size);
        object.SetSrc(fit.src);
        document.ClipObject(object, fit.keepInside);
        EXPECT_EQ(object.GetPos(), fit.newPos);
        EXPECT_EQ(object.GetSrc(), fit.newSrc);
        EXPECT_EQ(object.GetView(), fit.newView);
    }
}

} // namespace
