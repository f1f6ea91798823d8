#include "kinds.h"

#include "forces/force_kinds.h"
#include "kinematics/kinematics_kinds.h"
#include "motion/motion_kinds.h"
#include "motion/motion_refusals.h"
#include "numeric/numeric_kinds.h"
#include "projectile/projectile_kinds.h"
#include "projectile/projectile_refusals.h"
#include "statics/particle_kinds.h"
#include "statics/rigid_kinds.h"

namespace tavrelo::physics {
namespace {

constexpr std::string_view kLinearParticle[] = {kSingularText, kCaseNotSolvedText, kSameUnknownText};
constexpr std::string_view kTrigonometricParticle[] = {kNoEquilibriumText, kNoSuchSolutionText,
                                                       kCaseNotSolvedText, kBadDataText};
constexpr std::string_view kAnyParticle[] = {kNoEquilibriumText, kNoSuchSolutionText, kSingularText,
                                             kCaseNotSolvedText, kSameUnknownText,    kBadDataText};
constexpr std::string_view kUnsolvableParticle[] = {kNoEquilibriumText, kNoSuchSolutionText, kSingularText,
                                                    kCaseNotSolvedText};
constexpr std::string_view kTooMany[] = {kTooManyUnknownsText};
constexpr std::string_view kDependent[] = {kSingularText};
constexpr std::string_view kAngleOfBody[] = {kSingularText, kNoBodySolutionText};
constexpr std::string_view kOtherCounts[] = {
    "Son 1 incógnitas y 3 ecuaciones.", "Son 2 incógnitas y 3 ecuaciones.",
    "Son 4 incógnitas y 3 ecuaciones.", "Son 5 incógnitas y 3 ecuaciones.",
    "Son 6 incógnitas y 3 ecuaciones."};
constexpr std::string_view kNoRoots[] = {kNoRootsText};
constexpr std::string_view kFitNotSolved[] = {kFitNotSolvedText};
constexpr std::string_view kAtLimitOfTriangles[] = {kInconsistentText};
constexpr std::string_view kNotTriangles[] = {kInconsistentText, kNoTriangleText, kThreeAnglesText};
constexpr std::string_view kInLine[] = {kInLineText};
constexpr std::string_view kNoBases[] = {kNoBaseText};

constexpr std::string_view kCommandFailed[] = {"Error en el comando."};
constexpr std::string_view kTooManySteps[] = {"Demasiados pasos en la rutina ODEInt."};

constexpr ProblemKind kKinds[] = {
    {"numeric.systems", "systems of linear equations", 3000, PlaySystem, kDependent, 0.1},
    {"numeric.dependent-systems", "one equation made of the others", 3000, PlayDependentSystem, kDependent,
     1},
    {"numeric.quadratics", "equations of the second degree", 3000, PlayQuadraticEquation},
    {"numeric.cubics", "equations of the third degree", 3000, PlayCubicEquation},
    {"numeric.real-roots", "the real roots of at most the second degree", 3000, PlayRealRoots},
    {"numeric.cos-sin", "A cos t + B sin t + C = 0", 3000, PlayCosSin},
    {"numeric.root-search", "the roots of a product by changes of sign", 2000, PlayRootSearch, kNoRoots, 0.3},
    {"numeric.integrals", "integrals of typed formulas", 2000, PlayIntegral},
    {"numeric.derivatives", "derivatives of typed formulas", 3000, PlayDerivatives},
    {"numeric.differential-equations", "a decay and an oscillation", 1000, PlayDifferentialEquation},
    {"numeric.fits", "points on a polynomial or beside it", 3000, PlayFit, kFitNotSolved, 0.1},
    {"numeric.logarithmic-fits", "points on an exponential or a power", 3000, PlayLogarithmicFit},
    {"numeric.triangles", "a triangle of three data", 3000, PlayTriangle, kAtLimitOfTriangles, 0.05},
    {"numeric.no-triangles", "data that make no triangle", 3000, PlayNoTriangle, kNotTriangles, 1},
    {"numeric.triangles-of-vertices", "a triangle of its vertices", 3000, PlayTriangleOfVertices, kInLine,
     0.05},
    {"numeric.polygons", "a polygon of its vertices", 2000, PlayPolygon},

    {"forces.vector-texts", "a vector in any notation", 3000, PlayVectorText},
    {"forces.vector-algebra", "sums, products, angles and turning of vectors", 3000, PlayVectorAlgebra},
    {"forces.bases", "a vector by a base and by projections", 3000, PlayVectorBase, kNoBases, 0.2},
    {"forces.plane", "coplanar forces, a couple or nothing", 3000, PlayPlaneForces},
    {"forces.parallel", "parallel forces on a line and across a plane", 3000, PlayParallelForces},
    {"forces.distributed", "a load along a beam", 2000, PlayDistributedLoad},

    {"particle.two-magnitudes", "two unknown magnitudes or components", 4000, PlayTwoMagnitudes,
     kLinearParticle, 0.3},
    {"particle.equilibrant", "one force unknown in magnitude and direction", 3000, PlayEquilibrant},
    {"particle.magnitude-and-angle", "a magnitude and the direction of another force", 4000,
     PlayMagnitudeAndAngle, kTrigonometricParticle, 0.1},
    {"particle.two-angles", "two directions", 4000, PlayTwoAngles, kTrigonometricParticle, 0.1},
    {"particle.pulley", "a rope over a pulley: the same magnitude twice, once at an unknown direction", 4000,
     PlayPulley, kTrigonometricParticle, 0.3},
    {"particle.near-tangent", "data beside the limit where two solutions become one", 4000, PlayNearTangent,
     kTrigonometricParticle, 1},
    {"particle.any-size", "very small and very large forces", 4000, PlayParticleOfAnySize, kAnyParticle, 0.6},
    {"particle.unsolvable", "forces that nothing can balance", 3000, PlayUnsolvableParticle,
     kUnsolvableParticle, 1},
    {"particle.too-many", "more unknowns than equations", 3000, PlayTooManyUnknowns, kTooMany, 1},

    {"rigid.one-body", "a body on supports, rollers, ropes and couples", 3000, PlayHeldBody, kDependent, 0.3},
    {"rigid.badly-held", "a body that can move, or that more than one answer holds", 2000, PlayBadlyHeldBody,
     kDependent, 1},
    {"rigid.upright", "upright forces, the equation along x left out", 2000, PlayUprightForces},
    {"rigid.other-counts", "more unknowns than equations, or fewer", 1000, PlayOtherCounts, kOtherCounts, 1},
    {"rigid.structure", "one to four bodies and joints on hinges and ropes", 3000, PlayStructure, kDependent,
     0.3},
    {"rigid.truss-joints", "the joints of a truss", 2000, PlayTrussByJoints, kDependent, 0.3},
    {"rigid.truss-section", "a truss as a whole and a part behind three cut bars", 2000, PlayTrussBySection,
     kDependent, 0.3},
    {"rigid.badly-held-structure", "one body held too much and another too little", 1000,
     PlayBadlyHeldStructure, kDependent, 1},
    {"rigid.turning-force", "a known force at an unknown angle", 3000, PlayTurningForce, kAngleOfBody, 0.3},
    {"rigid.weak-turning-force", "a known force that just holds a body, or does not", 2000,
     PlayWeakTurningForce, kAngleOfBody, 1},
    {"rigid.free-force", "a force unknown in magnitude and direction", 3000, PlayFreeForce, kAngleOfBody,
     0.3},
    {"rigid.body-on-a-rope", "a rope over a pulley on a body", 3000, PlayBodyOnARope, kAngleOfBody, 0.3},

    {"rigid.any-size", "very small and very large forces", 3000, PlayBodyOfAnySize, kAngleOfBody, 0.6},

    {"motion.point", "a point of a known motion from its time, place or speed", 4000, PlayPoint,
     kPointRefusals, 0.1},
    {"motion.turn", "the moment of the opposite speed", 2000, PlayTurn, kTurnRefusals, 0.1},
    {"motion.interval", "an interval of a known motion from two relations between its ends", 6000,
     PlayInterval, kIntervalRefusals, 0.15},
    {"motion.speed", "the unknown speed of a base from every set of data", 8000, PlayUnknownSpeed,
     kSpeedRefusals, 0.3},
    {"motion.acceleration", "the unknown acceleration from every set of data", 8000, PlayUnknownAcceleration,
     kAccelerationRefusals, 0.25},
    {"motion.both", "what every set of data states of an unknown speed and acceleration", 4000,
     PlayBothUnknown, kBothRefusals, 0.1},
    {"motion.two-points", "an unknown speed and acceleration from two sets of data, solved as a system", 4000,
     PlayTwoPoints, kTwoPointsRefusals, 0.25},
    {"motion.interval-line", "the interval equations with every three or four data", 10000, PlayIntervalLine,
     kIntervalLineRefusals, 0.3},
    {"motion.three-points", "the motion through three points", 3000, PlayThreePoints, kThreePointsRefusals,
     0.1},
    {"motion.link", "two stretches with one datum missing", 5000, PlayLink, kLinkRefusals, 0.1},
    {"motion.meeting", "when two movers have a difference or a ratio of places or speeds", 5000, PlayMeeting,
     kMeetingRefusals, 0.3},
    {"motion.ratios", "what a mover lacks to have two ratios to another", 5000, PlayRatios, kRatioRefusals,
     0.05},
    {"motion.system", "systems for a speed and an acceleration", 5000, PlaySpeedSystem, kSystemRefusals, 0.2},
    {"motion.quadratic", "the quadratic equation", 3000, PlayQuadratic},
    {"motion.distance", "the way walked through stretches", 3000, PlayDistance},

    {"projectile.point", "a point of a known throw from one datum", 5000, PlayThrownPoint,
     kThrownPointRefusals, 0.1},
    {"projectile.other-side", "the same height on the other side of the top", 3000, PlayOtherSide},
    {"projectile.speed", "the unknown speed of a launch from every pair of data", 8000, PlayLaunchSpeed,
     kLaunchSpeedRefusals, 0.25},
    {"projectile.angle", "the unknown angle of a launch from every pair of data", 8000, PlayLaunchAngle,
     kLaunchAngleRefusals, 0.35},
    {"projectile.horizontal", "the unknown horizontal component of a launch", 8000, PlayHorizontalSpeed,
     kHorizontalSpeedRefusals, 0.3},
    {"projectile.vertical", "the unknown vertical component of a launch", 8000, PlayVerticalSpeed,
     kVerticalSpeedRefusals, 0.25},
    {"projectile.launch", "the equations of a launch and its reach", 4000, PlayLaunch},
    {"projectile.whole-flight", "a launch from three places, from range and height, from time and range",
     4000, PlayWholeFlight, kWholeFlightRefusals, 0.25},
    {"projectile.two-points", "a launch of unknown speed and angle from two points", 5000,
     PlayTwoThrownPoints, kTwoThrownPointsRefusals, 0.05},
    {"projectile.incline", "where a throw meets a slope", 4000, PlayIncline, kInclineRefusals, 0.25},
    {"projectile.crossing", "where two trajectories cross, and whether the movers collide", 4000,
     PlayCrossing, kCrossingRefusals, 0.3},
    {"projectile.path", "the length of a path", 1000, PlayPath, kPathRefusals, 0.05},
    {"projectile.collision", "a launch that meets another throw", 4000, PlayCollision, kCollisionRefusals,
     0.3},
    {"projectile.interception", "a launch that meets an object on the ground", 4000, PlayInterception,
     kInterceptionRefusals, 0.2},

    {"kinematics.position", "x, v and a of a given position", 3000, PlayGivenPosition, kCommandFailed, 0.1},
    {"kinematics.velocity", "x and v of a given velocity", 1500, PlayGivenVelocity, kTooManySteps, 0.02},
    {"kinematics.acceleration", "x, v and a of a given acceleration", 1500, PlayGivenAcceleration,
     kTooManySteps, 0.02},
    {"kinematics.plane", "velocity and acceleration of x(t), y(t)", 2000, PlayPlaneMotion, kCommandFailed,
     0.1},
    {"kinematics.polar", "velocity and acceleration of r(t), theta(t)", 2000, PlayPolarMotion, kCommandFailed,
     0.1},
    {"kinematics.curves", "the curves of a motion along a line", 150, PlayLineCurves, kTooManySteps, 0.02},
    {"kinematics.trajectory", "the trajectory of a motion in the plane", 500, PlayTrajectory},
};

}  // namespace

std::span<const ProblemKind> AllKinds() { return kKinds; }

}  // namespace tavrelo::physics
