#include "kinds.h"

#include "numeric/numeric_kinds.h"
#include "statics/particle_kinds.h"

namespace tavrelo::physics {
namespace {

constexpr std::string_view kLinearParticle[] = {kSingularText, kCaseNotSolvedText, kSameUnknownText};
constexpr std::string_view kTrigonometricParticle[] = {kNoEquilibriumText, kNoSuchSolutionText,
                                                       kCaseNotSolvedText, kBadDataText};
constexpr std::string_view kUnsolvableParticle[] = {kNoEquilibriumText, kNoSuchSolutionText, kSingularText,
                                                    kCaseNotSolvedText};
constexpr std::string_view kTooMany[] = {kTooManyUnknownsText};

constexpr ProblemKind kKinds[] = {
    {"numeric.systems", "systems of linear equations with a known solution", 3000, PlayRegularSystem},

    {"particle.two-magnitudes", "two unknown magnitudes or components", 5000, PlayTwoMagnitudes,
     kLinearParticle, 0.3},
    {"particle.equilibrant", "one force unknown in magnitude and direction", 3000, PlayEquilibrant},
    {"particle.magnitude-and-angle", "a magnitude and the direction of another force", 5000,
     PlayMagnitudeAndAngle, kTrigonometricParticle, 0.1},
    {"particle.two-angles", "two directions", 5000, PlayTwoAngles, kTrigonometricParticle, 0.1},
    {"particle.pulley", "a rope over a pulley: the same magnitude twice, once at an unknown direction", 5000,
     PlayPulley, kTrigonometricParticle, 0.3},
    {"particle.near-tangent", "data beside the limit where two solutions become one", 5000, PlayNearTangent,
     kTrigonometricParticle, 1},
    {"particle.unsolvable", "forces that nothing can balance", 3000, PlayUnsolvableParticle,
     kUnsolvableParticle, 1},
    {"particle.too-many", "more unknowns than equations", 3000, PlayTooManyUnknowns, kTooMany, 1},
};

}  // namespace

std::span<const ProblemKind> AllKinds() { return kKinds; }

}  // namespace tavrelo::physics
