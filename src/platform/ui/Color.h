#pragma once

#include <cstdint>

// A colour as red, green and blue in one hexadecimal number: Color{0xD0D6E2}.
struct Color {
    std::uint32_t rgb = 0x000000;

    friend constexpr bool operator==(Color, Color) = default;
};

// The same from its three parts, each 0 to 255.
constexpr Color RGB(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return Color{(red << 16U) | (green << 8U) | blue};
}
