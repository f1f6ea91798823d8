#include "numeric/quadrature.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "numeric/checked.h"

namespace tavrelo::numeric {

namespace {

constexpr int kMostRounds = 10;
/// Far from any sum, so that the first round is never taken for agreement.
constexpr double kNoEstimate = -1e30;

/// The extended trapezoidal rule, each round with twice the panels of the last.
class Trapezoids {
  public:
    Trapezoids(RealFunction f, double a, double b) : m_f(f), m_a(a), m_range(CheckedSubtract(b, a)) {}

    double Refine();

  private:
    double AtMidpoints() const;

    RealFunction m_f;
    double m_a;
    double m_range;
    double m_sum = 0.0;
    int m_panels = 0;
};

double Trapezoids::Refine() {
    if (m_panels == 0) {
        m_panels = 1;
        m_sum = 0.5 * m_range * CheckedAdd(m_f(m_a), m_f(m_a + m_range));
    } else {
        m_sum = 0.5 * (m_sum + m_range * AtMidpoints() / m_panels);
        m_panels *= 2;
    }
    return Finite(m_sum);
}

double Trapezoids::AtMidpoints() const {
    const double width = m_range / m_panels;
    double sum = 0.0;
    for (int panel = 0; panel < m_panels; ++panel) {
        sum += m_f(m_a + (panel + 0.5) * width);
    }
    return sum;
}

}  // namespace

double Integrate(RealFunction f, double a, double b, double eps) {
    Trapezoids trapezoids(f, std::min(a, b), std::max(a, b));
    double simpson = kNoEstimate;
    double trapezoid = kNoEstimate;
    for (int round = 0; round < kMostRounds; ++round) {
        const double last_simpson = simpson;
        const double last_trapezoid = std::exchange(trapezoid, trapezoids.Refine());
        simpson = Finite((4.0 * trapezoid - last_trapezoid) / 3.0);
        if (eps * std::abs(last_simpson) > std::abs(simpson - last_simpson)) {
            break;
        }
    }
    return simpson;
}

double IntegrateConstant(double k, double a, double b) { return Finite(k * (b - a)); }

}  // namespace tavrelo::numeric
