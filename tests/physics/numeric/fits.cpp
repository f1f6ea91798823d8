#include "numeric/fits.h"

#include <cmath>

#include "equations.h"
#include "independence.h"
#include "numeric/numeric_kinds.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

constexpr double kClearlyIndependent = 1e-7;
constexpr double kClearDeterminant = 1e-6;
constexpr double kNormalEquationPart = 1e-7;
constexpr double kCurvePart = 1e-5;

struct Points {
    std::vector<double> x, y;
};

double ValueAt(const std::vector<double>& coefficients, double x) {
    double value = 0;
    for (std::size_t k = coefficients.size(); k > 0; --k)
        value = value * x + coefficients[k - 1];
    return value;
}

std::vector<double> TypedAbscissas(Chance& chance, std::size_t count) {
    const double step = chance.Size(0.2, 3);
    double x = chance.Between(-5.0, 2.0);
    std::vector<double> xs;
    for (std::size_t k = 0; k < count; ++k) {
        xs.push_back(Rounded(x, 2).value);
        x += step * chance.Between(0.5, 1.5);
    }
    return xs;
}

void Type(Problem& problem, const Points& points) {
    for (std::size_t k = 0; k < points.x.size(); ++k)
        problem.Type(Digits(points.x[k]) + " " + Digits(points.y[k]));
}

// The matrix of the normal equations.
Columns NormalMatrix(const std::vector<double>& xs, std::size_t unknowns) {
    Columns columns(unknowns, std::vector<double>(unknowns));
    for (const double x : xs)
        for (std::size_t c = 0; c < unknowns; ++c)
            for (std::size_t r = 0; r < unknowns; ++r)
                columns[c][r] += std::pow(x, static_cast<double>(c + r));
    return columns;
}

// The sum of the rests, each with each power of x, vanishes for the polynomial of least squares.
std::string FaultOfNormalEquations(const Points& points, const std::vector<double>& found) {
    for (std::size_t power = 0; power < found.size(); ++power) {
        Sum sum;
        for (std::size_t k = 0; k < points.x.size(); ++k) {
            const double weight = std::pow(points.x[k], static_cast<double>(power));
            sum.Add(weight * ValueAt(found, points.x[k]));
            sum.Add(-weight * points.y[k]);
        }
        if (!sum.VanishesWithin(kNormalEquationPart))
            return "the sum of rests with power " + std::to_string(power) + " leaves " + sum.Told();
    }
    return "";
}

}  // namespace

Verdict PlayFit(Problem& problem) {
    Chance& chance = problem.chance;
    const std::size_t degree = 1 + chance.Below(4);
    std::vector<double> curve;
    for (std::size_t k = 0; k <= degree; ++k)
        curve.push_back(Rounded(chance.Between(-5.0, 5.0), 2).value);
    const bool is_noisy = chance.OneIn(2);
    Points points{TypedAbscissas(chance, degree + 1 + chance.Below(8)), {}};
    double size = 0;
    for (const double x : points.x) {
        const double noise = is_noisy ? chance.Between(-3.0, 3.0) : 0;
        points.y.push_back(Rounded(ValueAt(curve, x) + noise, is_noisy ? 2 : 12).value);
        size = std::max(size, std::abs(points.y.back()));
    }
    Type(problem, points);
    const auto found = numeric::PolyFit(static_cast<int>(degree), points.x, points.y);
    const Columns normal = NormalMatrix(points.x, degree + 1);
    const bool is_regular =
        Independence(normal) > kClearlyIndependent && DeterminantSize(normal) > kClearDeterminant;
    if (!found)
        return is_regular ? Wrong("a fit is refused") : Refused(numeric::kFitNotSolved);
    if (const std::string fault = FaultOfNormalEquations(points, *found); is_regular && !fault.empty())
        return Wrong(fault);
    for (std::size_t k = 0; is_regular && !is_noisy && k < points.x.size(); ++k)
        if (!Agree(ValueAt(*found, points.x[k]), points.y[k], kCurvePart, size))
            return Wrong("the curve passes at " + Digits(ValueAt(*found, points.x[k])) + ", not at " +
                         Digits(points.y[k]));
    return Right();
}

Verdict PlayLogarithmicFit(Problem& problem) {
    Chance& chance = problem.chance;
    const double a = Rounded(chance.Between(-1.5, 1.5), 2).value, b = Rounded(chance.Size(0.2, 20), 2).value;
    const bool is_power = chance.OneIn(2);
    Points points{TypedAbscissas(chance, 3 + chance.Below(6)), {}};
    for (double& x : points.x) {
        x = is_power ? Rounded(std::abs(x) + 0.5, 2).value : x;
        points.y.push_back(is_power ? b * std::pow(x, a) : b * std::exp(a * x));
    }
    Type(problem, points);
    const auto ys = numeric::LogarithmsOf(points.y);
    const auto xs = is_power ? numeric::LogarithmsOf(points.x) : points.x;
    if (!ys || !xs)
        return Wrong("logarithms of positive numbers are refused");
    const Columns normal = NormalMatrix(*xs, 2);
    if (Independence(normal) < kClearlyIndependent || DeterminantSize(normal) < kClearDeterminant)
        return Right();
    const auto line = numeric::PolyFit(1, *xs, *ys);
    if (!line)
        return Wrong("a fit is refused");
    if (!Agree((*line)[1], a, kCurvePart, 1) || !Agree(std::exp((*line)[0]), b, kCurvePart))
        return Wrong("finds a = " + Digits((*line)[1]) + ", b = " + Digits(std::exp((*line)[0])));
    if (a != 0 && !Agree(std::abs(numeric::Correlation(*xs, *ys)), 1, kCurvePart))
        return Wrong("points on a line correlate by " + Digits(numeric::Correlation(*xs, *ys)));
    return Right();
}

}  // namespace tavrelo::physics
