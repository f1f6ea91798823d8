#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "numeric/ode.h"
#include "numeric/point.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::forces {

/// Sums, components and determinants of at most this size count as zero.
inline constexpr double kZeroTolerance = 1e-6;

inline constexpr std::string_view kNoBase = "Los vectores no forman una base.";
inline constexpr std::string_view kDependentVectors = "Los vectores no son linealmente independientes.";

/// A vector of numbers with both of its forms. A vector that was read keeps magnitude and direction as they
/// were written (-10, -180); a computed one has them from its components.
struct PlaneVector {
    double x = 0.0;
    double y = 0.0;
    double magnitude = 0.0;
    double direction = 0.0;  // degrees, above -180 up to 180 when computed
    int hour = 3;            // clock reading of the direction, for its arrow
    double clock_angle = 0.0;
};
/// Fails with Overflow.
PlaneVector VectorFromComponents(double x, double y);
/// The vector that ParseVector reads. Fails with TypeMismatch on a text whose component lacks its direction
/// ("12,5h"), which ParseVector lets pass.
std::variant<text::Refusal, PlaneVector> ReadVector(std::string_view text);

// --- Vectors -----------------------------------------------------------------------------------------------

struct SumAndProducts {
    PlaneVector sum;         // a + b
    PlaneVector difference;  // a - b
    double angle;            // degrees; 180 for parallel and -180 for opposite vectors, as ArcCosD has it
    double dot;
    double cross;  // component along k of a x b
};
/// Fails with DivisionByZero when one of the vectors is null, with Overflow.
SumAndProducts VectorSum2(const PlaneVector& a, const PlaneVector& b);

struct BaseFactors {
    double lambda;
    double mu;
};
/// V = lambda a + mu b; nothing, for kNoBase to be shown, when a and b are parallel.
std::optional<BaseFactors> BaseDecompose(const PlaneVector& v, const PlaneVector& a, const PlaneVector& b);

/// The vector whose projections on a and b are `on_a` times |a| and `on_b` times |b|; nothing, for
/// kDependentVectors to be shown, when a and b are parallel.
std::optional<PlaneVector> VectorFromProjections(const PlaneVector& a, double on_a, const PlaneVector& b,
                                                 double on_b);

PlaneVector VectorListSum(std::span<const PlaneVector> vectors);

struct WeightedVector {
    double factor;
    PlaneVector vector;
};
/// The sum of factor times vector.
PlaneVector VectorListSum(std::span<const WeightedVector> vectors);

/// A force and where it acts.
struct PlacedForce {
    PlaneVector position;
    PlaneVector force;
};
/// The sum of the moments (r - about) x F, positive counterclockwise.
double VectorListMoments(std::span<const PlacedForce> forces, numeric::Point about = {});

enum class RotationKind {
    Vector,  // the vector turns, counterclockwise for a positive angle
    Axes,    // the axes turn: the components of the same vector in the new ones
};
PlaneVector RotateVector(const PlaneVector& v, double degrees, RotationKind kind);

// --- Force systems; moments are positive counterclockwise (right-handed)
// ------------------------------------

/// To what a system of forces amounts.
enum class ResultantKind {
    Null,
    Couple,
    Force,
};

enum class ActionLine {
    Horizontal,  // y = -moment / R_x
    Vertical,    // x = moment / R_y
    Oblique,     // x R_y - y R_x = moment
};

struct PlaneResultant {
    PlaneVector force;    // the sum of the forces: SFx, SFy
    double moment = 0.0;  // about the origin: SMO
    ResultantKind kind = ResultantKind::Null;
    ActionLine line = ActionLine::Oblique;  // for kind Force
    double x_intercept = 0.0;               // of the line with the x axis; for Vertical and Oblique
    double y_intercept = 0.0;               // with the y axis; for Horizontal and Oblique
};
/// Coplanar forces and free moments. Fails with Overflow.
PlaneResultant PlaneForces(std::span<const PlacedForce> forces, std::span<const double> free_moments);
/// The moment of the couple that goes with the resultant when it is placed at `point`.
double MomentAt(const PlaneResultant& resultant, numeric::Point point);

/// A force across a line, at x.
struct LineForce {
    double x;
    double force;
};
struct LineResultant {
    double force = 0.0;
    double moment = 0.0;  // about x = 0
    ResultantKind kind = ResultantKind::Null;
    double x = 0.0;  // of the resultant; for kind Force
};
LineResultant ParallelLine(std::span<const LineForce> forces);
double MomentAt(const LineResultant& resultant, double x);

/// A force along z at a point of the plane xy.
struct VerticalForce {
    numeric::Point position;
    double force;
};
struct SpaceResultant {
    double force = 0.0;     // along z
    double moment_x = 0.0;  // about the origin: sum of y Fz
    double moment_y = 0.0;  // minus the sum of x Fz
    ResultantKind kind = ResultantKind::Null;
    numeric::Point position;  // of the resultant; for kind Force
};
SpaceResultant ParallelSpace(std::span<const VerticalForce> forces);
/// The couple (Mx, My), as a point, that goes with the resultant when it is placed at `point`.
numeric::Point MomentAt(const SpaceResultant& resultant, numeric::Point point);

/// The resultant of a load of density f(x) between x1 and x2, in either order, by IntegrateOde:
/// `moment_density` is x f(x). Nothing when an integral ends in TooManySteps. Fails with what the densities
/// fail with.
std::optional<LineResultant> DistributedLoad(numeric::OdeFunction density,
                                             numeric::OdeFunction moment_density, double x1, double x2);

}  // namespace tavrelo::mechanics::forces
