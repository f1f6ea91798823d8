#include "mechanics/forces/resultants.h"

#include <cmath>

#include "notation/vector_parser.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/compare.h"

namespace tavrelo::mechanics::forces {

namespace {

using numeric::CheckedDivide;
using numeric::CheckedMultiply;
using numeric::Finite;
using numeric::Point;

/// A cosine this close to 1 or -1 is that of parallel or opposite vectors.
constexpr double kCosineTolerance = 1e-12;

bool IsZero(double value) { return numeric::NearEq(value, 0.0, kZeroTolerance); }

/// The component of a x b along k.
double Cross(Point a, Point b) { return Finite(CheckedMultiply(a.x, b.y) - CheckedMultiply(a.y, b.x)); }
Point ComponentsOf(const PlaneVector& v) { return {v.x, v.y}; }

double AngleBetween(const PlaneVector& a, const PlaneVector& b, double dot) {
    const double cosine = CheckedDivide(dot, numeric::Hypot(a.x, a.y) * numeric::Hypot(b.x, b.y));
    const bool in_line = numeric::NearEq(std::abs(cosine), 1.0, kCosineTolerance);
    return numeric::ArcCosD(in_line ? std::copysign(1.0, cosine) : cosine);
}

ResultantKind KindOf(bool force_is_zero, bool moment_is_zero) {
    if (!force_is_zero) {
        return ResultantKind::Force;
    }
    return moment_is_zero ? ResultantKind::Null : ResultantKind::Couple;
}

ActionLine LineOf(const PlaneVector& force) {
    if (IsZero(force.y)) {
        return ActionLine::Horizontal;
    }
    return IsZero(force.x) ? ActionLine::Vertical : ActionLine::Oblique;
}

LineResultant LineResultantOf(double force, double moment) {
    LineResultant resultant{Finite(force), Finite(moment), KindOf(IsZero(force), IsZero(moment))};
    if (resultant.kind == ResultantKind::Force) {
        resultant.x = CheckedDivide(moment, force);
    }
    return resultant;
}

double SquaredLength(const PlaneVector& v) { return Finite(v.x * v.x + v.y * v.y); }

}  // namespace

PlaneVector VectorFromComponents(double x, double y) {
    const numeric::ClockReading clock = numeric::ClockOf(x, y);
    return {Finite(x), Finite(y), numeric::Hypot(x, y), numeric::AngleOf(x, y), clock.hour, clock.angle};
}

std::variant<text::Refusal, PlaneVector> ReadVector(std::string_view text) {
    const notation::VectorReading reading = notation::ParseVector(text);
    if (const text::Refusal* refusal = std::get_if<text::Refusal>(&reading)) {
        return *refusal;
    }
    const auto* record = std::get_if<notation::VectorRecord>(&reading);
    if (record == nullptr) {
        throw numeric::RuntimeFailure(numeric::FailureCode::TypeMismatch, "vector without a direction");
    }
    return PlaneVector{record->x,         record->y,          record->magnitude,
                       record->direction, record->clock.hour, record->clock.angle};
}

SumAndProducts VectorSum2(const PlaneVector& a, const PlaneVector& b) {
    const double dot = Finite(a.x * b.x + a.y * b.y);
    return {VectorFromComponents(a.x + b.x, a.y + b.y), VectorFromComponents(a.x - b.x, a.y - b.y),
            AngleBetween(a, b, dot), dot, Cross(ComponentsOf(a), ComponentsOf(b))};
}

std::optional<BaseFactors> BaseDecompose(const PlaneVector& v, const PlaneVector& a, const PlaneVector& b) {
    const double determinant = Cross(ComponentsOf(a), ComponentsOf(b));
    if (IsZero(determinant)) {
        return std::nullopt;
    }
    return BaseFactors{CheckedDivide(Cross(ComponentsOf(v), ComponentsOf(b)), determinant),
                       CheckedDivide(Cross(ComponentsOf(a), ComponentsOf(v)), determinant)};
}

std::optional<PlaneVector> VectorFromProjections(const PlaneVector& a, double on_a, const PlaneVector& b,
                                                 double on_b) {
    const double determinant = Cross(ComponentsOf(a), ComponentsOf(b));
    if (IsZero(determinant)) {
        return std::nullopt;
    }
    // V . a = p and V . b = q by Cramer's rule.
    const double p = Finite(on_a * SquaredLength(a));
    const double q = Finite(on_b * SquaredLength(b));
    return VectorFromComponents(CheckedDivide(p * b.y - q * a.y, determinant),
                                CheckedDivide(a.x * q - b.x * p, determinant));
}

PlaneVector VectorListSum(std::span<const PlaneVector> vectors) {
    Point sum;
    for (const PlaneVector& vector : vectors) {
        sum.x += vector.x;
        sum.y += vector.y;
    }
    return VectorFromComponents(sum.x, sum.y);
}

PlaneVector VectorListSum(std::span<const WeightedVector> vectors) {
    Point sum;
    for (const WeightedVector& weighted : vectors) {
        sum.x += weighted.factor * weighted.vector.x;
        sum.y += weighted.factor * weighted.vector.y;
    }
    return VectorFromComponents(sum.x, sum.y);
}

double VectorListMoments(std::span<const PlacedForce> forces, Point about) {
    double sum = 0.0;
    for (const PlacedForce& placed : forces) {
        const Point arm = {placed.position.x - about.x, placed.position.y - about.y};
        sum += Cross(arm, ComponentsOf(placed.force));
    }
    return Finite(sum);
}

PlaneVector RotateVector(const PlaneVector& v, double degrees, RotationKind kind) {
    const double turn = kind == RotationKind::Vector ? degrees : -degrees;
    const double cosine = numeric::CosD(turn);
    const double sine = numeric::SinD(turn);
    return VectorFromComponents(v.x * cosine - v.y * sine, v.x * sine + v.y * cosine);
}

PlaneResultant PlaneForces(std::span<const PlacedForce> forces, std::span<const double> free_moments) {
    Point sum;
    double moment = VectorListMoments(forces);
    for (const PlacedForce& placed : forces) {
        sum.x += placed.force.x;
        sum.y += placed.force.y;
    }
    for (const double free_moment : free_moments) {
        moment += free_moment;
    }
    PlaneResultant resultant;
    resultant.force = VectorFromComponents(sum.x, sum.y);
    resultant.moment = Finite(moment);
    resultant.kind = KindOf(IsZero(sum.x) && IsZero(sum.y), IsZero(moment));
    if (resultant.kind != ResultantKind::Force) {
        return resultant;
    }
    resultant.line = LineOf(resultant.force);
    if (resultant.line != ActionLine::Horizontal) {
        resultant.x_intercept = CheckedDivide(moment, sum.y);
    }
    if (resultant.line != ActionLine::Vertical) {
        resultant.y_intercept = CheckedDivide(-moment, sum.x);
    }
    return resultant;
}

double MomentAt(const PlaneResultant& resultant, Point point) {
    return Finite(resultant.moment - Cross(point, ComponentsOf(resultant.force)));
}

LineResultant ParallelLine(std::span<const LineForce> forces) {
    double force = 0.0;
    double moment = 0.0;
    for (const LineForce& placed : forces) {
        force += placed.force;
        moment += placed.x * placed.force;
    }
    return LineResultantOf(force, moment);
}

double MomentAt(const LineResultant& resultant, double x) {
    return Finite(resultant.moment - resultant.force * x);
}

SpaceResultant ParallelSpace(std::span<const VerticalForce> forces) {
    SpaceResultant resultant;
    for (const auto& [position, force] : forces) {
        resultant.force += force;
        resultant.moment_x += position.y * force;
        resultant.moment_y -= position.x * force;
    }
    Finite(resultant.force);
    Finite(resultant.moment_x);
    Finite(resultant.moment_y);
    resultant.kind =
        KindOf(IsZero(resultant.force), IsZero(resultant.moment_x) && IsZero(resultant.moment_y));
    if (resultant.kind == ResultantKind::Force) {
        resultant.position = {CheckedDivide(-resultant.moment_y, resultant.force),
                              CheckedDivide(resultant.moment_x, resultant.force)};
    }
    return resultant;
}

Point MomentAt(const SpaceResultant& resultant, Point point) {
    return {Finite(resultant.moment_x - point.y * resultant.force),
            Finite(resultant.moment_y + point.x * resultant.force)};
}

std::optional<LineResultant> DistributedLoad(numeric::OdeFunction density,
                                             numeric::OdeFunction moment_density, double x1, double x2) {
    const numeric::OdeIntegral force = numeric::IntegrateOde(density, x1, x2);
    const numeric::OdeIntegral moment = numeric::IntegrateOde(moment_density, x1, x2);
    for (const numeric::OdeIntegral& integral : {force, moment})
        if (integral.outcome == numeric::OdeOutcome::TooManySteps)
            return std::nullopt;
    return LineResultantOf(force.value, moment.value);
}

}  // namespace tavrelo::mechanics::forces
