#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "shell/surface.h"
#include "vectors/draw_engine.h"
#include "vectors/label_placer.h"

namespace tavrelo::statics {

/// Sense of a force: a clock hour and the degrees from its axis.
struct ArrowSense {
    int hour;
    double angle;
    bool leaves = true;  // its point; otherwise it arrives there
};

/// Where a label belongs: beside the anchor, at least `radius` pixels away from it.
struct LabelSpot {
    shell::Point anchor;
    std::optional<shell::Point> outward;  // none: where the lines at the anchor leave most room
    double radius = 0;
};

struct SheetLabel {
    std::string markup;
    LabelSpot spot;
    shell::Color color;
};

/// The picture of a structure while it is being drawn, in pixels from the top left. Lines and arrows are
/// drawn at once; labels wait until all of these are known.
class RigidSheet {
  public:
    explicit RigidSheet(shell::Surface& canvas);

    const shell::Surface& Canvas() const { return m_canvas; }

    /// A thin arrow along a clock hour without an angle; `length` in pixels. Labels cross it if they must.
    void AddAxis(shell::Point from, int hour, double length, shell::Color color);
    void AddLine(shell::Point from, shell::Point to, shell::Color color);
    /// The dot of a point; it waits for DrawPoints. Returns where its letter belongs.
    LabelSpot AddPoint(shell::Point point, shell::Color color);
    /// Draws the dots, above the lines and below the arrows that follow.
    void DrawPoints();
    /// The arrow of a force, moved sideways where it would cover one that stands there already; returns where
    /// its label belongs.
    LabelSpot AddForce(shell::Point point, const ArrowSense& sense, shell::Color color);
    /// The round arrow of a couple, outside of those that stand there already, its head off the lines that
    /// have been drawn; returns where its label belongs.
    LabelSpot AddCouple(shell::Point point, bool is_counterclockwise, shell::Color color);

    /// Labels are printed in the order in which they were added.
    void AddLabel(SheetLabel label) { m_labels.push_back(std::move(label)); }
    void PlaceLabels();

  private:
    struct Shaft {
        shell::Point tail, tip;
    };
    struct Dot {
        shell::Point center;
        shell::Color color;
    };
    struct Couple {
        shell::Point center;
        double radius;
    };
    static bool Covers(const Shaft& a, const Shaft& b);
    Shaft Beside(const Shaft& shaft) const;
    void AvoidHead(shell::Point tip, shell::Point along);
    void AvoidArc(shell::Point center, double radius, double from, double to);
    double OuterRadius(shell::Point point) const;
    double HeadOfCouple(shell::Point point, double sense) const;

    shell::Surface& m_canvas;
    vectors::DrawEng m_engine;
    vectors::LabelPlacer m_placer;
    std::vector<Shaft> m_forces;
    std::vector<Couple> m_couples;
    std::vector<Dot> m_dots;
    std::vector<SheetLabel> m_labels;
};

}  // namespace tavrelo::statics
