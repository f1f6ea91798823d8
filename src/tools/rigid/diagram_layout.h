#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawing/label_placer.h"
#include "tools/rigid/diagram.h"

namespace tavrelo::tools::rigid {

/// Pixels.
struct CanvasSize {
    double width;
    double height;
};

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

struct WantedLabel {
    std::string markup;
    LabelSpot spot;
    text::Color color;
};

/// Finds the places of a diagram while it grows, in pixels from the top left, and draws nothing: an arrow
/// moves aside where it would cover another one, and labels wait until all lines and arrows are known.
class DiagramLayout {
  public:
    explicit DiagramLayout(CanvasSize size);

    const CanvasSize& Size() const { return m_size; }

    /// A thin arrow along a clock hour without an angle; `length` in pixels. Labels cross it if they must.
    void AddAxis(window::Point from, int hour, double length, text::Color color);
    void AddLine(window::Point from, window::Point to, text::Color color);
    /// The dot of a point; returns where its letter belongs.
    LabelSpot AddPoint(window::Point point, text::Color color);
    /// The arrow of a force, moved sideways where it would cover one that stands there already; returns where
    /// its label belongs. Who points at it is told `tip`.
    LabelSpot AddForce(window::Point point, const ArrowSense& sense, text::Color color,
                       const std::string& tip = {});
    /// The round arrow of a couple, outside of those that stand there already, its head off the lines that
    /// are known; returns where its label belongs.
    LabelSpot AddCouple(window::Point point, bool is_counterclockwise, text::Color color,
                        const std::string& tip = {});
    /// Labels find their places in the order in which they were added.
    void AddLabel(WantedLabel label) { m_labels.push_back(std::move(label)); }

    /// All that was added, labels included, each at its place.
    Diagram Finished();

  private:
    struct Shaft {
        window::Point tail, tip;
    };
    static bool Covers(const Shaft& a, const Shaft& b);
    Shaft Beside(const Shaft& shaft) const;
    void AvoidHead(window::Point tip, window::Point along);
    void AvoidArc(const DiagramCouple& couple);
    double OuterRadius(window::Point point) const;
    double HeadOfCouple(window::Point point, double sense) const;

    CanvasSize m_size;
    drawing::LabelPlacer m_placer;
    Diagram m_diagram;
    std::vector<Shaft> m_shafts;  // of the forces
    std::vector<WantedLabel> m_labels;
};

}  // namespace tavrelo::tools::rigid
