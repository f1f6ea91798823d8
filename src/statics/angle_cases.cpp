#include "numeric/angles.h"
#include "shell/host.h"
#include "statics/candidates.h"
#include "statics/coefficient_tables.h"
#include "statics/equation_text.h"
#include "statics/equilibrium_cases.h"
#include "statics/particle_report.h"
#include "statics/solve2.h"
#include "vectors/symbols.h"

namespace tavrelo::statics {
namespace {

using numeric::CosD;
using numeric::SinD;

// A magnitude and an angle: of two forces, or (shared) of one whose magnitude stands on a second force too,
// as the rope over a pulley.
class MagnitudeAndAngle : public CandidateCase {
  public:
    MagnitudeAndAngle(const ForceSums& sums, const TwoUnknowns& unknowns)
        : m_sums(sums), m_unknowns(unknowns), m_term(ReadUnknown(unknowns.second)) {}

    bool Shared() const { return m_term.HasBoth(); }

    std::optional<double> Factor(const std::string& unknown, const Candidate& candidate) const override {
        const double magnitude = Shared() ? candidate.first : 1;
        switch (ReadUnknown(unknown).function) {
            case AngleFunction::Cos:
                return magnitude * CosD(candidate.second);
            case AngleFunction::Sen:
                return magnitude * SinD(candidate.second);
            default:
                return SameUnknown(unknown, m_unknowns.first) ? std::optional(candidate.first) : std::nullopt;
        }
    }

    Report ReportOf(const Candidate& candidate) const override {
        const std::string magnitude = vectors::SubscriptName(m_unknowns.first);
        return {{{{m_unknowns.a, magnitude}, {m_unknowns.b, TermLabel(kCos)}}, m_sums.x.known},
                {{{m_unknowns.d, magnitude}, {m_unknowns.e, TermLabel(kSen)}}, m_sums.y.known},
                {{m_unknowns.first, candidate.first, ""}, {m_term.angle, candidate.second, kDegrees}}};
    }

    std::string QuestionTitle() const override { return std::string(shell::kProgramTitle); }

  private:
    std::string TermLabel(const char* function) const {
        return Shared() ? AngleLabel(m_unknowns.first, function, m_term.angle)
                        : AngleLabel(function, m_term.angle);
    }

    const ForceSums& m_sums;
    const TwoUnknowns& m_unknowns;
    UnknownTerm m_term;
};

class TwoAngles : public CandidateCase {
  public:
    explicit TwoAngles(const ForceSums& sums)
        : m_sums(sums),
          m_first(ReadUnknown(sums.x.first).angle),
          m_second(ReadUnknown(sums.x.second).angle) {}

    std::optional<double> Factor(const std::string& unknown, const Candidate& candidate) const override {
        const bool is_first = SameUnknown(unknown, m_sums.x.first) || SameUnknown(unknown, m_sums.y.first);
        const double angle = is_first ? candidate.first : candidate.second;
        return ReadUnknown(unknown).function == AngleFunction::Cos ? CosD(angle) : SinD(angle);
    }

    Report ReportOf(const Candidate& candidate) const override {
        const auto terms = [&](const ForceSum& sum, const char* function) {
            return Equation{{{sum.first_coef, AngleLabel(function, m_first)},
                             {sum.second_coef, AngleLabel(function, m_second)}},
                            sum.known};
        };
        return {terms(m_sums.x, kCos),
                terms(m_sums.y, kSen),
                {{m_first, candidate.first, kDegrees}, {m_second, candidate.second, kDegrees}}};
    }

    std::string QuestionTitle() const override { return {}; }

  private:
    const ForceSums& m_sums;
    std::string m_first;
    std::string m_second;
};

}  // namespace

Equilibrium SolveMagnitudeAndAngle(const ForceTable& table, const ForceSums& sums, int decimals) {
    const TwoUnknowns unknowns = MagnitudeAndAngleCoefficients(sums);
    const UnknownTerm term = ReadUnknown(unknowns.second);
    if (!term.HasAngle())
        return SilentEnd{};
    if (term.HasBoth() && !SameUnknown(term.magnitude, unknowns.first))
        return Refusal{kTooManyUnknowns};
    const auto solved = Solve2(term.HasBoth() ? kSharedMagnitude : kMagnitudeAndAngle, unknowns.a, unknowns.b,
                               sums.x.known, unknowns.d, unknowns.e, sums.y.known);
    if (const auto* refusal = std::get_if<Refusal>(&solved))
        return *refusal;
    return ChooseCandidate(table, MagnitudeAndAngle(sums, unknowns), std::get<std::vector<double>>(solved),
                           decimals);
}

Equilibrium SolveTwoAngles(const ForceTable& table, const ForceSums& sums, int decimals) {
    const UnknownTerm first = ReadUnknown(sums.x.first);
    const UnknownTerm second = ReadUnknown(sums.x.second);
    if (first.HasBoth() || second.HasBoth())
        return Refusal{kTooManyUnknowns};
    if (!first.HasAngle() || !second.HasAngle())
        return SilentEnd{};
    const auto solved = Solve2(kTwoAngles, sums.x.first_coef, sums.x.second_coef, sums.x.known,
                               sums.y.first_coef, sums.y.second_coef, sums.y.known);
    if (const auto* refusal = std::get_if<Refusal>(&solved))
        return *refusal;
    return ChooseCandidate(table, TwoAngles(sums), std::get<std::vector<double>>(solved), decimals);
}

}  // namespace tavrelo::statics
