// A problem of rigid bodies drawn on a recorder, and what stands on the picture.

#pragma once

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include "text/font.h"
#include "tools/rigid/rigid_picture.h"
#include "tools/rigid/structure_layout.h"
#include "window/surface.h"

namespace tavrelo::tools::rigid {

inline constexpr double kWidth = 397;
inline constexpr double kHeight = 385;

inline double Distance(window::Point a, window::Point b) { return std::hypot(a.x - b.x, a.y - b.y); }

/// Degrees counter-clockwise from +x, from 0 up to 360.
inline double DegreesOf(window::Point from, window::Point to) {
    const double degrees = std::atan2(from.y - to.y, to.x - from.x) * 180 / std::acos(-1.0);
    return degrees < -1e-9 ? degrees + 360 : degrees;
}

// --- What stands on a picture

struct SeenArrow {
    window::Point tail, tip;
    text::Color color;
    double width;

    double Length() const { return Distance(tail, tip); }
    double Degrees() const { return DegreesOf(tail, tip); }
};

struct SeenCouple {
    window::ArcOp arc;
    SeenArrow head;

    /// The arc goes on into its head: with the head at its counter-clockwise end the couple turns so.
    bool IsCounterclockwise() const {
        const double radians = arc.end * std::acos(-1.0) / 180;
        return Distance(head.tail, {arc.x + arc.radius * std::cos(radians),
                                    arc.y - arc.radius * std::sin(radians)}) < 1e-6;
    }
};

struct SeenText {
    std::string text;
    double left, top, right, bottom;

    bool Meets(const SeenText& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    bool Holds(window::Point point) const {
        return point.x > left && point.x < right && point.y > top && point.y < bottom;
    }
};

/// Down to the base line of the lowest run.
inline SeenText TextOf(const window::TextOp& op) {
    const text::PlacedRun& last = op.runs.back();
    double bottom = 0;
    for (const text::PlacedRun& run : op.runs)
        bottom = std::max(bottom, run.dy + text::TextAscent(run.font));
    return {op.PlainText(), op.x, op.y, op.x + last.dx + text::TextWidth(last.text, last.font),
            op.y + bottom};
}

/// One picture, its operations sorted into what they draw.
struct Seen {
    std::vector<SeenArrow> axes, forces;
    std::vector<SeenCouple> couples;
    std::vector<window::LineOp> lines;
    std::vector<window::CircleOp> dots;
    std::vector<SeenText> texts;
    std::vector<text::Color> text_colors;

    explicit Seen(const window::Recorder& picture) {
        for (const window::DrawOp& operation : picture.Operations())
            std::visit([&](const auto& op) { Take(op); }, operation);
    }

    const SeenText& Text(const std::string& wanted) const {
        for (const SeenText& text : texts)
            if (text.text == wanted)
                return text;
        throw std::out_of_range("no text " + wanted);
    }

  private:
    template <typename Op>
    void Take(const Op&) {}
    void Take(const window::LineOp& line) { lines.push_back(line); }
    void Take(const window::CircleOp& dot) { dots.push_back(dot); }
    void Take(const window::ArcOp& arc) {
        couples.push_back({arc, {}});
        m_awaits_head = true;
    }
    void Take(const window::TextOp& text) {
        texts.push_back(TextOf(text));
        text_colors.push_back(text.runs.front().color);
    }
    /// A head makes the line before it an arrow.
    void Take(const window::PolygonOp&) {
        constexpr text::Color kAxisGray = text::Rgb(0xc0, 0xc0, 0xc0);
        const window::LineOp shaft = lines.back();
        lines.pop_back();
        const SeenArrow arrow = {{shaft.x1, shaft.y1}, {shaft.x2, shaft.y2}, shaft.color, shaft.width};
        if (m_awaits_head)
            couples.back().head = arrow;
        else
            (arrow.color == kAxisGray ? axes : forces).push_back(arrow);
        m_awaits_head = false;
    }

    bool m_awaits_head = false;
};

// --- Problems

/// A problem under construction and its picture.
struct DrawnProblem {
    mechanics::rigid::RigidProblem problem;
    DiagramView view;
    window::Recorder picture{kWidth, kHeight};

    /// All points belong to system 1.
    DrawnProblem& At(const char* name, double x, double y) {
        problem.structure.points.push_back({name, x, y});
        problem.systems[0] += name;
        return *this;
    }
    DrawnProblem& System(int system, const char* letters) {
        problem.systems[static_cast<std::size_t>(system) - 1] = letters;
        return *this;
    }
    DrawnProblem& Line(int system, const char* chain) {
        problem.lines.push_back({chain, system});
        return *this;
    }
    DrawnProblem& Force(int body, const char* point, const char* text) {
        const auto read = std::get<mechanics::rigid::ReadForce>(mechanics::rigid::ReadBodyForce(
            body, *mechanics::rigid::FindPoint(problem.structure.points, point), text, 3));
        problem.forces.push_back(read.force);
        view.looks.push_back(LookOf(read.written));
        return *this;
    }
    DrawnProblem& Show(std::initializer_list<int> bodies) {
        view.shown.fill(false);
        for (const int body : bodies)
            view.Show(body, true);
        return *this;
    }
    RigidScene Scene() const { return {problem, view, 3}; }
    Seen Draw() {
        RedrawAll(picture, Scene());
        return Seen(picture);
    }
    window::Point Place(const char* name) const {
        return PlacesOf(problem.structure.points, {picture.Width(), picture.Height()}).Find(name).value();
    }
};

}  // namespace tavrelo::tools::rigid
