#pragma once

#include <optional>
#include <span>

#include "mechanics/particle/equilibrium.h"
#include "mechanics/particle/particle_report.h"
#include "mechanics/particle/two_equations.h"

namespace tavrelo::mechanics::particle {

/// What a case of two roots tells about them.
class RootCase {
  public:
    virtual ~RootCase() = default;
    /// What the coefficient of that unknown is to be multiplied by; nothing for one that is not of the case.
    virtual std::optional<double> Factor(const notation::UnknownTerm& unknown, const Root& root) const = 0;
    virtual Report ReportOf(const Root& root) const = 0;
    /// Whether both unknowns are angles.
    virtual bool IsBetweenAngles() const = 0;
};

/// Puts the two roots into the forces and keeps those that are in equilibrium: a solution, a choice between
/// two, or the refusal of both. The check of a report goes on from the sums that the second root left.
Equilibrium ChooseRoot(std::span<const notation::Force> forces, const RootCase& method, const TwoRoots& roots,
                       int decimals);

}  // namespace tavrelo::mechanics::particle
