#include "mechanics/rigid/structure.h"

#include <algorithm>
#include <utility>

#include "numeric/checked.h"
#include "numeric/compare.h"
#include "text/number_text.h"
#include "text/utf8.h"
#include "text/value_lists.h"

namespace tavrelo::mechanics::rigid {
namespace {

constexpr double kCoincidence = 1e-7;

bool IsKnown(const PointTable& points, std::string_view name) { return PointIndex(points, name) != 0; }

// The other end of a vector that leaves or reaches `base`, when it is still to be found.
std::optional<PointRecord> OtherEnd(const SegRow& row, const PointRecord& base, const PointTable& points) {
    if (row.from == base.name && !IsKnown(points, row.to))
        return PointRecord{row.to, numeric::CheckedAdd(base.x, row.dx), numeric::CheckedAdd(base.y, row.dy)};
    if (row.to == base.name && !IsKnown(points, row.from))
        return PointRecord{row.from, numeric::CheckedSubtract(base.x, row.dx),
                           numeric::CheckedSubtract(base.y, row.dy)};
    return {};
}

// The next point that a vector leads to from one that is known. The walk decides which of two coinciding
// points the message names, and the order of the points.
std::optional<PointRecord> FindNext(const SegTable& segments, const PointTable& points) {
    for (const PointRecord& base : points)
        for (const SegRow& row : segments)
            if (auto end = OtherEnd(row, base, points))
                return end;
    return {};
}

bool Coincide(const PointRecord& a, const PointRecord& b) {
    return numeric::NearEq(a.x, b.x, kCoincidence) && numeric::NearEq(a.y, b.y, kCoincidence);
}

const PointRecord* CoincidingPoint(const PointTable& points, const PointRecord& point) {
    const auto found = std::find_if(points.begin(), points.end(),
                                    [&](const PointRecord& other) { return Coincide(other, point); });
    return found == points.end() ? nullptr : &*found;
}

std::string PairText(double x, double y, int decimals) {
    return "(" + text::RoundedText(x, decimals) + ", " + text::RoundedText(y, decimals) + ")";
}

std::string CoordLine(const std::string& letter, const PointRecord* point, int decimals) {
    return point ? letter + " = " + PairText(point->x, point->y, decimals) : letter + "(?, ?)";
}

}  // namespace

std::size_t PointIndex(const PointTable& points, std::string_view name) {
    const auto found = std::find_if(points.begin(), points.end(),
                                    [&](const PointRecord& point) { return point.name == name; });
    return found == points.end() ? 0 : static_cast<std::size_t>(found - points.begin()) + 1;
}

const PointRecord* FindPoint(const PointTable& points, std::string_view name) {
    const std::size_t index = PointIndex(points, name);
    return index == 0 ? nullptr : &points[index - 1];
}

std::vector<std::string> LettersOf(std::string_view text) {
    std::vector<std::string> letters;
    for (char32_t letter : text::ToCodePoints(text))
        letters.push_back(text::ToUtf8(letter));
    return letters;
}

std::vector<std::string> LettersOf(const SegTable& segments) {
    std::vector<std::string> letters;
    for (const SegRow& row : segments) {
        letters.push_back(row.from);
        letters.push_back(row.to);
    }
    letters.resize(static_cast<std::size_t>(text::RemoveDuplicates(letters)));
    return letters;
}

bool HasRepeated(std::string_view text) {
    std::vector<std::string> letters = LettersOf(text);
    const std::size_t count = letters.size();
    return static_cast<std::size_t>(text::RemoveDuplicates(letters)) < count;
}

std::variant<text::Refusal, PointTable> ComputeCoords(const SegTable& segments) {
    if (segments.empty())
        return PointTable{};
    PointTable points = {{segments.front().from, 0, 0}};
    while (auto next = FindNext(segments, points)) {
        if (const PointRecord* other = CoincidingPoint(points, *next))
            return text::Refusal{"El punto " + next->name + " coincidiría con " + other->name};
        points.push_back(*std::move(next));
    }
    return points;
}

std::variant<text::Refusal, PointTable> SeenFrom(const PointTable& points, std::string_view origin) {
    const PointRecord* base = FindPoint(points, origin);
    if (!base)
        return text::Refusal{"No conozco las coordenadas del punto " + std::string(origin)};
    PointTable seen = points;
    for (PointRecord& point : seen) {
        point.x = numeric::CheckedSubtract(point.x, base->x);
        point.y = numeric::CheckedSubtract(point.y, base->y);
    }
    return seen;
}

std::vector<std::string> CoordLines(const SegTable& segments, const PointTable& points, int decimals) {
    std::vector<std::string> lines;
    for (const std::string& letter : LettersOf(segments))
        lines.push_back(CoordLine(letter, FindPoint(points, letter), decimals));
    return lines;
}

std::vector<std::string> SepLines(const SegTable& segments, int decimals) {
    std::vector<std::string> lines;
    for (const SegRow& row : segments)
        lines.push_back(row.from + row.to + " = " + PairText(row.dx, row.dy, decimals));
    return lines;
}

}  // namespace tavrelo::mechanics::rigid
