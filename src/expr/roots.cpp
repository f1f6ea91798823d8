#include "expr/roots.h"

#include <cmath>

#include "numeric/checked.h"

namespace tavrelo::expr {

namespace {

constexpr int kMaxSteps = 100'000;
constexpr int kMaxRefinements = 50;
constexpr double kDefaultSteps = 200.0;

int SignOf(double x) { return x > 0.0 ? 1 : x < 0.0 ? -1 : 0; }

struct Point {
    double x = 0.0;
    double y = 0.0;
};

class RootScan {
  public:
    RootScan(ScannedFunction function, double tolerance) : m_function(function), m_tolerance(tolerance) {}

    std::vector<double> Run(const ScanRange& range);

  private:
    bool Evaluate(Point& point) const;
    void RefineBracket();

    ScannedFunction m_function;
    double m_tolerance;
    Point m_left;
    Point m_right;
    Point m_middle;  // keeps its last value where a new one cannot be computed
    std::vector<double> m_roots;
};

/// False, with the point's value unchanged, when the function has none there.
bool RootScan::Evaluate(Point& point) const {
    try {
        point.y = m_function(point.x);
        return true;
    } catch (const numeric::RuntimeFailure&) {
        return false;
    }
}

void RootScan::RefineBracket() {
    for (int i = 0; i < kMaxRefinements; ++i) {
        const double x = m_left.x + (m_right.x - m_left.x) * m_left.y / (m_left.y - m_right.y);
        if (std::isfinite(x)) {
            m_middle.x = x;
        }
        Evaluate(m_middle);
        if (std::abs(m_middle.y) < m_tolerance) {
            break;
        }
        (SignOf(m_middle.y) == SignOf(m_left.y) ? m_left : m_right) = m_middle;
    }
    m_roots.push_back(m_middle.x);
}

std::vector<double> RootScan::Run(const ScanRange& range) {
    m_left.x = range.low;
    Evaluate(m_left);
    double start = m_left.x;
    for (int step = 0; step < kMaxSteps; ++step) {
        start = m_left.x;
        m_right = {start + range.interval, 0.0};
        if (!std::isfinite(m_right.x)) {
            break;
        }
        if (Evaluate(m_right) && SignOf(m_left.y) != SignOf(m_right.y)) {
            RefineBracket();
        }
        m_left = m_right;
        if (!(m_left.x > start && m_left.x <= range.high)) {
            break;
        }
    }
    return std::move(m_roots);
}

}  // namespace

std::vector<double> ScanRoots(ScannedFunction function, ScanRange range) {
    if (range.low > range.high) {
        range.high = range.low;
    }
    if (range.interval <= 0.0) {
        range.interval = (range.high - range.low) / kDefaultSteps;
    }
    if (!std::isfinite(range.low) || !std::isfinite(range.high) || !std::isfinite(range.interval)) {
        return {};
    }
    return RootScan(function, range.tolerance).Run(range);
}

}  // namespace tavrelo::expr
