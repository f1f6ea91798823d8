#include "tools/motion/typed_procedures.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "mechanics/motion/equation_systems.h"
#include "mechanics/motion/interval_equations.h"

namespace tavrelo::tools::motion {
namespace {

using namespace mechanics::motion;
using text::Refusal;

/// The lines of a report, or why there is none.
using Report = std::variant<Refusal, std::vector<std::string>>;

/// A report leaves the problem as it is.
Step ReportOn(const mechanics::motion::Problem& problem, Report report) {
    if (auto* refusal = std::get_if<Refusal>(&report))
        return *refusal;
    return Outcome{problem, {WriteLines{std::get<std::vector<std::string>>(std::move(report))}}};
}

using TypedRoutine = Report (*)(std::string_view data, int decimals);

struct TypedRow {
    Procedure procedure;
    TypedRoutine routine;
};

template <SystemShape kShape>
Report System(std::string_view data, int decimals) {
    return ReportSystem(kShape, data, decimals);
}

constexpr TypedRow kTypedRows[] = {
    {Procedure::Interval, ApplyIntervalEquations},
    {Procedure::SystemVA, System<SystemShape::VA_VA>},
    {Procedure::SystemV2A, System<SystemShape::V2A_VA>},
    {Procedure::SystemV2A2A, System<SystemShape::V2A2A_VA>},
    {Procedure::SystemV2A2AV2A, System<SystemShape::V2A2A_V2A>},
    {Procedure::Quadratic, ReportQuadratic},
};

}  // namespace

Step RunTyped(const mechanics::motion::Problem& problem, Procedure procedure, std::string_view data,
              int decimals) {
    const auto* row = std::ranges::find(kTypedRows, procedure, &TypedRow::procedure);
    if (row == std::end(kTypedRows))
        return Outcome{problem, {}};
    return ReportOn(problem, row->routine(data, decimals));
}

}  // namespace tavrelo::tools::motion
