#pragma once

#include <string>
#include <variant>
#include <vector>

#include "mechanics/motion/procedures.h"
#include "mechanics/motion/two_points.h"
#include "motion/data_sets.h"
#include "problem.h"

namespace tavrelo::physics {

/// Decimals with which the reports are asked for, so that what is read from them is not rounded.
inline constexpr int kManyDecimals = 12;

/// A problem of motion as a student fills it in: cells are typed, labels clicked, texts typed in the box.
class MotionSheet {
  public:
    /// One mover of nine points, divided at `limits`.
    explicit MotionSheet(Problem& problem, const std::vector<int>& limits = {});
    /// Two movers, the first of `first_points` points.
    static MotionSheet OfTwoMovers(Problem& problem, int first_points, const std::vector<int>& limits = {});

    void TypeCell(int mover, int point, int row, const std::string& text);
    void TypeColumn(int mover, int point, const TypedColumn& column);
    void TypeAcceleration(int mover, int stretch, const std::string& text);
    /// The base of equations: an empty text is an unknown.
    void TypeBase(int mover, int point, const KnownMotion& base, bool has_speed);
    void EraseTable() { m_motion = mechanics::motion::WithEmptyTable(m_motion); }

    mechanics::motion::Step Click(mechanics::motion::Procedure procedure,
                                  const mechanics::points::PointPlace& place) const;
    mechanics::motion::Step ClickPair(mechanics::motion::Procedure procedure,
                                      const mechanics::motion::PointPair& pair) const;
    mechanics::motion::Step Run(mechanics::motion::Procedure procedure, const std::string& text);
    /// Plants the equations of a typed base.
    void Plant(const mechanics::points::PointPlace& place);
    void Take(const mechanics::motion::Outcome& outcome) { m_motion = outcome.problem; }

    const mechanics::motion::Problem& TheMotion() const { return m_motion; }

  private:
    MotionSheet(Problem& problem, int movers, int first_points, const std::vector<int>& limits);
    void Tell(const std::string& text) { m_problem.Type(text); }

    Problem& m_problem;
    mechanics::motion::Problem m_motion;
};

/// The message of a step, when it is one.
const std::string* MessageOf(const mechanics::motion::Step& step);
/// The question in which a step ends; null when there is none.
const mechanics::motion::Question* QuestionOf(const mechanics::motion::Step& step);
/// The motions of the equations that a step offers to plant.
std::vector<KnownMotion> OffersOf(const mechanics::motion::Step& step);
/// The lines of the report of a step.
std::vector<std::string> ReportOf(const mechanics::motion::Step& step);

/// The number behind "name = " in a line of a report; nothing when the name is not there.
/// The typographic minus counts as a minus.
std::optional<double> NumberAfter(const std::string& line, const std::string& name);

}  // namespace tavrelo::physics
