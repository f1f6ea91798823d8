#include "mechanics/rigid/structure_changes.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tavrelo::mechanics::rigid {
namespace {

// Where the first vector starts; empty without vectors.
std::string FirstPointOf(const SegTable& segments) { return segments.empty() ? "" : segments.front().from; }

// The structure that the vectors make, seen from the origin.
std::variant<text::Refusal, Structure> StructureOf(SegTable segments, const std::string& origin) {
    const auto points = ComputeCoords(segments);
    if (const auto* refusal = std::get_if<text::Refusal>(&points))
        return *refusal;
    auto seen = SeenFrom(std::get<PointTable>(points), origin);
    if (const auto* refusal = std::get_if<text::Refusal>(&seen))
        return *refusal;
    return Structure{std::move(segments), std::get<PointTable>(std::move(seen)), origin};
}

}  // namespace

std::variant<ChainRefusal, Structure> Extended(const Structure& structure, const ChainEntry& entry,
                                               int decimals) {
    auto rows = ChainRows(entry, structure.points, decimals);
    if (auto* refusal = std::get_if<ChainRefusal>(&rows))
        return std::move(*refusal);
    SegTable segments = structure.segments;
    std::ranges::move(std::get<SegTable>(rows), std::back_inserter(segments));
    const std::string origin = structure.segments.empty() ? FirstPointOf(segments) : structure.origin;
    auto extended = StructureOf(std::move(segments), origin);
    if (const auto* refusal = std::get_if<text::Refusal>(&extended))
        return ChainRefusal{*refusal, ChainField::Vector};
    return std::get<Structure>(std::move(extended));
}

Structure Shortened(const Structure& structure) {
    SegTable segments = structure.segments;
    while (segments.size() > 1) {
        segments.pop_back();
        for (const std::string& origin : {structure.origin, FirstPointOf(segments)}) {
            auto shortened = StructureOf(segments, origin);
            if (auto* result = std::get_if<Structure>(&shortened))
                return std::move(*result);
        }
    }
    return {};
}

}  // namespace tavrelo::mechanics::rigid
