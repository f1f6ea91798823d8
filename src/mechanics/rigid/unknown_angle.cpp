#include "mechanics/rigid/unknown_angle.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "mechanics/rigid/equilibrium_check.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "numeric/compare.h"
#include "numeric/linear_systems.h"
#include "numeric/polynomials.h"
#include "text/symbols.h"

namespace tavrelo::mechanics::rigid {
namespace {

using numeric::CheckedAdd;
using numeric::CheckedDivide;
using numeric::Finite;

constexpr const char* kNotApplicable = "La rutina es aplicable a un sólo cuerpo con 1 ángulo desconocido.";
constexpr const char* kNoSolution = "No hay solución.";

constexpr std::size_t kRows = 3;
constexpr std::size_t kOtherUnknowns = 2;

// What multiplies one quantity in the equations x, y, m.
using Column = std::array<double, kRows>;

// The rows first u + second w + cosine cos q + sine sin q + constant = 0. Where the force at q is w itself,
// `second` holds what w has apart from it, and w multiplies the columns of the angle too.
struct Rows {
    Column first{};
    Column second{};
    Column cosine{};
    Column sine{};
    Column constant{};
};

struct Pair {
    double first;
    double second;
};

bool IsZero(double value) { return numeric::NearEq(value, 0, numeric::kZeroDeterminant); }

Column Cross(const Column& a, const Column& b) {
    return {Finite(a[1] * b[2] - a[2] * b[1]), Finite(a[2] * b[0] - a[0] * b[2]),
            Finite(a[0] * b[1] - a[1] * b[0])};
}

double Dot(const Column& a, const Column& b) { return Finite(a[0] * b[0] + a[1] * b[1] + a[2] * b[2]); }

// base + cosine cos q + sine sin q.
Column AtAngle(const Column& base, const Rows& rows, double angle) {
    const double c = numeric::CosD(angle);
    const double s = numeric::SinD(angle);
    Column result;
    for (std::size_t i = 0; i < kRows; ++i)
        result[i] = Finite(base[i] + rows.cosine[i] * c + rows.sine[i] * s);
    return result;
}

// a u + b w + k = 0 by the first two rows that determine u and w.
std::optional<Pair> SolveTwoRows(const Column& a, const Column& b, const Column& k) {
    constexpr std::pair<std::size_t, std::size_t> kPairs[] = {{0, 1}, {0, 2}, {1, 2}};
    for (const auto& [i, j] : kPairs) {
        const double determinant = Finite(a[i] * b[j] - a[j] * b[i]);
        if (!IsZero(determinant))
            return Pair{CheckedDivide(k[j] * b[i] - k[i] * b[j], determinant),
                        CheckedDivide(k[i] * a[j] - k[j] * a[i], determinant)};
    }
    return {};
}

// The equation weights . (cosine cos q + sine sin q + rest) = 0 of the angle.
struct AngleEquation {
    double cosine;
    double sine;
    double constant;
};

AngleEquation EquationOfAngle(const Column& weights, const Rows& rows, const Column& rest) {
    return {Dot(weights, rows.cosine), Dot(weights, rows.sine), Dot(weights, rest)};
}

// The results at the roots of the angle's equation that hold the body. Nearly equal roots count as one, the
// tangent; where that does not hold, the true ones are taken.
template <typename ResultsAt>
std::vector<BodyResults> HoldingResults(const BodyEquations& equations, const AngleEquation& angle,
                                        const ResultsAt& results_at) {
    const auto& [p, q, r] = angle;
    if (IsZero(p) && IsZero(q))
        return {};
    std::vector<BodyResults> holding;
    for (const auto& roots : {numeric::SolveCosSin(p, q, r), numeric::CosSinRoots(p, q, r)}) {
        if (!roots || !holding.empty())
            continue;
        for (const double root : {roots->first, roots->second}) {
            const std::optional<BodyResults> results = results_at(root);
            if (results && HoldsWith(equations, *results))
                holding.push_back(*results);
        }
    }
    return holding;
}

BodyOutcome OutcomeOf(const std::vector<BodyResults>& found) {
    if (found.empty())
        return text::Refusal{kNoSolution};
    if (found.size() == 1)
        return found.front();
    return BodyChoice{found[0], found[1]};
}

// The magnitude that stands in front of the functions of the angle: empty where the force is known; nothing
// where the terms differ.
std::optional<std::string> MagnitudeAtAngle(const BodyEquations& equations) {
    std::optional<std::string> magnitude;
    for (const BodyEquation& equation : equations.equations)
        for (const BodyTerm& term : equation.terms) {
            if (!term.unknown.HasAngle())
                continue;
            if (magnitude && !text::SameSymbol(*magnitude, term.unknown.magnitude))
                return {};
            magnitude = term.unknown.magnitude;
        }
    return magnitude;
}

Column& ColumnOf(Rows& rows, const notation::UnknownTerm& unknown, const std::string& first) {
    switch (unknown.function) {
        case notation::AngleFunction::Cos:
            return rows.cosine;
        case notation::AngleFunction::Sen:
            return rows.sine;
        default:
            return text::SameSymbol(unknown.magnitude, first) ? rows.first : rows.second;
    }
}

Rows RowsOf(const BodyEquations& equations, const std::string& first) {
    Rows rows;
    for (std::size_t i = 0; i < kRows; ++i) {
        const BodyEquation& equation = equations.equations[i];
        rows.constant[i] = equation.constant;
        for (const BodyTerm& term : equation.terms) {
            double& coefficient = ColumnOf(rows, term.unknown, first)[i];
            coefficient = CheckedAdd(coefficient, term.coef);
        }
    }
    return rows;
}

BodyResults ResultsOf(const BodyEquations& equations, const Pair& others, double angle) {
    return {{equations.magnitudes[0], others.first},
            {equations.magnitudes[1], others.second},
            {equations.angles[0], angle, true}};
}

// A known force at q. The cross product of the columns of u and w leaves an equation without them; it is
// divided by the determinant of u and w in x and y where there is one, which settles the order of the roots.
BodyOutcome SolveKnownForce(const BodyEquations& equations) {
    const Rows rows = RowsOf(equations, equations.magnitudes[0]);
    if (!SolveTwoRows(rows.first, rows.second, rows.constant))
        return text::Refusal{std::string(TextOf(numeric::LinearOutcome::DeterminantIsZero))};
    Column weights = Cross(rows.first, rows.second);
    if (const double determinant = weights[2]; !IsZero(determinant))
        for (double& weight : weights)
            weight = CheckedDivide(weight, determinant);
    const auto results_at = [&](double angle) -> std::optional<BodyResults> {
        const auto others = SolveTwoRows(rows.first, rows.second, AtAngle(rows.constant, rows, angle));
        if (!others)
            return {};
        return ResultsOf(equations, *others, angle);
    };
    return OutcomeOf(HoldingResults(equations, EquationOfAngle(weights, rows, rows.constant), results_at));
}

// The unknown force at q and the other unknown beside it.
struct FreeForce {
    Rows rows;             // `first` is the other unknown, `second` the magnitude
    bool magnitude_first;  // in the order of the unknowns
};

BodyResults ResultsOf(const BodyEquations& equations, const FreeForce& force, const Pair& others,
                      double angle) {
    return ResultsOf(equations, force.magnitude_first ? Pair{others.second, others.first} : others, angle);
}

// A force that stands nowhere else: u, F cos q and F sin q are three linear unknowns.
BodyOutcome SolveFreeForce(const BodyEquations& equations, const FreeForce& force) {
    const Rows& rows = force.rows;
    numeric::SquareMatrix matrix(kRows);
    Column values;
    for (std::size_t i = 0; i < kRows; ++i) {
        matrix(i, 0) = rows.first[i];
        matrix(i, 1) = rows.cosine[i];
        matrix(i, 2) = rows.sine[i];
        values[i] = -rows.constant[i];
    }
    const numeric::LinearOutcome outcome = numeric::SolveIndependent(matrix, values);
    if (outcome != numeric::LinearOutcome::Done)
        return text::Refusal{std::string(TextOf(outcome))};
    const BodyResults results = ResultsOf(equations, force, {values[0], numeric::Hypot(values[1], values[2])},
                                          numeric::AngleOf(values[1], values[2]));
    if (!HoldsWith(equations, results))
        return text::Refusal{kNoSolution};
    return results;
}

// A force whose magnitude stands elsewhere too. The columns of u, of F and of the constants are dependent:
// their determinant is the equation of the angle.
BodyOutcome SolveSharedForce(const BodyEquations& equations, const FreeForce& force) {
    const Rows& rows = force.rows;
    const auto results_at = [&](double angle) -> std::optional<BodyResults> {
        const auto others = SolveTwoRows(rows.first, AtAngle(rows.second, rows, angle), rows.constant);
        if (!others || others->second < 0)
            return {};
        return ResultsOf(equations, force, *others, angle);
    };
    return OutcomeOf(HoldingResults(
        equations, EquationOfAngle(Cross(rows.constant, rows.first), rows, rows.second), results_at));
}

BodyOutcome SolveUnknownForce(const BodyEquations& equations, const std::string& magnitude) {
    const bool magnitude_first = text::SameSymbol(equations.magnitudes[0], magnitude);
    const FreeForce force = {RowsOf(equations, equations.magnitudes[magnitude_first ? 1 : 0]),
                             magnitude_first};
    const Column& elsewhere = force.rows.second;
    const bool stands_alone =
        std::all_of(elsewhere.begin(), elsewhere.end(), [](double coef) { return coef == 0; });
    return stands_alone ? SolveFreeForce(equations, force) : SolveSharedForce(equations, force);
}

}  // namespace

BodyOutcome SolveWithAngle(const BodyEquations& equations) {
    const std::optional<std::string> magnitude = MagnitudeAtAngle(equations);
    if (!magnitude || equations.equations.size() != kRows || equations.magnitudes.size() != kOtherUnknowns)
        return text::Refusal{kNotApplicable};
    return magnitude->empty() ? SolveKnownForce(equations) : SolveUnknownForce(equations, *magnitude);
}

}  // namespace tavrelo::mechanics::rigid
