#include "window/picture_cells.h"

#include <cmath>

namespace tavrelo::window {
namespace {

/// What lies aside of an arrow's direction counts this much more than what lies along it.
constexpr double kAsideWeight = 2;

struct Way {
    double along;  // positive: in the direction of the arrow
    double aside;
};

Way WayTo(Point from, Point to, Key key) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    switch (key) {
        case Key::Left:
            return {-dx, std::abs(dy)};
        case Key::Right:
            return {dx, std::abs(dy)};
        case Key::Up:
            return {-dy, std::abs(dx)};
        case Key::Down:
            return {dy, std::abs(dx)};
        default:
            return {0, 0};
    }
}

/// The enabled cell of the smallest cost; a cost below 0 rules a cell out.
template <class Cost>
int Cheapest(std::span<const PictureCell> cells, Cost cost) {
    int best = kNoCell;
    double lowest = 0;
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
        const double here = cells[cell].enabled ? cost(cells[cell]) : -1;
        if (here < 0 || (best != kNoCell && here >= lowest))
            continue;
        best = static_cast<int>(cell);
        lowest = here;
    }
    return best;
}

int FirstEnabled(std::span<const PictureCell> cells) {
    return Cheapest(cells, [](const PictureCell&) { return 0; });
}

int LastEnabled(std::span<const PictureCell> cells) {
    for (std::size_t behind = cells.size(); behind > 0; --behind)
        if (cells[behind - 1].enabled)
            return static_cast<int>(behind - 1);
    return kNoCell;
}

}  // namespace

Point MiddleOf(const Rect& bounds) {
    return {bounds.left + bounds.width / 2.0, bounds.top + bounds.height / 2.0};
}

int CellUnder(std::span<const PictureCell> cells, Point place) {
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
        const Rect& bounds = cells[cell].bounds;
        const bool inside = place.x >= bounds.left && place.x < bounds.left + bounds.width &&
                            place.y >= bounds.top && place.y < bounds.top + bounds.height;
        if (inside)
            return static_cast<int>(cell);
    }
    return kNoCell;
}

int NearestCell(std::span<const PictureCell> cells, Point place) {
    return Cheapest(cells, [place](const PictureCell& cell) {
        const Point middle = MiddleOf(cell.bounds);
        return std::hypot(middle.x - place.x, middle.y - place.y);
    });
}

int CellBeside(std::span<const PictureCell> cells, int from, Key key) {
    if (key == Key::Home)
        return FirstEnabled(cells);
    if (key == Key::End)
        return LastEnabled(cells);
    if (from < 0 || from >= static_cast<int>(cells.size()))
        return kNoCell;
    const Point start = MiddleOf(cells[static_cast<std::size_t>(from)].bounds);
    return Cheapest(cells, [start, key](const PictureCell& cell) {
        const Way way = WayTo(start, MiddleOf(cell.bounds), key);
        return way.along > 0 ? way.along + kAsideWeight * way.aside : -1;
    });
}

}  // namespace tavrelo::window
