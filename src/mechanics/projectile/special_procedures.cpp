// The procedures of the list: what is typed and what the table holds, brought to the special problems.

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>

#include "mechanics/projectile/collision.h"
#include "mechanics/projectile/crossing.h"
#include "mechanics/projectile/fitting.h"
#include "mechanics/projectile/parameter_procedures.h"
#include "mechanics/projectile/planting.h"
#include "mechanics/projectile/procedures.h"
#include "mechanics/projectile/tan_systems.h"
#include "notation/typed_list.h"
#include "numeric/checked.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::projectile {
namespace {

using notation::ReadNumbers;

constexpr const char* kNoStart = "Debes dar el tiempo t0 y la posición inicial (x0, y0)";
constexpr const char* kMustBeUnknown = "v0 o theta o ambas deben ser incógnitas en este procedimiento.";
constexpr const char* kPolarModeNeeded = "Cambia el modo de datos de velocidad a \"md\".";
constexpr int kObjectsProjectile = 1;  // the mover that meets an object

[[noreturn]] void ThrowMistyped(const char* what) {
    throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, what);
}

int WholeNumber(double number) {
    const int whole = numeric::RoundToInteger(number);
    if (whole != number)
        ThrowMistyped("number of a mover or a point");
    return whole;
}

/// What a special problem gives is shown, and asked about when it found launches.
Step Show(const Problem& problem, const WorkedOrRefusal& worked_or_refusal) {
    if (const auto* refusal = std::get_if<text::Refusal>(&worked_or_refusal))
        return *refusal;
    const auto& worked = std::get<Worked>(worked_or_refusal);
    Outcome outcome = {problem, {WriteLines{worked.report}}};
    if (!worked.launches.empty())
        outcome.events.emplace_back(
            AskToPlant(worked.mover, worked.launches, worked.question, worked.buttons));
    return outcome;
}

/// The numbers of a point that a problem needs; fails where the table has no such point or not all of them.
std::vector<double> NumbersAt(const Problem& problem, int mover, int point, std::initializer_list<int> rows) {
    if (!problem.HasPoint(mover, point))
        ThrowMistyped("no such point");
    std::vector<double> numbers;
    for (const int row : rows) {
        const auto number = problem.NumberAt(row, problem.ColumnOf(mover, point));
        if (!number)
            ThrowMistyped("cell without number");
        numbers.push_back(*number);
    }
    return numbers;
}

Start StartAt(const Problem& problem, int mover) {
    const auto numbers =
        NumbersAt(problem, mover, 0, {points::kLaunchTimeRow, points::kAcrossRow, points::kHeightRow});
    return {numbers[0], numbers[1], numbers[2]};
}

// Launches that fit what is told of the whole flight.

Step ThreePoints(const Problem& problem, const std::vector<double>& typed, int decimals) {
    const int mover = WholeNumber(typed[0]);
    std::array<numeric::Point, 3> places;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto numbers =
            NumbersAt(problem, mover, WholeNumber(typed[i + 1]), {points::kAcrossRow, points::kHeightRow});
        places[i] = {numbers[0], numbers[1]};
    }
    const double t = NumbersAt(problem, mover, WholeNumber(typed[1]), {points::kLaunchTimeRow})[0];
    return Show(problem, LaunchThrough(mover, t, places, decimals));
}

Step RangeRatio(const Problem& problem, const std::vector<double>& typed, int decimals) {
    const int mover = WholeNumber(typed[0]);
    const Start start = StartAt(problem, mover);
    const int column = problem.ColumnOf(mover, 0);
    const auto speed = problem.ModeOf(column) == SpeedMode::Polar
                           ? problem.NumberAt(points::kMagnitudeRow, column)
                           : std::nullopt;
    return Show(problem, LaunchWithRangeRatio(mover, start, speed, typed[1], decimals));
}

Step FlightTimeAndRange(const Problem& problem, const std::vector<double>& typed, int decimals) {
    const int mover = WholeNumber(typed[0]);
    return Show(problem, LaunchWithFlight(mover, StartAt(problem, mover), typed[1], typed[2], decimals));
}

// Trajectories.

Step Incline(const Problem& problem, const std::vector<double>& typed, int decimals) {
    const int mover = WholeNumber(typed[0]);
    const int point = WholeNumber(typed[1]);
    if (!problem.HasPoint(mover, point))
        return text::Refusal{kSolveOtherwise};
    const int column = problem.ColumnOf(mover, point);
    const auto x = problem.NumberAt(points::kAcrossRow, column);
    const auto y = problem.NumberAt(points::kHeightRow, column);
    if (!x || !y)
        return text::Refusal{kSolveOtherwise};
    const auto hits = RangeOnPlane(mover, problem.EquationsOf(mover), *x, *y, typed[2]);
    if (const auto* refusal = std::get_if<text::Refusal>(&hits))
        return *refusal;
    return Outcome{problem, {WriteLines{InclineReport(std::get<std::vector<InclineHit>>(hits), decimals)}}};
}

Step Cross(const Problem& problem, int decimals) {
    const auto crossings = CrossTrajectories(problem.EquationsOf(1), problem.EquationsOf(2));
    if (const auto* refusal = std::get_if<text::Refusal>(&crossings))
        return *refusal;
    return Outcome{problem,
                   {WriteLines{CrossingReport(std::get<std::vector<Crossing>>(crossings), decimals)}}};
}

// Data given by name.

/// "tc = 3, u = 2": the numbers by their names. Fails on a name that is not among those taken, or given
/// twice, and on what is no number.
std::map<std::string, double> ReadNamed(std::string_view typed,
                                        std::initializer_list<std::string_view> names) {
    std::map<std::string, double> named;
    if (text::Trim(typed).empty())
        return named;
    for (const std::string_view piece : notation::PiecesOf(typed)) {
        const std::size_t equals = piece.find('=');
        if (equals == std::string_view::npos)
            ThrowMistyped("datum without value");
        const std::string name = text::Trim(piece.substr(0, equals));
        const std::string number = text::Trim(piece.substr(equals + 1));
        if (std::find(names.begin(), names.end(), name) == names.end() || !text::IsNum(number) ||
            !named.emplace(name, text::ToNumber(number)).second)
            ThrowMistyped("datum by name");
    }
    return named;
}

std::optional<double> Find(const std::map<std::string, double>& named, const std::string& name) {
    const auto found = named.find(name);
    return found == named.end() ? std::nullopt : std::optional(found->second);
}

constexpr const char* kMeetingTime = "tc";
constexpr const char* kObjectSpeed = "u";

Step Collide(const Problem& problem, std::string_view typed, int decimals) {
    const auto time = Find(ReadNamed(typed, {kMeetingTime}), kMeetingTime);
    return Show(problem, CollideProjectiles(problem.EquationsOf(1), problem.EquationsOf(2), time, decimals));
}

/// The launch that is to meet the object: the planted one if it has parameters, else what point 0 holds.
std::variant<text::Refusal, Launch> LaunchToMeet(const Problem& problem) {
    const int column = problem.ColumnOf(kObjectsProjectile, 0);
    const bool polar = problem.ModeOf(column) == SpeedMode::Polar;
    const auto first = problem.NumberAt(points::kMagnitudeRow, column);
    const auto second = problem.NumberAt(points::kDirectionRow, column);
    const Equations& planted = problem.EquationsOf(kObjectsProjectile);
    if (planted.IsComplete() || (first && second))
        return text::Refusal{kMustBeUnknown};
    if (planted.kind != LaunchKind::None && planted.launch.mode == SpeedMode::Polar)
        return planted.launch;
    if (!polar && (first || second))
        return text::Refusal{kPolarModeNeeded};
    const auto t = problem.NumberAt(points::kLaunchTimeRow, column);
    const auto x = problem.NumberAt(points::kAcrossRow, column);
    const auto y = problem.NumberAt(points::kHeightRow, column);
    if (!t || !x || !y)
        return text::Refusal{kNoStart};
    return Launch{SpeedMode::Polar, Start{*t, *x, *y}, first, second};
}

Step Meet(const Problem& problem, std::string_view typed, int decimals) {
    const auto named = ReadNamed(typed, {kObjectSpeed, kMeetingTime});
    const auto launch_or_refusal = LaunchToMeet(problem);
    if (const auto* refusal = std::get_if<text::Refusal>(&launch_or_refusal))
        return *refusal;
    const auto& launch = std::get<Launch>(launch_or_refusal);
    const Interception data = {*launch.start, launch.first, launch.second, Find(named, kObjectSpeed),
                               Find(named, kMeetingTime)};
    if (data.NeedsLimit())
        return Outcome{problem, {AskLimit{kLimitTitle, kFlightTimeLimitText, data}}};
    return Show(problem, Intercept(data, 0.0, decimals));
}

// Pairs of equations.

Step ShowTan(const Problem& problem, const TanSolutions& solutions, TanLayout layout, int decimals) {
    if (const auto* refusal = std::get_if<text::Refusal>(&solutions))
        return *refusal;
    return Outcome{
        problem, {WriteLines{TanReport(std::get<std::vector<PolarVelocity>>(solutions), layout, decimals)}}};
}

template <std::size_t kCount>
std::array<double, kCount> ArrayOf(const std::vector<double>& numbers) {
    std::array<double, kCount> array{};
    std::copy_n(numbers.begin(), kCount, array.begin());
    return array;
}

Step SquaredPair(const Problem& problem, const std::vector<double>& typed, int decimals) {
    return ShowTan(problem, SolveSquaredPair(ArrayOf<6>(typed)), TanLayout::TwoLines, decimals);
}
Step PlainPair(const Problem& problem, const std::vector<double>& typed, int decimals) {
    return ShowTan(problem, SolvePlainPair(ArrayOf<6>(typed)), TanLayout::TwoLines, decimals);
}
Step MixedPair(const Problem& problem, const std::vector<double>& typed, int decimals) {
    return ShowTan(problem, SolveMixedPair(ArrayOf<6>(typed)), TanLayout::OneLine, decimals);
}
Step WithHorizontal(const Problem& problem, const std::vector<double>& typed, int decimals) {
    return ShowTan(problem, SolveWithHorizontal(ArrayOf<4>(typed)), TanLayout::OneLinePlainAngle, decimals);
}
Step WithVertical(const Problem& problem, const std::vector<double>& typed, int decimals) {
    return ShowTan(problem, SolveWithVertical(ArrayOf<4>(typed)), TanLayout::OneLine, decimals);
}

/// The procedures whose box holds a list of so many numbers.
struct NumbersRow {
    Special special;
    std::size_t count;
    Step (*run)(const Problem&, const std::vector<double>& typed, int decimals);
};
constexpr std::array<NumbersRow, 9> kNumbersRows = {{
    {Special::ThreePoints, 4, ThreePoints},
    {Special::RangeRatio, 2, RangeRatio},
    {Special::FlightTimeAndRange, 3, FlightTimeAndRange},
    {Special::Incline, 3, Incline},
    {Special::SquaredPair, 6, SquaredPair},
    {Special::WithHorizontal, 4, WithHorizontal},
    {Special::WithVertical, 4, WithVertical},
    {Special::PlainPair, 6, PlainPair},
    {Special::MixedPair, 6, MixedPair},
}};

}  // namespace

Step RunSpecial(const Problem& problem, Special special, std::string_view text, int decimals) {
    if (special == Special::Crossing)
        return Cross(problem, decimals);
    if (special == Special::Collision)
        return Collide(problem, text, decimals);
    if (special == Special::Interception)
        return Meet(problem, text, decimals);
    for (const NumbersRow& row : kNumbersRows) {
        if (row.special != special)
            continue;
        const auto numbers = ReadNumbers(text, row.count);
        if (const auto* refusal = std::get_if<text::Refusal>(&numbers))
            return *refusal;
        return row.run(problem, std::get<std::vector<double>>(numbers), decimals);
    }
    return Outcome{problem, {}};
}

Step ContinueWithLimit(const Problem& problem, const LimitRequest& request, std::string_view typed,
                       int decimals) {
    if (const auto* search = std::get_if<QuarticSearch>(&request))
        return SearchQuartic(problem, *search, typed, decimals);
    const auto& data = std::get<Interception>(request);
    const auto limit = ReadFlightTimeLimit(data.start, std::string(typed));
    if (const auto* refusal = std::get_if<text::Refusal>(&limit))
        return *refusal;
    return Show(problem, Intercept(data, std::get<double>(limit), decimals));
}

Step Continue(const Problem& problem, const Request& request, int decimals) {
    if (const auto* plant = std::get_if<PlantRequest>(&request))
        return PlantInto(problem, plant->mover, plant->launch, decimals);
    const auto& put = std::get<PutPointRequest>(request);
    Outcome outcome = {problem, {}};
    PutPoint(outcome.problem, put.column, put.state, decimals);
    return outcome;
}

Outcome EraseEquations(const Problem& problem) {
    Outcome outcome = {problem, {}};
    outcome.problem.equations = {};
    for (int slot = 1; slot <= kBoardSlots; ++slot)
        outcome.events.emplace_back(ClearSlot{slot});
    return outcome;
}

}  // namespace tavrelo::mechanics::projectile
