#include <array>
#include <cmath>
#include <numbers>

#include "equations.h"
#include "forces/force_kinds.h"
#include "mechanics/forces/read_forces.h"
#include "mechanics/forces/resultants.h"
#include "plane.h"
#include "statics/stated_force.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

namespace forces = mechanics::forces;

constexpr double kRounding = 1e-9;
constexpr double kAngleRounding = 1e-6;
constexpr int kDecimals = 3;
constexpr double kDegrees = 180 / std::numbers::pi;
// The cross product of nearly parallel vectors, as a part of the product of their lengths.
constexpr double kNearlyParallel = 1e-4;
constexpr double kSmallestDeterminant = 1e-5;

double DirectionOf(const Vector& a) { return std::atan2(a.y, a.x) * kDegrees; }

// Why the vector is not the expected one in both of its forms; empty when it is.
std::string FaultOf(const char* what, const forces::PlaneVector& found, Vector expected, double scale) {
    const double reach = kRounding * std::max(scale, expected.Length());
    if (std::hypot(found.x - expected.x, found.y - expected.y) > reach)
        return std::string(what) + " is " + Digits(found.x) + ", " + Digits(found.y);
    if (std::abs(std::abs(found.magnitude) - expected.Length()) > reach)
        return std::string(what) + " has the magnitude " + Digits(found.magnitude);
    const double turned = std::abs(std::remainder(found.direction - DirectionOf(expected), 360));
    // A direction within 1e-6 of an axis counts as that of the axis; a negative magnitude keeps its
    // direction.
    if (found.magnitude > 0 && turned / kDegrees * expected.Length() > reach + 2e-6)
        return std::string(what) + " has the direction " + Digits(found.direction);
    return "";
}

struct Stated {
    forces::PlaneVector read;
    Vector value;
};

// Typed in any notation, and read by the program.
Stated AnyVector(Problem& problem) {
    Chance& chance = problem.chance;
    StatedForce stated = KnownForce(chance, chance.Size(0.5, 500), TypedDirection(chance));
    std::erase(stated.text, ':');
    const auto reading = forces::ReadVector(problem.Type(stated.text));
    return {std::get<forces::PlaneVector>(reading), {stated.x.number, stated.y.number}};
}

Verdict RightUnless(const std::string& fault) { return fault.empty() ? Right() : Wrong(fault); }

}  // namespace

Verdict PlayVectorText(Problem& problem) {
    const auto [read, value] = AnyVector(problem);
    if (const std::string fault = FaultOf("the vector", read, value, 0); !fault.empty())
        return Wrong(fault);
    const auto records = forces::ReadForces(problem.typed, kDecimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&records))
        return Wrong("refused as a force: " + refusal->text);
    const notation::Force& force = std::get<std::vector<notation::ForceRecord>>(records).front().force;
    if (!Agree(force.x.number.value(), value.x, kRounding, value.Length()) ||
        !Agree(force.y.number.value(), value.y, kRounding, value.Length()) ||
        !Agree(force.magnitude.value(), value.Length(), kRounding))
        return Wrong("the force is " + Digits(*force.x.number) + ", " + Digits(*force.y.number));
    return Right();
}

namespace {

std::string FaultOfPair(const Stated& a, const Stated& b) {
    const Vector &va = a.value, &vb = b.value;
    const double size = va.Length() + vb.Length(), product = va.Length() * vb.Length();
    const forces::SumAndProducts found = forces::VectorSum2(a.read, b.read);
    if (!Agree(found.dot, Dot(va, vb), kRounding, product))
        return "the scalar product is " + Digits(found.dot);
    if (!Agree(found.cross, Cross(va, vb), kRounding, product))
        return "the vector product is " + Digits(found.cross);
    const double between = std::atan2(std::abs(Cross(va, vb)), Dot(va, vb)) * kDegrees;
    const bool is_in_line = std::abs(Cross(va, vb)) < kNearlyParallel * product;
    if (!is_in_line && !Agree(found.angle, between, kAngleRounding))
        return "the angle between is " + Digits(found.angle);
    const std::string fault = FaultOf("the sum", found.sum, va + vb, size);
    return fault.empty() ? FaultOf("the difference", found.difference, va + -vb, size) : fault;
}

std::string FaultOfTurning(const Stated& a, double turn) {
    const auto turned = [&](forces::RotationKind kind) { return forces::RotateVector(a.read, turn, kind); };
    const double c = CosDegrees(turn), s = SinDegrees(turn);
    const Vector& v = a.value;
    const std::string fault = FaultOf("the turned vector", turned(forces::RotationKind::Vector),
                                      {v.x * c - v.y * s, v.x * s + v.y * c}, v.Length());
    if (!fault.empty())
        return fault;
    return FaultOf("the vector in turned axes", turned(forces::RotationKind::Axes),
                   {v.x * c + v.y * s, v.y * c - v.x * s}, v.Length());
}

}  // namespace

Verdict PlayVectorAlgebra(Problem& problem) {
    Chance& chance = problem.chance;
    const Stated a = AnyVector(problem), b = AnyVector(problem);
    const double turn = TypedDirection(chance);
    const double first = Rounded(chance.Between(-9.0, 9.0), 1).value;
    const double second = Rounded(chance.Between(-9.0, 9.0), 1).value;
    problem.Type(Digits(turn) + " " + Digits(first) + " " + Digits(second));
    std::string fault = FaultOfPair(a, b);
    if (fault.empty())
        fault = FaultOfTurning(a, turn);
    const std::array<forces::WeightedVector, 2> weighted = {{{first, a.read}, {second, b.read}}};
    if (fault.empty())
        fault = FaultOf("the sum of products", forces::VectorListSum(weighted),
                        first * a.value + second * b.value, 9 * (a.value.Length() + b.value.Length()));
    return RightUnless(fault);
}

Verdict PlayVectorBase(Problem& problem) {
    const auto [v, wanted] = AnyVector(problem);
    const auto [a, va] = AnyVector(problem);
    const auto [b, vb] = AnyVector(problem);
    const double cross = std::abs(Cross(va, vb));
    const bool is_base = cross > kNearlyParallel * va.Length() * vb.Length() && cross > kSmallestDeterminant;
    const auto factors = forces::BaseDecompose(v, a, b);
    const double on_a = Dot(wanted, va) / Dot(va, va), on_b = Dot(wanted, vb) / Dot(vb, vb);
    const auto projected = forces::VectorFromProjections(a, on_a, b, on_b);
    if (!factors || !projected)
        return is_base ? Wrong("a base is refused") : Refused(forces::kNoBase);
    if (!is_base)
        return Right();
    // Nearly parallel vectors need large factors, whose rounding stays.
    const double growth = va.Length() * vb.Length() / cross;
    const Vector composed = factors->lambda * va + factors->mu * vb;
    if (!Agree(composed.x, wanted.x, kRounding * growth, wanted.Length()) ||
        !Agree(composed.y, wanted.y, kRounding * growth, wanted.Length()))
        return Wrong("the factors " + Digits(factors->lambda) + ", " + Digits(factors->mu) +
                     " make another vector");
    return RightUnless(
        FaultOf("the vector of the projections", *projected, wanted, growth * wanted.Length()));
}

}  // namespace tavrelo::physics
