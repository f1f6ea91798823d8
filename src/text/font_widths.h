#pragma once

#include <cstdint>
#include <span>

namespace tavrelo::text {

/// Units in which advance widths and heights are told, per font size.
inline constexpr double kFontUnits = 2048;

/// Advance widths of consecutive characters from `first` on.
struct WidthRange {
    char32_t first;
    std::span<const std::uint16_t> widths;
};

/// One face of a family: widths by ranges in ascending order, and the extent of a line above and below its
/// base.
struct FaceWidths {
    std::span<const WidthRange> ranges;
    int ascent;
    int descent;
};

/// In the order of the faces that font.cpp tells.
std::span<const FaceWidths> FaceTable();

}  // namespace tavrelo::text
