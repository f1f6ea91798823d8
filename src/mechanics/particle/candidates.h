#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mechanics/particle/equilibrium.h"
#include "mechanics/particle/particle_report.h"

namespace tavrelo::mechanics::particle {

/// Values of the two unknowns, in the order of the report.
struct Candidate {
    double first;
    double second;
};

/// What a trigonometric case tells about its candidates.
class CandidateCase {
  public:
    virtual ~CandidateCase() = default;
    /// What the coefficient of that unknown (the text of a component) is to be multiplied by.
    virtual std::optional<double> Factor(const std::string& unknown, const Candidate& candidate) const = 0;
    virtual Report ReportOf(const Candidate& candidate) const = 0;
    /// Title of the question between two solutions.
    virtual std::string QuestionTitle() const = 0;
};

/// Puts the two candidates (`values`: first pair, second pair) into the forces and keeps those that are in
/// equilibrium. The check of a report goes on from the sums that the second candidate left.
Equilibrium ChooseCandidate(const mechanics::forces::ForceTable& table, const CandidateCase& method,
                            const std::vector<double>& values, int decimals);

}  // namespace tavrelo::mechanics::particle
