#include "mechanics/motion/linking.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "mechanics/motion/holding.h"
#include "mechanics/motion/times.h"
#include "numeric/checked.h"
#include "numeric/real_roots.h"

namespace tavrelo::mechanics::motion {

namespace {

using numeric::CheckedDivide;
using numeric::CleanDifference;
using numeric::Finite;
using text::Refusal;

using LinkedMotions = std::vector<LinkedMotion>;

/// The data with the missing one as 0, in the letters of the formulas.
struct Known {
    double ta, xa, va, a1, a2, tc, xc, vc;

    double T() const { return tc - ta; }
    double Distance() const { return xc - xa; }
};

// Each case finds the missing datum and the time of the junction; whether they fit, Accept tells.

MotionPoint AfterTime(const MotionPoint& from, double acceleration, double duration) {
    return {Finite(from.t + duration), Finite(from.x + (from.v + acceleration * duration / 2) * duration),
            Finite(from.v + acceleration * duration)};
}

/// Whether a motion from `from` with `acceleration` arrives at `to`.
bool Arrives(const MotionPoint& from, double acceleration, const MotionPoint& to) {
    const double duration = to.t - from.t;
    return TermsCancel({to.x, -from.x, -from.v * duration, -acceleration * duration * duration / 2}) &&
           TermsCancel({to.v, -from.v, -acceleration * duration});
}

/// Keeps the motion through the junction at `tb` when it is in order and satisfies both stretches.
void Accept(LinkedMotions& motions, const Known& k, double tb) {
    const double slack = TimeSlack(k.ta, k.tc);
    if (tb < k.ta - slack || tb > k.tc + slack)
        return;
    const MotionPoint a = {k.ta, k.xa, k.va};
    const LinkedMotion motion = {AfterTime(a, k.a1, tb - k.ta), {k.tc, k.xc, k.vc}, k.a1, k.a2};
    if (Arrives(motion.junction, k.a2, motion.end))
        motions.push_back(motion);
}

LinkedMotions WithoutFinalSpeed(Known k) {
    const double rest = CleanDifference(k.Distance(), Finite((k.va + k.a1 * k.T() / 2) * k.T()));
    const double y_squared = CheckedDivide(2 * rest, k.a2 - k.a1);
    LinkedMotions motions;
    if (y_squared >= 0) {
        const double y = std::sqrt(y_squared);
        k.vc = Finite(k.va + k.a1 * k.T() + (k.a2 - k.a1) * y);
        Accept(motions, k, k.tc - y);
    }
    return motions;
}

LinkedMotions WithoutFinalPosition(Known k) {
    const double y = CheckedDivide(CleanDifference(k.vc - k.va, Finite(k.a1 * k.T())), k.a2 - k.a1);
    k.xc = Finite(k.xa + (k.va + k.a1 * k.T() / 2) * k.T() + (k.a2 - k.a1) * y * y / 2);
    LinkedMotions motions;
    Accept(motions, k, k.tc - y);
    return motions;
}

/// From the distance of the first stretch and the speed at the junction. A stretch without acceleration takes
/// the time of its distance at its one speed.
void AcceptJunctionSpeed(LinkedMotions& motions, Known k, double first_distance, double vb) {
    const bool is_first_uniform = k.a1 == 0, is_second_uniform = k.a2 == 0;
    if ((is_first_uniform && vb * k.va < 0) || (is_second_uniform && vb * k.vc < 0))
        return;
    const double tb =
        k.ta + (is_first_uniform ? CheckedDivide(first_distance, k.va) : CheckedDivide(vb - k.va, k.a1));
    k.tc = tb + (is_second_uniform ? CheckedDivide(k.Distance() - first_distance, k.vc)
                                   : CheckedDivide(k.vc - vb, k.a2));
    Finite(k.tc);
    Accept(motions, k, tb);
}

LinkedMotions WithoutFinalTime(Known k) {
    const double squares = Finite(k.vc * k.vc - k.va * k.va - 2 * k.a2 * k.Distance());
    const double first_distance = CheckedDivide(squares, 2 * (k.a1 - k.a2));
    const double vb_squared = CleanDifference(Finite(k.va * k.va), Finite(-2 * k.a1 * first_distance));
    LinkedMotions motions;
    if (vb_squared < 0)
        return motions;
    const double vb = std::sqrt(vb_squared);
    AcceptJunctionSpeed(motions, k, first_distance, vb);
    if (vb > 0)
        AcceptJunctionSpeed(motions, k, first_distance, -vb);
    return motions;
}

LinkedMotions WithoutFirstAcceleration(Known k) {
    LinkedMotions motions;
    const double slope = CleanDifference(k.vc - k.va, Finite(k.a2 * k.T()));
    if (slope == 0)
        return motions;
    const double y = CheckedDivide(CleanDifference(2 * k.Distance(), Finite((k.va + k.vc) * k.T())), slope);
    const double first_duration = CleanDifference(k.T(), y);
    if (first_duration == 0)
        return motions;
    k.a1 = CheckedDivide(CleanDifference(k.vc - k.va, Finite(k.a2 * y)), first_duration);
    Accept(motions, k, k.tc - y);
    return motions;
}

LinkedMotions WithoutSecondAcceleration(Known k) {
    LinkedMotions motions;
    const double slope = CleanDifference(Finite(k.a1 * k.T()), k.vc - k.va);
    if (slope == 0)
        return motions;
    const double z = CheckedDivide(CleanDifference(2 * k.Distance(), Finite((k.va + k.vc) * k.T())), slope);
    const double second_duration = CleanDifference(k.T(), z);
    if (second_duration == 0)
        return motions;
    k.a2 = CheckedDivide(CleanDifference(k.vc - k.va, Finite(k.a1 * z)), second_duration);
    Accept(motions, k, k.ta + z);
    return motions;
}

struct LinkCase {
    LinkDatum missing;
    std::optional<double> LinkData::*datum;
    LinkedMotions (*solve)(Known);
};
constexpr LinkCase kCases[] = {
    {LinkDatum::FirstAcceleration, &LinkData::first_acceleration, WithoutFirstAcceleration},
    {LinkDatum::SecondAcceleration, &LinkData::second_acceleration, WithoutSecondAcceleration},
    {LinkDatum::FinalTime, &LinkData::tc, WithoutFinalTime},
    {LinkDatum::FinalPosition, &LinkData::xc, WithoutFinalPosition},
    {LinkDatum::FinalSpeed, &LinkData::vc, WithoutFinalSpeed},
};

/// The case of the one missing datum.
const LinkCase& CaseOf(const LinkData& data) {
    const auto is_missing = [&data](const LinkCase& row) { return !(data.*row.datum).has_value(); };
    if (std::count_if(std::begin(kCases), std::end(kCases), is_missing) != 1)
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "data of a link");
    return *std::find_if(std::begin(kCases), std::end(kCases), is_missing);
}

}  // namespace

LinkDatum LinkData::Missing() const { return CaseOf(*this).missing; }

std::variant<Refusal, LinkedMotions> SolveLink(const LinkData& data) {
    const LinkCase& link_case = CaseOf(data);
    if (data.first_acceleration && data.second_acceleration &&
        CleanDifference(*data.first_acceleration, *data.second_acceleration) == 0)
        return Refusal{std::string(kEqualAccelerations)};
    const Known known = {data.a.t,
                         data.a.x,
                         data.a.v,
                         data.first_acceleration.value_or(0),
                         data.second_acceleration.value_or(0),
                         data.tc.value_or(0),
                         data.xc.value_or(0),
                         data.vc.value_or(0)};
    LinkedMotions motions = link_case.solve(known);
    if (motions.empty())
        return Refusal{std::string(kNoLink)};
    return motions;
}

}  // namespace tavrelo::mechanics::motion
