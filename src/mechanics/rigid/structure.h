#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "text/refusal.h"

namespace tavrelo::mechanics::rigid {

/// Systems of points ("Sistemas") of one problem; they are counted from 1, and 1 is the whole.
inline constexpr int kSystems = 5;

/// A separation vector: the point where it starts, the point where it ends, and what lies between them.
struct SegRow {
    std::string from;
    std::string to;
    double dx = 0;
    double dy = 0;

    friend bool operator==(const SegRow&, const SegRow&) = default;
};
using SegTable = std::vector<SegRow>;

struct PointRecord {
    std::string name;  // one letter
    double x = 0;      // from the origin
    double y = 0;

    friend bool operator==(const PointRecord&, const PointRecord&) = default;
};
using PointTable = std::vector<PointRecord>;

/// A line drawn inside a system: the chain of letters of its points, the first one again at the end of a
/// closed figure.
struct LineRow {
    std::string chain;
    int system = 1;

    friend bool operator==(const LineRow&, const LineRow&) = default;
};
using LineTable = std::vector<LineRow>;

/// The letters of each system in order; empty for one that is not defined. Index 0 is system 1.
using SystemPoints = std::array<std::string, kSystems>;

/// Separation vectors and the points that they lead to.
struct Structure {
    SegTable segments;
    PointTable points;   // of the letters that the vectors reach from the first point on
    std::string origin;  // letter of the point at (0, 0); empty without vectors

    friend bool operator==(const Structure&, const Structure&) = default;
};

/// Place of the point in the table, from 1; 0 when it is not there.
std::size_t PointIndex(const PointTable& points, std::string_view name);
/// The point of that name; null when it is not there.
const PointRecord* FindPoint(const PointTable& points, std::string_view name);

/// Whether a character occurs twice.
bool HasRepeated(std::string_view text);

/// The letters of a text in their order, one each (by code points: "Ñ" is one), repeated ones too.
std::vector<std::string> LettersOf(std::string_view text);
/// The letters that the vectors hold, start before end, row by row, each once.
std::vector<std::string> LettersOf(const SegTable& segments);

/// The coordinates of all points that the first vector's start reaches over the vectors, that start being at
/// (0, 0). Refused when two points coincide within 1e-7 in x and y. A vector whose two ends are known is
/// passed over, whatever it measures. No vectors, no points. Fails with Overflow.
std::variant<text::Refusal, PointTable> ComputeCoords(const SegTable& segments);

/// The points seen from the one of that name; refused when it has no coordinates. Fails with Overflow.
std::variant<text::Refusal, PointTable> SeenFrom(const PointTable& points, std::string_view origin);

/// One line for each letter: "A = (0, 0)", or "D(?, ?)" where the point has no coordinates.
std::vector<std::string> CoordLines(const SegTable& segments, const PointTable& points, int decimals);
/// One line for each vector: "AB = (4, 0)".
std::vector<std::string> SepLines(const SegTable& segments, int decimals);

}  // namespace tavrelo::mechanics::rigid
