#include "mechanics/forces/equation_text.h"
#include "mechanics/particle/candidates.h"
#include "mechanics/particle/coefficient_tables.h"
#include "mechanics/particle/equilibrium_cases.h"
#include "mechanics/particle/particle_report.h"
#include "mechanics/particle/solve2.h"
#include "numeric/angles.h"
#include "text/symbols.h"
#include "window/host.h"

namespace tavrelo::mechanics::particle {
namespace {

using numeric::CosD;
using numeric::SinD;

// A magnitude and an angle: of two forces, or (shared) of one whose magnitude stands on a second force too,
// as the rope over a pulley.
class MagnitudeAndAngle : public CandidateCase {
  public:
    MagnitudeAndAngle(const mechanics::forces::ForceSums& sums, const TwoUnknowns& unknowns)
        : m_sums(sums), m_unknowns(unknowns), m_term(mechanics::forces::ReadUnknown(unknowns.second)) {}

    bool Shared() const { return m_term.HasBoth(); }

    std::optional<double> Factor(const std::string& unknown, const Candidate& candidate) const override {
        const double magnitude = Shared() ? candidate.first : 1;
        switch (mechanics::forces::ReadUnknown(unknown).function) {
            case mechanics::forces::AngleFunction::Cos:
                return magnitude * CosD(candidate.second);
            case mechanics::forces::AngleFunction::Sen:
                return magnitude * SinD(candidate.second);
            default:
                return mechanics::forces::SameUnknown(unknown, m_unknowns.first)
                           ? std::optional(candidate.first)
                           : std::nullopt;
        }
    }

    Report ReportOf(const Candidate& candidate) const override {
        const std::string magnitude = text::SubscriptName(m_unknowns.first);
        return {
            {{{m_unknowns.a, magnitude}, {m_unknowns.b, TermLabel(mechanics::forces::kCos)}}, m_sums.x.known},
            {{{m_unknowns.d, magnitude}, {m_unknowns.e, TermLabel(mechanics::forces::kSen)}}, m_sums.y.known},
            {{m_unknowns.first, candidate.first, ""}, {m_term.angle, candidate.second, kDegrees}}};
    }

    std::string QuestionTitle() const override { return std::string(window::kProgramTitle); }

  private:
    std::string TermLabel(const char* function) const {
        return Shared() ? mechanics::forces::AngleLabel(m_unknowns.first, function, m_term.angle)
                        : mechanics::forces::AngleLabel(function, m_term.angle);
    }

    const mechanics::forces::ForceSums& m_sums;
    const TwoUnknowns& m_unknowns;
    mechanics::forces::UnknownTerm m_term;
};

class TwoAngles : public CandidateCase {
  public:
    explicit TwoAngles(const mechanics::forces::ForceSums& sums)
        : m_sums(sums),
          m_first(mechanics::forces::ReadUnknown(sums.x.first).angle),
          m_second(mechanics::forces::ReadUnknown(sums.x.second).angle) {}

    std::optional<double> Factor(const std::string& unknown, const Candidate& candidate) const override {
        const bool is_first = mechanics::forces::SameUnknown(unknown, m_sums.x.first) ||
                              mechanics::forces::SameUnknown(unknown, m_sums.y.first);
        const double angle = is_first ? candidate.first : candidate.second;
        return mechanics::forces::ReadUnknown(unknown).function == mechanics::forces::AngleFunction::Cos
                   ? CosD(angle)
                   : SinD(angle);
    }

    Report ReportOf(const Candidate& candidate) const override {
        const auto terms = [&](const mechanics::forces::ForceSum& sum, const char* function) {
            return mechanics::forces::Equation{
                {{sum.first_coef, mechanics::forces::AngleLabel(function, m_first)},
                 {sum.second_coef, mechanics::forces::AngleLabel(function, m_second)}},
                sum.known};
        };
        return {terms(m_sums.x, mechanics::forces::kCos),
                terms(m_sums.y, mechanics::forces::kSen),
                {{m_first, candidate.first, kDegrees}, {m_second, candidate.second, kDegrees}}};
    }

    std::string QuestionTitle() const override { return {}; }

  private:
    const mechanics::forces::ForceSums& m_sums;
    std::string m_first;
    std::string m_second;
};

}  // namespace

Equilibrium SolveMagnitudeAndAngle(const mechanics::forces::ForceTable& table,
                                   const mechanics::forces::ForceSums& sums, int decimals) {
    const TwoUnknowns unknowns = MagnitudeAndAngleCoefficients(sums);
    const mechanics::forces::UnknownTerm term = mechanics::forces::ReadUnknown(unknowns.second);
    if (!term.HasAngle())
        return SilentEnd{};
    if (term.HasBoth() && !mechanics::forces::SameUnknown(term.magnitude, unknowns.first))
        return text::Refusal{mechanics::forces::kTooManyUnknowns};
    const auto solved = Solve2(term.HasBoth() ? kSharedMagnitude : kMagnitudeAndAngle, unknowns.a, unknowns.b,
                               sums.x.known, unknowns.d, unknowns.e, sums.y.known);
    if (const auto* refusal = std::get_if<text::Refusal>(&solved))
        return *refusal;
    return ChooseCandidate(table, MagnitudeAndAngle(sums, unknowns), std::get<std::vector<double>>(solved),
                           decimals);
}

Equilibrium SolveTwoAngles(const mechanics::forces::ForceTable& table,
                           const mechanics::forces::ForceSums& sums, int decimals) {
    const mechanics::forces::UnknownTerm first = mechanics::forces::ReadUnknown(sums.x.first);
    const mechanics::forces::UnknownTerm second = mechanics::forces::ReadUnknown(sums.x.second);
    if (first.HasBoth() || second.HasBoth())
        return text::Refusal{mechanics::forces::kTooManyUnknowns};
    if (!first.HasAngle() || !second.HasAngle())
        return SilentEnd{};
    const auto solved = Solve2(kTwoAngles, sums.x.first_coef, sums.x.second_coef, sums.x.known,
                               sums.y.first_coef, sums.y.second_coef, sums.y.known);
    if (const auto* refusal = std::get_if<text::Refusal>(&solved))
        return *refusal;
    return ChooseCandidate(table, TwoAngles(sums), std::get<std::vector<double>>(solved), decimals);
}

}  // namespace tavrelo::mechanics::particle
