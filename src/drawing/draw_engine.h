#pragma once

#include <span>
#include <string>
#include <vector>

#include "window/surface.h"

namespace tavrelo::drawing {

/// One labelled arrow. It leaves the pen, or arrives at it; either way it points along its direction.
struct Arrow {
    double length = 0;  // world units
    bool leaves = true;
    int hour = 3;      // clock hour of the direction
    double angle = 0;  // degrees from the hour's axis
    text::Color color;
    std::string label = {};  // picture markup; a leading "-" is dropped, for the direction shows it
    int width = 1;           // pixels; the head's size goes with it
    bool registered = true;  // kept in the list of shapes
};

/// Where an arrow lies, in pixels from the top left.
struct ArrowPlace {
    window::Point tail, tip;
    window::Point free_end;           // the one that is not at the pen: there the label belongs
    std::vector<window::Point> head;  // its outline: the tip and the two rear points
    std::string label;                // without the sign, for the direction shows it
    window::Point label_corner;       // top left one of the label
};
/// The place of an arrow drawn from, or to, that pen.
ArrowPlace PlaceOf(const Arrow& arrow, window::Point pen);

/// A shape that was drawn, by number and name ("3-Flecha"), in pixels from the top left.
struct ShapeRecord {
    std::string key;
    double x1, y1, x2, y2;
    int hour;
};

/// Points as two lists of equal length.
struct PointLists {
    std::span<const double> xs;
    std::span<const double> ys;
};

/// The one place that knows world units and pixels: labelled arrows, axes, lines and the frame of a graph.
/// Positions on the surface are pixels from the top left, downward.
class DrawEng {
  public:
    static constexpr double kPixPerUnit = 24;
    static constexpr double kGraphLeft = 96;    // of the graph's frame, pixels from the left of the picture
    static constexpr double kGraphBottom = 84;  // pixels from the bottom of the picture
    static constexpr double kGraphSize = 301;   // side of the frame, pixels

    /// World units when no scale is given; scale 1 means pixels.
    void MoveTo(window::Surface& surface, double x, double y, double scale = kPixPerUnit) const;
    /// Moves the pen from where the last arrow ended and stores the new end.
    void MoveBy(window::Surface& surface, double dx, double dy, double scale = kPixPerUnit);
    /// Takes (0, 0) as the end of the last arrow.
    void ClearPen();

    /// Sets the direction of the next arrow from the clock hour (1 to 12) and the acute angle in degrees.
    void SetDirection(int hour, double angle);
    double ArrowCos() const { return m_cos; }
    double ArrowSin() const { return m_sin; }

    /// Draws from the surface's pen; the end with the tip becomes the pen.
    void DrawArrow(window::Surface& surface, const Arrow& arrow);
    /// A thin line without a head from the surface's pen, in the clock direction; `length` in world units.
    void DrawLine(window::Surface& surface, double length, int hour, double angle, text::Color color);
    /// The grey axes of force diagrams from (x, y), with their letters.
    void DrawAxes(window::Surface& surface, double x, double y);

    /// A curve in the frame, its axes through zero where they cross it, and the extremes, rounded. The lists
    /// are not empty. A range of zero maps to the middle of the frame. Who points at the graph is told x and
    /// y, and the note.
    void DrawGraph(window::Surface& surface, const PointLists& curve, text::Color color, int decimals,
                   const std::string& note = {}) const;

    /// Points as small circles in the scale of a graph that DrawGraph has drawn of `curve`. Those outside its
    /// extremes lie outside the frame; those outside the picture are left out.
    void DrawGraphPoints(window::Surface& surface, const PointLists& curve, const PointLists& points,
                         text::Color color) const;

    void RegisterShape(const std::string& name, double x1, double y1, double x2, double y2);
    const std::vector<ShapeRecord>& Shapes() const { return m_shapes; }
    /// A new diagram begins: no shapes, no pen.
    void Begin();

  private:
    double m_pen_x = 0;
    double m_pen_y = 0;
    double m_cos = 1;
    double m_sin = 0;
    int m_hour = 3;
    int m_shape_number = 0;
    std::vector<ShapeRecord> m_shapes;
};

/// Prints a label with its top left corner at (x, y), shifted into the picture where it would leave it.
void PrintLabel(window::Surface& surface, const std::string& markup, double x, double y,
                const text::Font& font, text::Color color);

/// Labels of arrows and axes.
text::Font LabelFont();

}  // namespace tavrelo::drawing
