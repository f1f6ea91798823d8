#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "drawing/draw_engine.h"
#include "drawing/label_placer.h"
#include "window/surface.h"

namespace tavrelo::tools::rigid {

/// Sense of a force: a clock hour and the degrees from its axis.
struct ArrowSense {
    int hour;
    double angle;
    bool leaves = true;  // its point; otherwise it arrives there
};

/// Where a label belongs: beside the anchor, at least `radius` pixels away from it.
struct LabelSpot {
    window::Point anchor;
    std::optional<window::Point> outward;  // none: where the lines at the anchor leave most room
    double radius = 0;
};

struct SheetLabel {
    std::string markup;
    LabelSpot spot;
    text::Color color;
};

/// The picture of a structure while it is being drawn, in pixels from the top left. Lines and arrows are
/// drawn at once; labels wait until all of these are known.
class RigidSheet {
  public:
    explicit RigidSheet(window::Surface& canvas);

    const window::Surface& Canvas() const { return m_canvas; }

    /// A thin arrow along a clock hour without an angle; `length` in pixels. Labels cross it if they must.
    void AddAxis(window::Point from, int hour, double length, text::Color color);
    void AddLine(window::Point from, window::Point to, text::Color color);
    /// The dot of a point; it waits for DrawPoints. Returns where its letter belongs.
    LabelSpot AddPoint(window::Point point, text::Color color);
    /// Draws the dots, above the lines and below the arrows that follow.
    void DrawPoints();
    /// The arrow of a force, moved sideways where it would cover one that stands there already; returns where
    /// its label belongs.
    LabelSpot AddForce(window::Point point, const ArrowSense& sense, text::Color color);
    /// The round arrow of a couple, outside of those that stand there already, its head off the lines that
    /// have been drawn; returns where its label belongs.
    LabelSpot AddCouple(window::Point point, bool is_counterclockwise, text::Color color);

    /// Labels are printed in the order in which they were added.
    void AddLabel(SheetLabel label) { m_labels.push_back(std::move(label)); }
    void PlaceLabels();

  private:
    struct Shaft {
        window::Point tail, tip;
    };
    struct Dot {
        window::Point center;
        text::Color color;
    };
    struct Couple {
        window::Point center;
        double radius;
    };
    static bool Covers(const Shaft& a, const Shaft& b);
    Shaft Beside(const Shaft& shaft) const;
    void AvoidHead(window::Point tip, window::Point along);
    void AvoidArc(window::Point center, double radius, double from, double to);
    double OuterRadius(window::Point point) const;
    double HeadOfCouple(window::Point point, double sense) const;

    window::Surface& m_canvas;
    drawing::DrawEng m_engine;
    drawing::LabelPlacer m_placer;
    std::vector<Shaft> m_forces;
    std::vector<Couple> m_couples;
    std::vector<Dot> m_dots;
    std::vector<SheetLabel> m_labels;
};

}  // namespace tavrelo::tools::rigid
