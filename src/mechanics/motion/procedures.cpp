#include "mechanics/motion/procedures.h"

#include "mechanics/motion/link_stretches.h"
#include "mechanics/motion/parameters.h"
#include "mechanics/motion/planting.h"
#include "mechanics/motion/substitution.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::motion {
namespace {

constexpr const char* kNoBase = "Debes especificar el tiempo y la posición del punto base.";
constexpr const char* kGiveBase =
    "Para consignar los resultados en la tabla da el índice \"n\"\n"
    "del punto donde deseas que t = 0 y oprime el botón \"Aceptar\".";

Step PlantPoint(const Problem& problem, const points::PointPlace& place, int decimals) {
    const int column = points::ColumnOfPoint(problem.configuration, place);
    const auto stored = [&](int row) -> const text::Value& { return problem.table.Stored(row, column); };
    const auto is_empty = [&](int row) { return stored(row).Text().empty(); };
    if (is_empty(points::kTimeRow) || is_empty(points::kPositionRow))
        return text::Refusal{kNoBase};
    return Plant(
        problem,
        {place.mover, place.stretch, place.point, stored(points::kTimeRow), stored(points::kPositionRow),
         stored(points::kSpeedRow), problem.AccelerationOf(place.mover, place.stretch).stored},
        decimals);
}

struct Carrier {
    const Problem& problem;
    int decimals;

    Step operator()(const PlantRequest& request) const { return Plant(problem, request, decimals); }
    Step operator()(const AwaitBaseRequest& request) const {
        Outcome outcome = {problem, {Box{kGiveBase}}};
        outcome.problem.awaited_base = request.awaited;
        return outcome;
    }
    Step operator()(const TakeLinkRequest& request) const { return TakeLink(problem, request, decimals); }
    Step operator()(const PlantLinkRequest& request) const { return PlantLink(problem, request, decimals); }
};

}  // namespace

int BoardSlotOf(int mover, int stretch) { return 2 * static_cast<int>(SlotOf(mover, stretch)) + 1; }

std::variant<text::Refusal, PointData> ReadPoint(const Problem& problem, const points::PointPlace& place) {
    struct Row {
        int row;
        std::string_view letters;
        points::Datum PointData::*datum;
    };
    constexpr Row kRows[] = {{points::kTimeRow, points::kTimeLetters, &PointData::t},
                             {points::kPositionRow, points::kPositionLetters, &PointData::x},
                             {points::kSpeedRow, points::kSpeedLetters, &PointData::v}};
    const int column = points::ColumnOfPoint(problem.configuration, place);
    PointData data;
    for (const Row& row : kRows) {
        auto read = points::ReadDatum(problem.table.Stored(row.row, column), row.letters);
        if (const auto* refusal = std::get_if<text::Refusal>(&read))
            return *refusal;
        data.*row.datum = std::get<points::Datum>(std::move(read));
        if (const auto* reference = std::get_if<notation::CellReference>(&(data.*row.datum))) {
            if (auto refusal = points::CheckPointPair(problem.configuration, place.mover, place.stretch,
                                                      reference->point, place.point))
                return *refusal;
        }
    }
    return data;
}

Step ClickPoint(const Problem& problem, Procedure procedure, const points::PointPlace& place, int decimals) {
    const auto read = ReadPoint(problem, place);
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const PointData& data = std::get<PointData>(read);
    switch (procedure) {
        case Procedure::Plant:
            return PlantPoint(problem, place, decimals);
        case Procedure::Substitute:
            return Substitute(problem, place, data, decimals);
        case Procedure::SubstituteWithParameters:
            return SubstituteWithParameters(problem, place, data, decimals);
        default:
            return Outcome{problem, {}};
    }
}

std::optional<Step> TurnSpeed(const Problem& problem, const points::PointPlace& place, int decimals) {
    const Equations& equations = problem.EquationsOf(place.mover, place.stretch);
    const int column = points::ColumnOfPoint(problem.configuration, place);
    const text::Value& stored = problem.table.Stored(points::kSpeedRow, column);
    if (!equations.IsComplete() || !text::IsNum(stored))
        return std::nullopt;
    const double opposite = 0.0 - stored.Number();
    const auto time = TimeOfSpeed(equations.Expanded(), opposite);
    if (const auto* refusal = std::get_if<text::Refusal>(&time))
        return *refusal;
    Outcome outcome = {problem, {}};
    outcome.problem.table.SetNumber(points::kTimeRow, column, std::get<double>(time), decimals);
    outcome.problem.table.SetNumber(points::kSpeedRow, column, opposite, decimals);
    return outcome;
}

Outcome EraseEquations(const Problem& problem) {
    Outcome outcome = {WithoutEquations(problem), {}};
    for (int slot = 1; slot <= kEquationSlots; ++slot)
        outcome.events.emplace_back(ClearSlot{slot});
    return outcome;
}

Step Continue(const Problem& problem, const Request& request, int decimals) {
    return std::visit(Carrier{problem, decimals}, request);
}

}  // namespace tavrelo::mechanics::motion
