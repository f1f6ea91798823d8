#pragma once

#include <array>
#include <cstddef>

namespace tavrelo::numeric {

/// The real roots of an equation of at most the second degree: none, one or two.
class RealRootList {
  public:
    void Add(double root) { m_roots[m_count++] = root; }
    std::size_t size() const { return m_count; }
    bool empty() const { return m_count == 0; }
    double operator[](std::size_t k) const { return m_roots[k]; }
    const double* begin() const { return m_roots.data(); }
    const double* end() const { return m_roots.data() + m_count; }

  private:
    std::array<double, 2> m_roots{};
    std::size_t m_count = 0;
};

/// A part of this size of the terms of a sum is what rounding leaves of 0.
inline constexpr double kRoundingOfTerms = 1e-12;

/// a - b; 0 when the two differ by rounding alone, so that "0.3 - 3 * 0.1" makes no leading coefficient.
double CleanDifference(double a, double b);

/// The real roots of a x^2 + b x + c = 0 in the order of QuadRoots, equal ones once. Without a square term
/// the root of b x + c = 0; without any unknown none. A discriminant that is rounding alone counts as 0.
/// Fails with Overflow.
RealRootList RealRoots(double a, double b, double c);

}  // namespace tavrelo::numeric
