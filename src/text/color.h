#pragma once

#include <cstdint>

namespace tavrelo::text {

/// A colour as 0xRRGGBB.
struct Color {
    std::uint32_t rgb = 0;

    friend bool operator==(const Color&, const Color&) = default;
};

constexpr Color Rgb(unsigned red, unsigned green, unsigned blue) {
    return Color{(red << 16) | (green << 8) | blue};
}

/// The colour of an integer red + 256 green + 65536 blue, the form in which tables of forces keep it.
constexpr Color FromBgr(std::uint32_t bgr) {
    return Color{((bgr & 0xff) << 16) | (bgr & 0xff00) | ((bgr >> 16) & 0xff)};
}

inline constexpr Color kBlack = Rgb(0, 0, 0);
inline constexpr Color kWhite = Rgb(255, 255, 255);

}  // namespace tavrelo::text
