#pragma once

#include <string>
#include <vector>

#include "window/surface.h"

namespace tavrelo::drawing {

/// Finds places for the labels of a drawing that lie clear of its lines and of each other. All lines are told
/// first. Pixels from the top left, downward.
class LabelPlacer {
  public:
    /// `margin`: pixels kept free around each label.
    explicit LabelPlacer(window::Surface& surface, double margin = 0)
        : m_surface(surface), m_margin(margin) {}

    void AddLine(window::Point from, window::Point to) { m_lines.push_back({from, to}); }
    /// A line that labels cross where there is no other place for them.
    void AddFaintLine(window::Point from, window::Point to) { m_faint_lines.push_back({from, to}); }

    /// Directions (degrees counter-clockwise from +x, above -180 up to 180, ascending) in which lines lead
    /// away from a place that they touch or nearly touch.
    std::vector<double> DirectionsFrom(window::Point place) const;
    /// Unit vector into the widest angle between those lines; the lower one of equal angles.
    window::Point FreeSide(window::Point place) const;

    /// Prints a label beside `anchor`, as near as possible to the side in which `outward` points (any
    /// length) and at least `radius` pixels away. Where no place is free it stands on that side nevertheless.
    void Place(const std::string& markup, window::Point anchor, window::Point outward, text::Color color,
               double radius = 0);

  private:
    struct Segment {
        window::Point from, to;
    };
    struct Area {
        double left, top, right, bottom;
    };
    static bool Crosses(const Segment& line, const Area& area);
    static bool IsNear(const Segment& line, window::Point place);
    bool IsClear(const Area& area) const;
    bool CrossesFaintLine(const Area& area) const;

    window::Surface& m_surface;
    double m_margin;
    std::vector<Segment> m_lines;
    std::vector<Segment> m_faint_lines;
    std::vector<Area> m_labels;
};

}  // namespace tavrelo::drawing
