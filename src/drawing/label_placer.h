#pragma once

#include <optional>
#include <string>
#include <vector>

#include "window/surface.h"

namespace tavrelo::drawing {

/// A label at its place: the top left corner, pixels from the top left of the picture.
struct PlacedLabel {
    std::string markup;
    double left, top;
    text::Color color;
};
void PrintLabel(window::Surface& surface, const PlacedLabel& label);

/// Finds places for the labels of a drawing that lie clear of its lines and of each other, and draws nothing.
/// All lines are told first. Pixels from the top left, downward.
class LabelPlacer {
  public:
    /// For a picture of this size; `margin`: pixels kept free around each label.
    LabelPlacer(double width, double height, double margin = 0)
        : m_width(width), m_height(height), m_margin(margin) {}
    explicit LabelPlacer(const window::Surface& surface, double margin = 0)
        : LabelPlacer(surface.Width(), surface.Height(), margin) {}

    void AddLine(window::Point from, window::Point to) { m_lines.push_back({from, to}); }
    /// A line that labels cross where there is no other place for them.
    void AddFaintLine(window::Point from, window::Point to) { m_faint_lines.push_back({from, to}); }

    /// Directions (degrees counter-clockwise from +x, above -180 up to 180, ascending) in which lines lead
    /// away from a place that they touch or nearly touch.
    std::vector<double> DirectionsFrom(window::Point place) const;
    /// Unit vector into the widest angle between those lines; the lower one of equal angles.
    window::Point FreeSide(window::Point place) const;

    /// The place of a label beside `anchor`, as near as possible to the side in which `outward` points (any
    /// length) and at least `radius` pixels away; taken from now on. Where no place is free it is on that
    /// side nevertheless.
    [[nodiscard]] PlacedLabel Place(const std::string& markup, window::Point anchor, window::Point outward,
                                    text::Color color, double radius = 0);

    /// The label with its top left corner there, moved into the picture, if it covers no line and no other
    /// label; taken from now on. Nothing where it would.
    std::optional<PlacedLabel> PlaceAt(const std::string& markup, window::Point corner, text::Color color);

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

    double m_width;
    double m_height;
    double m_margin;
    std::vector<Segment> m_lines;
    std::vector<Segment> m_faint_lines;
    std::vector<Area> m_labels;
};

}  // namespace tavrelo::drawing
