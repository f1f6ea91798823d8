#include "kinds.h"

#include "numeric/numeric_kinds.h"
#include "statics/particle_kinds.h"
#include "statics/rigid_kinds.h"

namespace tavrelo::physics {
namespace {

constexpr std::string_view kLinearParticle[] = {kSingularText, kCaseNotSolvedText, kSameUnknownText};
constexpr std::string_view kTrigonometricParticle[] = {kNoEquilibriumText, kNoSuchSolutionText,
                                                       kCaseNotSolvedText, kBadDataText};
constexpr std::string_view kUnsolvableParticle[] = {kNoEquilibriumText, kNoSuchSolutionText, kSingularText,
                                                    kCaseNotSolvedText};
constexpr std::string_view kTooMany[] = {kTooManyUnknownsText};
constexpr std::string_view kDependent[] = {kSingularText};
constexpr std::string_view kAngleOfBody[] = {kSingularText, kNoBodySolutionText};

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

    {"rigid.one-body", "a body on supports, rollers, ropes and couples", 5000, PlayHeldBody, kDependent, 0.3},
    {"rigid.badly-held", "a body that can move, or that more than one answer holds", 3000, PlayBadlyHeldBody,
     kDependent, 1},
    {"rigid.structure", "one to four bodies and joints on hinges and ropes", 4000, PlayStructure, kDependent,
     0.3},
    {"rigid.truss-joints", "the joints of a truss", 3000, PlayTrussByJoints, kDependent, 0.3},
    {"rigid.truss-section", "a truss as a whole and a part behind three cut bars", 3000, PlayTrussBySection,
     kDependent, 0.3},
    {"rigid.badly-held-structure", "one body held too much and another too little", 2000,
     PlayBadlyHeldStructure, kDependent, 1},
    {"rigid.turning-force", "a known force at an unknown angle", 4000, PlayTurningForce, kAngleOfBody, 0.3},
    {"rigid.weak-turning-force", "a known force that just holds a body, or does not", 3000,
     PlayWeakTurningForce, kAngleOfBody, 1},
    {"rigid.free-force", "a force unknown in magnitude and direction", 4000, PlayFreeForce, kAngleOfBody,
     0.3},
    {"rigid.body-on-a-rope", "a rope over a pulley on a body", 4000, PlayBodyOnARope, kAngleOfBody, 0.3},
};

}  // namespace

std::span<const ProblemKind> AllKinds() { return kKinds; }

}  // namespace tavrelo::physics
