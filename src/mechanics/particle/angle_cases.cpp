#include "mechanics/particle/angle_cases.h"

#include "mechanics/particle/coefficient_tables.h"
#include "mechanics/particle/root_choice.h"
#include "numeric/angles.h"

namespace tavrelo::mechanics::particle {
namespace {

using notation::Force;
using notation::UnknownTerm;
using numeric::CosD;
using numeric::SinD;

// A magnitude and an angle: of two forces, or (shared) of one whose magnitude stands on a second force too,
// as the rope over a pulley.
class MagnitudeAndAngle : public RootCase {
  public:
    MagnitudeAndAngle(const forces::ForceSums& sums, const TwoUnknowns& unknowns)
        : m_sums(sums), m_unknowns(unknowns) {}

    std::optional<double> Factor(const UnknownTerm& unknown, const Root& root) const override {
        const double magnitude = m_unknowns.second.HasBoth() ? root.first : 1;
        if (unknown.HasAngle())
            return magnitude * (unknown.IsCos() ? CosD(root.second) : SinD(root.second));
        return SameUnknown(unknown, m_unknowns.first) ? std::optional(root.first) : std::nullopt;
    }

    Report ReportOf(const Root& root) const override {
        return {{{{m_unknowns.a, m_unknowns.first}, {m_unknowns.b, Term(notation::AngleFunction::Cos)}},
                 m_sums.x.known},
                {{{m_unknowns.d, m_unknowns.first}, {m_unknowns.e, Term(notation::AngleFunction::Sen)}},
                 m_sums.y.known},
                {{{TextOf(m_unknowns.first), root.first}, {m_unknowns.second.angle, root.second, kDegrees}}}};
    }

    bool IsBetweenAngles() const override { return false; }

  private:
    // The angle's term, its magnitude written as it stands alone.
    UnknownTerm Term(notation::AngleFunction function) const {
        const bool shared = m_unknowns.second.HasBoth();
        return {shared ? TextOf(m_unknowns.first) : "", function, m_unknowns.second.angle};
    }

    const forces::ForceSums& m_sums;
    const TwoUnknowns& m_unknowns;
};

class TwoAngles : public RootCase {
  public:
    explicit TwoAngles(const forces::ForceSums& sums) : m_sums(sums) {}

    std::optional<double> Factor(const UnknownTerm& unknown, const Root& root) const override {
        const bool is_first =
            SameUnknown(unknown, m_sums.x.first.unknown) || SameUnknown(unknown, m_sums.y.first.unknown);
        const double angle = is_first ? root.first : root.second;
        return unknown.IsCos() ? CosD(angle) : SinD(angle);
    }

    Report ReportOf(const Root& root) const override {
        return {{Terms(m_sums.x, notation::AngleFunction::Cos), m_sums.x.known},
                {Terms(m_sums.y, notation::AngleFunction::Sen), m_sums.y.known},
                {{{First(), root.first, kDegrees}, {Second(), root.second, kDegrees}}}};
    }

    bool IsBetweenAngles() const override { return true; }

  private:
    const std::string& First() const { return m_sums.x.first.unknown.angle; }
    const std::string& Second() const { return m_sums.x.second.unknown.angle; }

    // Both equations write the angles as that of x does, and in its order.
    std::vector<forces::SumTerm> Terms(const forces::ForceSum& sum, notation::AngleFunction function) const {
        return {{sum.first.coef, {"", function, First()}}, {sum.second.coef, {"", function, Second()}}};
    }

    const forces::ForceSums& m_sums;
};

Equilibrium Chosen(std::span<const Force> forces, const RootCase& method,
                   const std::variant<text::Refusal, TwoRoots>& solved, int decimals) {
    if (const auto* refusal = std::get_if<text::Refusal>(&solved))
        return *refusal;
    return ChooseRoot(forces, method, std::get<TwoRoots>(solved), decimals);
}

}  // namespace

Equilibrium SolveForMagnitudeAndAngle(std::span<const Force> forces, const forces::ForceSums& sums,
                                      int decimals) {
    const TwoUnknowns unknowns = MagnitudeAndAngleCoefficients(sums);
    const UnknownTerm& term = unknowns.second;
    if (!term.HasAngle())
        return SilentEnd{};
    if (term.HasBoth() && !SameUnknown({.magnitude = term.magnitude}, unknowns.first))
        return text::Refusal{forces::kTooManyUnknowns};
    const TwoEquations equations = {unknowns.a, unknowns.b, sums.x.known,
                                    unknowns.d, unknowns.e, sums.y.known};
    return Chosen(forces, MagnitudeAndAngle(sums, unknowns),
                  term.HasBoth() ? SolveSharedMagnitude(equations) : SolveMagnitudeAndAngle(equations),
                  decimals);
}

Equilibrium SolveForTwoAngles(std::span<const Force> forces, const forces::ForceSums& sums, int decimals) {
    const UnknownTerm& first = sums.x.first.unknown;
    const UnknownTerm& second = sums.x.second.unknown;
    if (first.HasBoth() || second.HasBoth())
        return text::Refusal{forces::kTooManyUnknowns};
    if (!first.HasAngle() || !second.HasAngle())
        return SilentEnd{};
    return Chosen(forces, TwoAngles(sums),
                  SolveTwoAngles({sums.x.first.coef, sums.x.second.coef, sums.x.known, sums.y.first.coef,
                                  sums.y.second.coef, sums.y.known}),
                  decimals);
}

}  // namespace tavrelo::mechanics::particle
