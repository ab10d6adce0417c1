#include "tests/support/VecPrinting.h"

#include <gtest/gtest.h>

TEST(Vec, IsGreaterSmallerOrEqualInBothComponentsAtOnce)
{
    for (const int32_t x : { 0, 1, 2 })
        for (const int32_t y : { 1, 2, 3 }) {
            EXPECT_EQ(vec(x, y) > vec(1, 2), (vec(x, y) == vec(2, 3))) << vec(x, y);
            EXPECT_EQ(vec(x, y) < vec(1, 2), (vec(x, y) == vec(0, 1))) << vec(x, y);
            EXPECT_EQ(vec(x, y) == 1, x * y == 1) << vec(x, y);
            EXPECT_EQ(vec(x, y) == vec(1, 2), (std::pair(x, y) == std::pair(1, 2))) << vec(x, y);
        }
    EXPECT_EQ(vec(-7, INT32_MIN) / -2, vec(3, 0x40000000)); // toward zero
}
