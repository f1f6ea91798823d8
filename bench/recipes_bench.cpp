// Speed of the calculator's recipes, each beside a plain textbook peer of the same accuracy. Both run in
// turns, so that one noisy moment hits both; "ratio" is our time over the peer's, below 1 where we are
// faster.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <random>
#include <span>
#include <string>
#include <vector>

#include "expr/expression.h"
#include "numeric/angles.h"
#include "numeric/linear_systems.h"
#include "numeric/ode.h"
#include "numeric/quadrature.h"
#include "numeric/root_search.h"

namespace {

using namespace tavrelo;

constexpr int kCallsPerTurn = 8;
constexpr double kRadians = 1.0;

template <typename Work>
double SecondsOf(Work& work) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < kCallsPerTurn; ++i)
        benchmark::DoNotOptimize(work());
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() / kCallsPerTurn;
}

template <typename Ours, typename Peer>
void Compare(benchmark::State& state, Ours ours, Peer peer) {
    double our_seconds = 0.0;
    double peer_seconds = 0.0;
    for (auto _ : state) {
        const double seconds = SecondsOf(ours);
        state.SetIterationTime(seconds);
        our_seconds += seconds;
        peer_seconds += SecondsOf(peer);
    }
    state.counters["ratio"] = our_seconds / peer_seconds;
    state.counters["peer_us"] = peer_seconds * 1e6 / static_cast<double>(state.iterations());
}

// --- A system of 20 equations against Gaussian elimination
// --------------------------------------------------

constexpr std::size_t kUnknowns = 20;
using Rows = std::vector<std::vector<double>>;

Rows RandomRows() {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> element(-10, 10);
    Rows rows(kUnknowns, std::vector<double>(kUnknowns));
    for (std::vector<double>& row : rows)
        std::generate(row.begin(), row.end(), [&] { return element(random); });
    return rows;
}

/// Elimination with partial pivoting, then back substitution.
std::vector<double> Eliminate(Rows a, std::vector<double> b) {
    const std::size_t n = b.size();
    for (std::size_t k = 0; k < n; ++k) {
        std::size_t pivot = k;
        for (std::size_t i = k + 1; i < n; ++i)
            if (std::abs(a[i][k]) > std::abs(a[pivot][k]))
                pivot = i;
        std::swap(a[k], a[pivot]);
        std::swap(b[k], b[pivot]);
        for (std::size_t i = k + 1; i < n; ++i) {
            const double factor = a[i][k] / a[k][k];
            for (std::size_t j = k + 1; j < n; ++j)
                a[i][j] -= factor * a[k][j];
            b[i] -= factor * b[k];
        }
    }
    for (std::size_t i = n; i-- > 0;) {
        for (std::size_t j = i + 1; j < n; ++j)
            b[i] -= a[i][j] * b[j];
        b[i] /= a[i][i];
    }
    return b;
}

void SolveTwentyEquations(benchmark::State& state) {
    const Rows rows = RandomRows();
    numeric::SquareMatrix matrix(kUnknowns);
    for (std::size_t row = 0; row < kUnknowns; ++row)
        for (std::size_t column = 0; column < kUnknowns; ++column)
            matrix(row, column) = rows[row][column];
    const std::vector<double> right_side(kUnknowns, 1.0);
    Compare(
        state,
        [&] {
            numeric::SquareMatrix a = matrix;
            std::vector<double> b = right_side;
            numeric::SolveLinear(a, b);
            return b;
        },
        [&] { return Eliminate(rows, right_side); });
}
BENCHMARK(SolveTwentyEquations)->UseManualTime();

// --- Formulas, evaluated as the program does
// -----------------------------------------------------------------

/// The formula as a function of one variable.
class Formula {
  public:
    explicit Formula(const std::string& text) : m_expression(kRadians) { m_expression.SetExpression(text); }
    double operator()(double x) { return m_expression.EvaluateNumber(std::span(&x, 1)); }
    double operator()(std::span<const double> arguments) { return m_expression.EvaluateNumber(arguments); }

  private:
    expr::CExpression m_expression;
};

// --- Roots against a plain scan with bisection
// -----------------------------------------------------------------

/// The same cells and accuracy: sign changes of 490 cells, halved to 1e-6.
template <typename Function>
std::vector<double> ScanAndHalve(Function& f, double a, double b) {
    std::vector<double> roots;
    const double h = (b - a) / numeric::kRootCells;
    for (int k = 0; k < numeric::kRootCells; ++k) {
        double left = a + k * h;
        double right = left + h;
        double value = f(left);
        if (value * f(right) >= 0.0)
            continue;
        while (right - left > 1e-6) {
            const double middle = 0.5 * (left + right);
            const double at_middle = f(middle);
            if (value * at_middle > 0.0) {
                left = middle;
                value = at_middle;
            } else {
                right = middle;
            }
        }
        roots.push_back(left);
    }
    return roots;
}

template <typename Function>
void CompareRoots(benchmark::State& state, Function f) {
    Compare(
        state, [&] { return numeric::FindRoots(f, 0.5, 20.0); }, [&] { return ScanAndHalve(f, 0.5, 20.0); });
}
void RootsOfFunction(benchmark::State& state) {
    CompareRoots(state, [](double x) { return std::sin(x) * x * x + 3.0; });
}
BENCHMARK(RootsOfFunction)->UseManualTime();
void RootsOfFormula(benchmark::State& state) { CompareRoots(state, Formula("sen(X)*X^2+3")); }
BENCHMARK(RootsOfFormula)->UseManualTime();

// --- Integrals against adaptive Simpson
// -------------------------------------------------------------------------

template <typename Function>
double AdaptiveSimpson(Function& f, double a, double fa, double m, double fm, double b, double fb,
                       double whole, double eps) {
    const double left_middle = 0.5 * (a + m);
    const double right_middle = 0.5 * (m + b);
    const double at_left = f(left_middle);
    const double at_right = f(right_middle);
    const double left = (m - a) / 6.0 * (fa + 4.0 * at_left + fm);
    const double right = (b - m) / 6.0 * (fm + 4.0 * at_right + fb);
    const double difference = left + right - whole;
    if (std::abs(difference) <= 15.0 * eps)
        return left + right + difference / 15.0;
    return AdaptiveSimpson(f, a, fa, left_middle, at_left, m, fm, left, 0.5 * eps) +
           AdaptiveSimpson(f, m, fm, right_middle, at_right, b, fb, right, 0.5 * eps);
}

template <typename Function>
double AdaptiveSimpson(Function& f, double a, double b, double eps) {
    const double m = 0.5 * (a + b);
    const double fa = f(a);
    const double fm = f(m);
    const double fb = f(b);
    return AdaptiveSimpson(f, a, fa, m, fm, b, fb, (b - a) / 6.0 * (fa + 4.0 * fm + fb), eps);
}

constexpr double kIntegral = 4.6;  // about the value of the integral below, for an equal absolute accuracy

template <typename Function>
void CompareIntegrals(benchmark::State& state, Function f) {
    Compare(
        state, [&] { return numeric::Integrate(f, 0.0, 3.0); },
        [&] { return AdaptiveSimpson(f, 0.0, 3.0, kIntegral * numeric::kIntegralAccuracy); });
}
void IntegralOfFunction(benchmark::State& state) {
    CompareIntegrals(state, [](double x) { return std::exp(-x) * std::sin(3.0 * x) + 1.5; });
}
BENCHMARK(IntegralOfFunction)->UseManualTime();
void IntegralOfFormula(benchmark::State& state) { CompareIntegrals(state, Formula("exp(-X)*sen(3*X)+1.5")); }
BENCHMARK(IntegralOfFormula)->UseManualTime();

// --- A differential equation to 1e-5 against classical steps with step doubling
// ------------------------------------

constexpr double kAccuracy = 1e-5;
constexpr double kEnd = 5.0;

template <typename Function>
double ClassicalStep(Function& f, double x, double y, double h) {
    const auto at = [&f](double place, double value) {
        const double arguments[] = {place, value};
        return f(std::span<const double>(arguments));
    };
    const double k1 = at(x, y);
    const double k2 = at(x + 0.5 * h, y + 0.5 * h * k1);
    const double k3 = at(x + 0.5 * h, y + 0.5 * h * k2);
    const double k4 = at(x + h, y + h * k3);
    return y + h / 6.0 * (k1 + 2.0 * (k2 + k3) + k4);
}

/// One step against two of half the length; their difference, relative to y, governs the length.
template <typename Function>
double StepDoubling(Function& f, double y) {
    double x = 0.0;
    double h = numeric::kOdeFirstStep;
    while (x < kEnd) {
        h = std::min(h, kEnd - x);
        const double whole = ClassicalStep(f, x, y, h);
        const double halves = ClassicalStep(f, x + 0.5 * h, ClassicalStep(f, x, y, 0.5 * h), 0.5 * h);
        const double error = std::abs(halves - whole) / (std::abs(y) * kAccuracy);
        if (error <= 1.0) {
            x += h;
            y = halves + (halves - whole) / 15.0;
        }
        h *= std::clamp(0.9 * std::pow(std::max(error, 1e-10), -0.2), 0.1, 5.0);
    }
    return y;
}

template <typename Function>
void CompareOde(benchmark::State& state, Function f) {
    Compare(
        state,
        [&] {
            numeric::OdeState y = {1.0, 0.0};
            benchmark::DoNotOptimize(numeric::ODEInt(f, 1, y, 0.0, kEnd, kAccuracy, numeric::kOdeFirstStep,
                                                     numeric::kOdeLeastStep));
            return y[0];
        },
        [&] { return StepDoubling(f, 1.0); });
}
void OdeOfFunction(benchmark::State& state) {
    CompareOde(state, [](std::span<const double> at) { return std::sin(at[0]) * at[1] - 0.3 * at[1]; });
}
BENCHMARK(OdeOfFunction)->UseManualTime();
void OdeOfFormula(benchmark::State& state) { CompareOde(state, Formula("sen(X)*Y-0.3*Y")); }
BENCHMARK(OdeOfFormula)->UseManualTime();

}  // namespace
