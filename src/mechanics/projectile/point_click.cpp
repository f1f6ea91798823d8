#include "mechanics/projectile/point_click.h"

#include <utility>

#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

using notation::CellReference;

/// The reference in a cell; nothing for a number and for an empty cell. Any other text is refused.
std::variant<text::Refusal, std::optional<CellReference>> ReadReference(const text::Value& stored) {
    const std::string content = stored.Text();
    if (content.empty() || text::IsNum(stored))
        return std::optional<CellReference>();
    auto reference = notation::ParseCellReference(content);
    if (!reference)
        return text::Refusal{"Error en el dato " + content};
    return reference;
}

}  // namespace

std::variant<text::Refusal, PointCells> ReadPoint(const Problem& problem, int column) {
    PointCells cells;
    cells.mode = problem.ModeOf(column);
    for (const auto& [row, reference] : {std::pair{points::kLaunchTimeRow, &cells.time_reference},
                                         std::pair{points::kHeightRow, &cells.height_reference}}) {
        auto read = ReadReference(problem.table.Stored(row, column));
        if (auto* refusal = std::get_if<text::Refusal>(&read))
            return *refusal;
        *reference = std::get<std::optional<CellReference>>(read);
    }
    cells.t = problem.NumberAt(points::kLaunchTimeRow, column);
    cells.x = problem.NumberAt(points::kAcrossRow, column);
    cells.y = problem.NumberAt(points::kHeightRow, column);
    cells.first = problem.NumberAt(points::kMagnitudeRow, column);
    cells.second = problem.NumberAt(points::kDirectionRow, column);
    return cells;
}

}  // namespace tavrelo::mechanics::projectile
