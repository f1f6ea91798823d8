#include <algorithm>
#include <cmath>
#include <complex>

#include "equations.h"
#include "numeric/numeric_kinds.h"
#include "numeric/polynomials.h"
#include "numeric/real_roots.h"
#include "numeric/root_search.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

using Complex = std::complex<double>;
using Coefficients = std::vector<double>;  // the highest power first

constexpr double kRounding = 1e-9;
// The told search ends at a cell of this width.
constexpr double kCell = 1e-6;
constexpr int kCells = 490;
// Beside a tangent the solver of sines and cosines takes two angles for one.
constexpr double kTangent = 1.01e-4;

Coefficients TypedPolynomial(Problem& problem, const std::vector<Complex>& roots, double factor,
                             int decimals) {
    std::vector<Complex> product = {factor};
    for (const Complex& root : roots) {
        product.push_back(0);
        for (std::size_t k = product.size() - 1; k > 0; --k)
            product[k] -= root * product[k - 1];
    }
    Coefficients typed;
    std::string text;
    for (const Complex& coefficient : product) {
        const Typed number = Rounded(coefficient.real(), decimals);
        typed.push_back(number.value);
        text += number.text + " ";
    }
    problem.Type(text);
    return typed;
}

// Roots of all sorts, in pairs where they are complex: clear of each other, close, or equal.
std::vector<Complex> AnyRoots(Chance& chance, std::size_t count) {
    const double size = chance.Size(0.1, 100);
    std::vector<Complex> roots;
    while (roots.size() < count) {
        const double root = chance.Between(-size, size);
        if (roots.size() + 2 <= count && chance.OneIn(3)) {
            const double imaginary = chance.Between(0.01, size);
            roots.insert(roots.end(), {Complex(root, imaginary), Complex(root, -imaginary)});
        } else if (!roots.empty() && chance.OneIn(8)) {
            roots.push_back(roots.back().real());
        } else {
            roots.push_back(root);
        }
    }
    return roots;
}

// Why a number is no root; empty when it is. What rounding leaves goes by the largest root.
std::string FaultOfRoot(const Coefficients& polynomial, const Complex& root, double largest) {
    Complex value = 0;
    double size = 0;
    for (const double coefficient : polynomial) {
        value = value * root + coefficient;
        size = size * largest + std::abs(coefficient);
    }
    if (std::abs(value) <= kRounding * size)
        return "";
    return Digits(root.real()) + " + " + Digits(root.imag()) + " i leaves " + Digits(std::abs(value)) +
           " of " + Digits(size);
}

Verdict JudgedRoots(const Coefficients& polynomial, const std::vector<Complex>& roots) {
    double largest = 0;
    for (const Complex& root : roots)
        largest = std::max(largest, std::abs(root));
    for (const Complex& root : roots)
        if (const std::string fault = FaultOfRoot(polynomial, root, largest); !fault.empty())
            return Wrong(fault);
    return Right();
}

double Discriminant(const Coefficients& p) { return p[1] * p[1] - 4 * p[0] * p[2]; }
bool IsClear(const Coefficients& p) {
    return std::abs(Discriminant(p)) > kRounding * (p[1] * p[1] + std::abs(4 * p[0] * p[2]));
}

}  // namespace

Verdict PlayQuadraticEquation(Problem& problem) {
    Chance& chance = problem.chance;
    const Coefficients p = TypedPolynomial(problem, AnyRoots(chance, 2), chance.Sign() * chance.Size(0.5, 20),
                                           chance.Between(2, 8));
    const auto [first, second, real] = numeric::QuadRoots(p[0], p[1], p[2]);
    if (IsClear(p) && real != (Discriminant(p) > 0))
        return Wrong(real ? "real roots of none" : "complex roots of real ones");
    if (real)
        return JudgedRoots(p, {first, second});
    return JudgedRoots(p, {Complex(first, second), Complex(first, -second)});
}

Verdict PlayCubicEquation(Problem& problem) {
    Chance& chance = problem.chance;
    const Coefficients p = TypedPolynomial(problem, AnyRoots(chance, 3), chance.Sign() * chance.Size(0.5, 20),
                                           chance.Between(3, 8));
    const auto [first, second, third, real] = numeric::CubicRoots(p[0], p[1], p[2], p[3]);
    if (real)
        return JudgedRoots(p, {first, second, third});
    return JudgedRoots(p, {first, Complex(second, third), Complex(second, -third)});
}

Verdict PlayRealRoots(Problem& problem) {
    Chance& chance = problem.chance;
    const std::size_t degree = 1 + chance.Below(2);
    Coefficients p = TypedPolynomial(problem, AnyRoots(chance, degree), chance.Sign() * chance.Size(0.5, 20),
                                     chance.Between(2, 8));
    if (degree == 1)
        p.insert(p.begin(), 0);
    const numeric::RealRootList roots = numeric::RealRoots(p[0], p[1], p[2]);
    const std::size_t expected = degree == 1 ? 1 : Discriminant(p) > 0 ? 2 : 0;
    if ((degree == 1 || IsClear(p)) && roots.size() != expected)
        return Wrong(std::to_string(roots.size()) + " roots of " + std::to_string(expected));
    return JudgedRoots(p, {roots.begin(), roots.end()});
}

Verdict PlayCosSin(Problem& problem) {
    Chance& chance = problem.chance;
    const double size = chance.Size(0.1, 1000);
    const Typed a = Rounded(chance.Between(-size, size), 3), b = Rounded(chance.Between(-size, size), 3);
    const double amplitude = std::hypot(a.value, b.value);
    double part = chance.Between(-1.2, 1.2);
    if (chance.OneIn(4))
        part = chance.Sign() * (1 + chance.Sign() * chance.Size(1e-9, 1e-3));
    const Typed c = Rounded(part * amplitude, 9);
    problem.Type(a.text + " " + b.text + " " + c.text);
    if (amplitude < 0.01)
        return Right();
    const double cosine = std::abs(c.value) / amplitude;
    const auto left_by = [&](double angle) {
        return std::abs(a.value * CosDegrees(angle) + b.value * SinDegrees(angle) + c.value) / amplitude;
    };
    const auto told = numeric::SolveCosSin(a.value, b.value, c.value);
    const auto sharp = numeric::CosSinRoots(a.value, b.value, c.value);
    const bool is_tangent = std::abs(cosine - 1) < kTangent;
    if (!is_tangent && (told.has_value() != (cosine < 1) || sharp.has_value() != (cosine < 1)))
        return Wrong("finds angles where there are none, or none where there are");
    for (const auto& roots : {told, sharp})
        if (roots)
            for (const double angle : {roots->first, roots->second})
                if (left_by(angle) > (is_tangent && roots == told ? kTangent : kRounding))
                    return Wrong("the angle " + Digits(angle) + " leaves " + Digits(left_by(angle)));
    return Right();
}

namespace {

// A product with known roots between two ends, apart from each other and from the samples of the search: two
// in one cell are no change of sign, one on a sample is missed.
struct Product {
    double left, right, factor;
    std::vector<double> roots = {};

    double Cell() const { return (right - left) / kCells; }
    double At(double x) const {
        double value = factor;
        for (const double root : roots)
            value *= (x - root) / Cell();
        return value;
    }
    bool CanTake(double root) const {
        const double from_sample = std::abs(std::remainder(root - left, Cell()));
        return from_sample > 1e-4 * Cell() &&
               std::ranges::none_of(roots, [&](double other) { return std::abs(other - root) < 3 * Cell(); });
    }
};

Product AnyProduct(Problem& problem) {
    Chance& chance = problem.chance;
    const double left = Rounded(chance.Between(-50.0, 50.0), 2).value;
    Product product = {left, left + Rounded(chance.Size(1, 100), 2).value,
                       chance.Sign() * chance.Size(0.1, 10)};
    for (std::size_t k = chance.Below(7); k > 0; --k)
        if (const double root = chance.Between(left, product.right); product.CanTake(root))
            product.roots.push_back(root);
    std::ranges::sort(product.roots);
    std::string text = Digits(product.factor);
    for (const double root : product.roots)
        text += "*(x - " + Digits(root) + ")";
    problem.Type(text + " between " + Digits(left) + " and " + Digits(product.right));
    return product;
}

}  // namespace

Verdict PlayRootSearch(Problem& problem) {
    const Product product = AnyProduct(problem);
    const std::vector<double>& roots = product.roots;
    const bool is_backward = problem.chance.OneIn(4);
    const auto outcome = numeric::FindRoots([&](double x) { return product.At(x); },
                                            is_backward ? product.right : product.left,
                                            is_backward ? product.left : product.right);
    if (const auto* refusal = std::get_if<numeric::RootsRefusal>(&outcome)) {
        const std::string message(numeric::TextOf(*refusal));
        return roots.empty() ? Refused(message) : Wrong("refused although it has roots: " + message);
    }
    const std::vector<double>& found = std::get<numeric::FoundRoots>(outcome).roots;
    if (found.size() != roots.size())
        return Wrong(std::to_string(found.size()) + " roots of " + std::to_string(roots.size()));
    for (std::size_t k = 0; k < roots.size(); ++k)
        if (std::abs(found[k] - roots[k]) > kCell)
            return Wrong("finds " + Digits(found[k]) + " for " + Digits(roots[k]));
    return Right();
}

}  // namespace tavrelo::physics
