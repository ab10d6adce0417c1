#include "objects/vec.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Vec, WrapsAroundDividesTowardZeroAndComparesStrictlyInBothComponents)
{
    constexpr int32_t lowest = std::numeric_limits<int32_t>::min();
    constexpr int32_t highest = std::numeric_limits<int32_t>::max();
    EXPECT_EQ(vec(highest, 0) + vec(1, 2), vec(lowest, 2));
    EXPECT_EQ(vec(lowest, 0) - vec(1, 2), vec(highest, -2));
    EXPECT_EQ(vec(highest, -3) * 2, vec(-2, -6));
    EXPECT_EQ(vec(lowest, -7) / -1, vec(lowest, 7));
    EXPECT_EQ(vec(-7, 7) / 2, vec(-3, 3));
    EXPECT_FALSE(vec(2, 2) > vec(1, 2));
    EXPECT_FALSE(vec(0, 3) < vec(1, 2));
    EXPECT_FALSE(vec(4, 5) == 4);
}
