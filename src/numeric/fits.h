#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tavrelo::numeric {

/// For the user when PolyFit or LogarithmsOf has no result.
inline constexpr std::string_view kFitNotSolved = "No pude resolver el sistema de ecuaciones.";
inline constexpr std::string_view kNotPositive = "Valor negativo o cero no permitido.";

/// coefs[0] + coefs[1] x + coefs[2] x^2 + ...; fails with Overflow.
double PolyVal(std::span<const double> coefs, double x);

/// The polynomial of least squares through the points (xs[i], ys[i]): degree + 1 coefficients, the constant
/// first, by the normal equations. Nothing, for kFitNotSolved to be shown, when their determinant counts as
/// zero (fewer different x than coefficients, or x of very small size) or they overflow on the way to their
/// solution. Fails with SubscriptRange on a negative degree, on one past kLargestOrder - 1 or on lists of
/// different length, and with Overflow when a power or a sum is past the range of a double.
std::optional<std::vector<double>> PolyFit(int degree, std::span<const double> xs,
                                           std::span<const double> ys);

/// The sums over the points that go with a straight line.
struct LineSums {
    double x = 0.0;
    double y = 0.0;
    double xx = 0.0;
    double yy = 0.0;
    double xy = 0.0;
    double mean_x = 0.0;
    double mean_y = 0.0;
};
/// Fails with SubscriptRange on lists of different length, with DivisionByZero without points, with Overflow.
LineSums SumsOf(std::span<const double> xs, std::span<const double> ys);

/// The correlation coefficient r, from -1 to 1 but for rounding. Fails with DivisionByZero when all x or all
/// y are equal, and as SumsOf.
double Correlation(std::span<const double> xs, std::span<const double> ys);

/// `count` points of the polynomial from the smallest to the largest of `xs`, both included.
struct CurveSamples {
    std::vector<double> xs;
    std::vector<double> ys;
};
/// Fails with SubscriptRange on an empty list or a count below 2, with Overflow.
CurveSamples SamplePolynomial(std::span<const double> coefs, std::span<const double> xs, int count);

/// The natural logarithms; nothing, for kNotPositive to be shown, when a value is not above 0.
std::optional<std::vector<double>> LogarithmsOf(std::span<const double> values);

}  // namespace tavrelo::numeric
