#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/rigid/diagram_layout.h"
#include "tools/rigid/rigid_picture.h"

namespace tavrelo::tools::rigid {

/// Where the points of a structure stand on a picture, in whole pixels from its top left.
struct PointPlaces {
    struct Entry {
        std::string name;
        window::Point place;
    };
    std::vector<Entry> points;  // as the table of points
    window::Point origin{};

    std::optional<window::Point> Find(std::string_view name) const;
};

/// Structure and origin in the middle of the picture, with room for arrows around; one scale for both axes.
PointPlaces PlacesOf(const mechanics::rigid::PointTable& points, CanvasSize size);

/// Adds the axes through the origin and the points with their letters. There must be a point.
void AddStructure(DiagramLayout& layout, const RigidScene& scene, const PointPlaces& places);

/// Adds one line through its points; a letter without a point breaks it.
void AddChain(DiagramLayout& layout, const PointPlaces& places, const mechanics::rigid::LineRow& line);

/// Adds the lines of the systems in view, or of all systems while none is; returns how many rows that are.
std::size_t AddLines(DiagramLayout& layout, const RigidScene& scene, const PointPlaces& places);

}  // namespace tavrelo::tools::rigid
