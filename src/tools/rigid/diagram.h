#pragma once

#include <string>
#include <vector>

#include "drawing/label_placer.h"
#include "window/surface.h"

namespace tavrelo::tools::rigid {

// A picture of a structure with everything at its place: pixels from the top left.

/// Points from its tail along a clock hour, `angle` degrees off the hour's axis.
struct DiagramArrow {
    window::Point tail;
    int hour = 3;
    double angle = 0;
    double length = 0;  // world units
    int width = 1;      // pixels
    text::Color color;
    std::string tip = {};  // told to who points at it
};

struct DiagramLine {
    window::Point from, to;
    text::Color color;
};

struct DiagramDot {
    window::Point center;
    text::Color color;
};

/// The arc of a couple, counter-clockwise from `start` to `end` degrees, and its head.
struct DiagramCouple {
    window::Point center;
    double radius, start, end;
    DiagramArrow head;
};

/// In the order of drawing.
struct Diagram {
    std::vector<DiagramArrow> axes;
    std::vector<DiagramLine> lines;
    std::vector<DiagramDot> dots;
    std::vector<DiagramArrow> forces;
    std::vector<DiagramCouple> couples;
    std::vector<drawing::PlacedLabel> labels;
};

/// Draws on top of what stands there.
void Draw(window::Surface& canvas, const Diagram& diagram);

/// Measures of what is drawn, in pixels.
inline constexpr int kDiagramLineWidth = 2;  // of all lines but the axes
inline constexpr double kDotRadius = 3;

}  // namespace tavrelo::tools::rigid
