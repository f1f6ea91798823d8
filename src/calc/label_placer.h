#pragma once

#include <string>
#include <vector>

#include "shell/surface.h"

namespace tavrelo::calc {

/// Finds places for the labels of a drawing that lie clear of its lines and of each other. All lines are told
/// first. Pixels from the top left, downward.
class LabelPlacer {
  public:
    explicit LabelPlacer(shell::Surface& surface) : m_surface(surface) {}

    void AddLine(shell::Point from, shell::Point to) { m_lines.push_back({from, to}); }
    /// Prints a label beside `anchor`, as near as possible to the side in which `outward` points (any
    /// length). Where no place is free it stands on that side nevertheless.
    void Place(const std::string& markup, shell::Point anchor, shell::Point outward, shell::Color color);

  private:
    struct Segment {
        shell::Point from, to;
    };
    struct Area {
        double left, top, right, bottom;
    };
    static bool Crosses(const Segment& line, const Area& area);
    bool IsFree(const Area& area) const;

    shell::Surface& m_surface;
    std::vector<Segment> m_lines;
    std::vector<Area> m_labels;
};

}  // namespace tavrelo::calc
