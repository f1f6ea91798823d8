#include "numeric/quadrature.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <span>
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
    Trapezoids(SampledFunction f, double a, double b) : m_f(f), m_a(a), m_range(CheckedSubtract(b, a)) {}

    double Refine();

  private:
    double AtMidpoints() const;

    SampledFunction m_f;
    double m_a;
    double m_range;
    double m_sum = 0.0;
    int m_panels = 0;
};

double Trapezoids::Refine() {
    if (m_panels == 0) {
        m_panels = 1;
        const double at_left = m_f(m_a);
        m_sum = 0.5 * m_range * CheckedAdd(at_left, m_f(m_a + m_range));
    } else {
        m_sum = 0.5 * (m_sum + m_range * AtMidpoints() / m_panels);
        m_panels *= 2;
    }
    return Finite(m_sum);
}

double Trapezoids::AtMidpoints() const {
    const double width = m_range / m_panels;
    std::array<double, kSampleBlock> places;
    std::array<double, kSampleBlock> values;
    double sum = 0.0;
    for (int first = 0; first < m_panels; first += static_cast<int>(kSampleBlock)) {
        const auto count = std::min(kSampleBlock, static_cast<std::size_t>(m_panels - first));
        for (std::size_t i = 0; i < count; ++i) {
            places[i] = m_a + (first + static_cast<int>(i) + 0.5) * width;
        }
        m_f.Column(std::span(places).first(count), std::span(values).first(count));
        sum = std::accumulate(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(count), sum);
    }
    return sum;
}

}  // namespace

double Integrate(SampledFunction f, double a, double b, double eps) {
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
