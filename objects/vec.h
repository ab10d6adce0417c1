#pragma once

#include <cstdint>

// A canvas position, offset or size in pixels: origin top-left, y downward. Sums, differences and products wrap around
// at 2^32, so that no number from a file or a drag can do harm.
struct vec {
    int32_t x;
    int32_t y;

    vec() = default; // both members unset
    constexpr vec(int32_t right, int32_t down)
        : x(right)
        , y(down)
    {
    }
    constexpr explicit vec(int32_t both)
        : x(both)
        , y(both)
    {
    }

    friend constexpr vec operator+(vec a, vec b)
    {
        return { Wrap(int64_t { a.x } + b.x), Wrap(int64_t { a.y } + b.y) };
    }
    friend constexpr vec operator-(vec a, vec b)
    {
        return { Wrap(int64_t { a.x } - b.x), Wrap(int64_t { a.y } - b.y) };
    }
    friend constexpr vec operator*(vec a, int32_t k)
    {
        return { Wrap(int64_t { a.x } * k), Wrap(int64_t { a.y } * k) };
    }
    // Truncates toward zero; k is not 0.
    friend constexpr vec operator/(vec a, int32_t k)
    {
        return { Wrap(int64_t { a.x } / k), Wrap(int64_t { a.y } / k) };
    }

    friend constexpr bool operator==(vec a, vec b) { return a.x == b.x && a.y == b.y; }
    friend constexpr bool operator==(vec a, int32_t both) { return a.x == both && a.y == both; }
    // Strictly, in both components; neither may hold.
    friend constexpr bool operator>(vec a, vec b) { return a.x > b.x && a.y > b.y; }
    friend constexpr bool operator<(vec a, vec b) { return a.x < b.x && a.y < b.y; }

private:
    static constexpr int32_t Wrap(int64_t value) { return static_cast<int32_t>(static_cast<uint32_t>(value)); }
};
