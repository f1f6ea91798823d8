#include "motion/motion_sheet.h"

#include <cstdlib>

#include "mechanics/motion/typed_procedures.h"
#include "numeric/checked.h"

namespace tavrelo::physics {
namespace {

namespace motion = mechanics::motion;
namespace points = mechanics::points;

constexpr int kMostDigits = 15;
constexpr double kMiddle = 0.5;

std::string TextOf(double number) { return Significant(number, kMostDigits).text; }

/// What fails for a reason of its own is told as the tool tells it.
template <class Action>
motion::Step Guarded(const Action& action) {
    try {
        return action();
    } catch (const numeric::RuntimeFailure&) {
        return text::Refusal{"No pude ejecutar la instrucción."};
    }
}

void ClickBand(motion::Problem& problem, double position) {
    problem.configuration = points::ClickBand(problem.configuration, position).configuration;
}

}  // namespace

MotionSheet::MotionSheet(Problem& problem, const std::vector<int>& limits)
    : MotionSheet(problem, 1, points::kMostPoints, limits) {}

MotionSheet MotionSheet::OfTwoMovers(Problem& problem, int first_points, const std::vector<int>& limits) {
    return {problem, 2, first_points, limits};
}

MotionSheet::MotionSheet(Problem& problem, int movers, int first_points, const std::vector<int>& limits)
    : m_problem(problem) {
    const int variant = (movers == 2 ? 2 : 0) + (limits.empty() ? 0 : 1);
    m_motion = motion::Reconfigured(m_motion, variant);
    if (movers == 2)
        ClickBand(m_motion, first_points - kMiddle);
    for (const int limit : limits)
        ClickBand(m_motion, limit + kMiddle);
    if (!m_motion.configuration.IsConfigured())
        ClickBand(m_motion, first_points - kMiddle);
}

void MotionSheet::TypeCell(int mover, int point, int row, const std::string& text) {
    const int column = points::ColumnOfPoint(m_motion.configuration, mover, point);
    m_motion.table.At(row, column) = points::TextCell(text);
}

void MotionSheet::TypeColumn(int mover, int point, const TypedColumn& column) {
    Tell("mover " + std::to_string(mover) + ", point " + std::to_string(point) + ": " + column.Told());
    TypeCell(mover, point, points::kTimeRow, column.t.text);
    TypeCell(mover, point, points::kPositionRow, column.x.text);
    TypeCell(mover, point, points::kSpeedRow, column.v.text);
}

void MotionSheet::TypeAcceleration(int mover, int stretch, const std::string& text) {
    Tell("mover " + std::to_string(mover) + ", stretch " + std::to_string(stretch) + ": a = " + text);
    m_motion.accelerations[motion::SlotOf(mover, stretch)] = motion::TypedAcceleration(text);
}

void MotionSheet::TypeBase(int mover, int point, const KnownMotion& base, bool has_speed) {
    TypedColumn column = {{Form::Number, TextOf(base.tn), base.tn}, {Form::Number, TextOf(base.xn), base.xn}};
    if (has_speed)
        column.v = {Form::Number, TextOf(base.vn), base.vn};
    TypeColumn(mover, point, column);
}

motion::Step MotionSheet::Click(motion::Procedure procedure, const points::PointPlace& place) const {
    return Guarded([&] { return motion::ClickPoint(m_motion, procedure, place, kManyDecimals); });
}

motion::Step MotionSheet::ClickPair(motion::Procedure procedure, const motion::PointPair& pair) const {
    return Guarded([&] { return motion::RunOnPair(m_motion, procedure, pair, kManyDecimals); });
}

motion::Step MotionSheet::Run(motion::Procedure procedure, const std::string& text) {
    Tell("procedure " + std::to_string(static_cast<int>(procedure)) + ": " + text);
    return Guarded([&] { return motion::RunTyped(m_motion, procedure, text, kManyDecimals); });
}

void MotionSheet::Plant(const points::PointPlace& place) {
    Tell("planted on point " + std::to_string(place.point));
    Take(std::get<motion::Outcome>(Click(motion::Procedure::Plant, place)));
}

const std::string* MessageOf(const motion::Step& step) {
    const auto* refusal = std::get_if<text::Refusal>(&step);
    return refusal ? &refusal->text : nullptr;
}

const motion::Question* QuestionOf(const motion::Step& step) {
    const auto* outcome = std::get_if<motion::Outcome>(&step);
    if (!outcome || outcome->events.empty())
        return nullptr;
    return std::get_if<motion::Question>(&outcome->events.back());
}

std::vector<KnownMotion> OffersOf(const motion::Step& step) {
    std::vector<KnownMotion> offers;
    if (const motion::Question* question = QuestionOf(step))
        for (const auto& answer : {question->yes, question->no})
            if (const auto* plant = answer ? std::get_if<motion::PlantRequest>(&*answer) : nullptr)
                offers.push_back(
                    {plant->t.Number(), plant->x.Number(), plant->v.Number(), plant->a.Number()});
    return offers;
}

std::vector<std::string> ReportOf(const motion::Step& step) {
    std::vector<std::string> lines;
    if (const auto* outcome = std::get_if<motion::Outcome>(&step))
        for (const motion::Event& event : outcome->events)
            if (const auto* report = std::get_if<motion::WriteLines>(&event))
                lines.insert(lines.end(), report->lines.begin(), report->lines.end());
    return lines;
}

std::optional<double> NumberAfter(const std::string& line, const std::string& name) {
    const std::string sign = name + " = ";
    std::size_t place = line.find(sign);
    // A name that ends another one is not the name.
    while (place != std::string::npos && place > 0 && line[place - 1] != ' ')
        place = line.find(sign, place + 1);
    if (place == std::string::npos)
        return std::nullopt;
    std::string number = line.substr(place + sign.size());
    if (number.starts_with(";-"))
        number.erase(0, 1);
    return std::strtod(number.c_str(), nullptr);
}

}  // namespace tavrelo::physics
