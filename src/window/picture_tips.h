#pragma once

#include <span>
#include <string>
#include <variant>
#include <vector>

#include "window/geometry.h"

// What a drawing tells to who points at a place of it. Whoever draws lists it beside the drawing, from the
// same values; places are pixels at 100 %, from the top left.

namespace tavrelo::window {

struct ArrowTip {
    Point tail, tip;
    std::string text;
};

/// The round arrow of a couple.
struct RingTip {
    Point center;
    double radius;
    std::string text;
};

/// A quantity along one side of a graph: its values at two pixels, and in between by a straight line.
struct TipScale {
    std::string name;
    double first_pixel = 0;
    double last_pixel = 0;
    double first_value = 0;
    double last_value = 0;

    double ValueAt(double pixel) const;
};

/// The frame of a graph. Curves that share the frame may each have a scale of its own.
struct GraphTip {
    TipScale across;
    std::vector<TipScale> upward;  // not empty; all between the same pixels
    int decimals = 0;
    std::string note = {};  // told behind the values; may be empty
};

using PictureTip = std::variant<ArrowTip, RingTip, GraphTip>;

/// What is told at a place: of the arrow or ring nearest to it, if one is within reach, else the values of
/// the graph under it; empty where there is nothing.
std::string TipAt(std::span<const PictureTip> tips, Point place);

}  // namespace tavrelo::window
