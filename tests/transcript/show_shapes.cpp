#include <algorithm>
#include <cmath>

#include "show.h"

namespace tavrelo::transcript {
namespace {

// What trigonometry leaves behind a half: an upright arrow must not lean by a pixel.
constexpr double kHair = 1e-9;

constexpr std::string_view kKinds[] = {"line", "box", "filled", "circle", "arc", "polygon", "text"};

/// An operation by its kind and what is told of it behind the kind; a kind that is empty is not told.
struct Told {
    std::string_view kind;
    std::string text;
};

/// Rounded, halves up.
std::string Pixels(std::initializer_list<double> numbers) {
    std::string text;
    for (const double number : numbers)
        text += std::to_string(std::lround(std::floor(number + 0.5 + kHair))) + " ";
    return text;
}

struct Teller {
    Told operator()(const window::ClearOp&) const { return {}; }
    Told operator()(const window::ImageOp&) const { return {}; }
    Told operator()(const window::LineOp& line) const {
        return {"line", Pixels({line.x1, line.y1, line.x2, line.y2}) + ColorText(line.color)};
    }
    Told operator()(const window::BoxOp& box) const {
        return {box.filled ? "filled" : "box",
                Pixels({box.x1, box.y1, box.x2, box.y2}) + ColorText(box.color)};
    }
    Told operator()(const window::CircleOp& circle) const {
        return {"circle", Pixels({circle.x, circle.y, circle.radius}) + ColorText(circle.color)};
    }
    Told operator()(const window::ArcOp& arc) const {
        return {"arc", Pixels({arc.x, arc.y, arc.radius, arc.start, arc.end}) + ColorText(arc.color)};
    }
    Told operator()(const window::PolygonOp& polygon) const {
        std::string points;
        for (const window::Point& point : polygon.points)
            points += Pixels({point.x, point.y});
        return {"polygon", points + ColorText(polygon.color)};
    }
    Told operator()(const window::TextOp& text) const {
        return {"text", Pixels({text.x, text.y}) + "\"" + text.PlainText() + "\""};
    }
};

}  // namespace

bool IsShapeKind(std::string_view name) { return std::ranges::find(kKinds, name) != std::end(kKinds); }

std::vector<std::string> ShapeLines(std::span<const window::DrawOp> operations, std::string_view kind) {
    std::vector<std::string> lines;
    for (const window::DrawOp& operation : operations) {
        const Told told = std::visit(Teller(), operation);
        if (!told.kind.empty() && (kind.empty() || kind == told.kind))
            lines.push_back(std::string(told.kind) + " " + told.text);
    }
    return lines;
}

}  // namespace tavrelo::transcript
