// The calculator's recipes beside the GNU Scientific Library: a system of twenty equations, the roots in 490
// cells, and what an integration costs beyond the values that it asks for.

#include <gsl/gsl_linalg.h>
#include <gsl/gsl_roots.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <memory>
#include <random>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "expr/expression.h"
#include "numeric/linear_systems.h"
#include "numeric/ode.h"
#include "numeric/quadrature.h"
#include "numeric/root_search.h"
#include "race.h"

namespace {

using namespace tavrelo;
using bench::Keep;
using bench::Nanoseconds;
using bench::Race;
using bench::Ratio;

void ShowRow(const bench::Table& table, const char* name, const std::vector<double>& times) {
    table.Row(name, {Nanoseconds(times[0]), Nanoseconds(times[1]), Ratio(times[0] / times[1])});
}

// --- Twenty equations
// ---------------------------------------------------------------------------------------------------

constexpr std::size_t kUnknowns = 20;

std::vector<double> RandomElements() {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> element(-10, 10);
    std::vector<double> elements(kUnknowns * kUnknowns);
    for (double& value : elements) {
        value = element(random);
    }
    return elements;
}

/// The library's matrices and vectors, all of one size.
class GslSystem {
  public:
    explicit GslSystem(const std::vector<double>& elements) {
        for (std::size_t i = 0; i < kUnknowns; ++i) {
            for (std::size_t j = 0; j < kUnknowns; ++j) {
                gsl_matrix_set(m_given.get(), i, j, elements[i * kUnknowns + j]);
            }
        }
        gsl_vector_set_all(m_right_side.get(), 1.0);
    }
    void Factor() {
        int sign = 0;
        gsl_matrix_memcpy(m_factors.get(), m_given.get());
        gsl_linalg_LU_decomp(m_factors.get(), m_permutation.get(), &sign);
        Keep(gsl_matrix_get(m_factors.get(), kUnknowns - 1, kUnknowns - 1));
    }
    void Solve() {
        Factor();
        gsl_linalg_LU_solve(m_factors.get(), m_permutation.get(), m_right_side.get(), m_solution.get());
        Keep(gsl_vector_get(m_solution.get(), 0));
    }

  private:
    template <auto kFree>
    struct Free {
        template <typename Object>
        void operator()(Object* object) const {
            kFree(object);
        }
    };
    using Matrix = std::unique_ptr<gsl_matrix, Free<gsl_matrix_free>>;
    using Vector = std::unique_ptr<gsl_vector, Free<gsl_vector_free>>;
    Matrix m_given{gsl_matrix_alloc(kUnknowns, kUnknowns)};
    Matrix m_factors{gsl_matrix_alloc(kUnknowns, kUnknowns)};
    Vector m_right_side{gsl_vector_alloc(kUnknowns)};
    Vector m_solution{gsl_vector_alloc(kUnknowns)};
    std::unique_ptr<gsl_permutation, Free<gsl_permutation_free>> m_permutation{
        gsl_permutation_alloc(kUnknowns)};
};

void CompareSystems(const bench::Table& table) {
    const std::vector<double> elements = RandomElements();
    const numeric::SquareMatrix given(kUnknowns, elements);
    const std::vector<double> right_side(kUnknowns, 1.0);
    GslSystem peer(elements);
    numeric::SquareMatrix factors(kUnknowns);
    numeric::Permutation permutation;
    double determinant = 0.0;
    ShowRow(table, "LU factors, 20 by 20",
            Race({{"ours",
                   [&] {
                       factors = given;
                       numeric::LUDec(factors, permutation, determinant);
                       Keep(determinant);
                   }},
                  {"GSL", [&] { peer.Factor(); }}}));
    ShowRow(table, "LU factors and solution, 20 by 20",
            Race({{"ours",
                   [&] {
                       numeric::SquareMatrix a = given;
                       std::vector<double> b = right_side;
                       numeric::SolveLinear(a, b);
                       Keep(b[0]);
                   }},
                  {"GSL", [&] { peer.Solve(); }}}));
}

// --- Roots
// --------------------------------------------------------------------------------------------------------------

constexpr double kFirst = 1.0;
constexpr double kLast = 20.0;
constexpr double kCell = (kLast - kFirst) / numeric::kRootCells;
constexpr double kNarrow = 1e-6;

constexpr auto kXSinX = [](double x) { return x * std::sin(x); };
double GslXSinX(double x, void*) { return kXSinX(x); }

class GslRoots {
  public:
    /// The values are shared by neighbouring cells.
    void SearchSharing() {
        double left = GSL_FN_EVAL(&m_function, kFirst);
        for (int k = 1; k <= numeric::kRootCells; ++k) {
            const double right = GSL_FN_EVAL(&m_function, kFirst + k * kCell);
            if (left * right < 0.0) {
                Bisect(kFirst + (k - 1) * kCell);
            }
            left = right;
        }
    }
    /// Each cell looks at both its ends.
    void SearchCells() {
        for (int k = 0; k < numeric::kRootCells; ++k) {
            const double left = kFirst + k * kCell;
            if (GSL_FN_EVAL(&m_function, left) * GSL_FN_EVAL(&m_function, left + kCell) < 0.0) {
                Bisect(left);
            }
        }
    }

  private:
    void Bisect(double left) {
        gsl_root_fsolver_set(m_solver.get(), &m_function, left, left + kCell);
        do {
            gsl_root_fsolver_iterate(m_solver.get());
        } while (gsl_root_test_interval(gsl_root_fsolver_x_lower(m_solver.get()),
                                        gsl_root_fsolver_x_upper(m_solver.get()), kNarrow,
                                        0.0) == GSL_CONTINUE);
        Keep(gsl_root_fsolver_root(m_solver.get()));
    }

    struct Free {
        void operator()(gsl_root_fsolver* solver) const { gsl_root_fsolver_free(solver); }
    };
    gsl_function m_function{GslXSinX, nullptr};
    std::unique_ptr<gsl_root_fsolver, Free> m_solver{gsl_root_fsolver_alloc(gsl_root_fsolver_bisection)};
};

void CompareRoots(const bench::Table& table) {
    GslRoots peer;
    const auto ours = [] {
        const auto found = numeric::FindRoots(kXSinX, kFirst, kLast);
        Keep(std::get<numeric::FoundRoots>(found).roots[0]);
    };
    ShowRow(table, "roots of x sin x in 490 cells, each by both ends",
            Race({{"ours", ours}, {"GSL", [&] { peer.SearchCells(); }}}));
    ShowRow(table, "the same, GSL with shared ends",
            Race({{"ours", ours}, {"GSL", [&] { peer.SearchSharing(); }}}));
}

// --- Integrations
// ---------------------------------------------------------------------------------------------------------

/// The formula as a function of one variable, with its columns.
class FormulaOfX {
  public:
    explicit FormulaOfX(const std::string& text) : m_expression(kRadians) {
        m_expression.SetExpression(text);
    }
    double operator()(double x) { return m_expression.EvaluateNumber(std::span(&x, 1)); }
    double operator()(std::span<const double> at) { return m_expression.EvaluateNumber(at); }
    void Column(std::span<const double> places, std::span<double> values) {
        m_expression.EvaluateColumn(places, values);
    }

  private:
    static constexpr double kRadians = 1.0;
    expr::CExpression m_expression;
};

/// Simpson's values are known beforehand, so they are held against values at places known beforehand.
template <typename Function>
void CompareSimpson(const bench::Table& table, const char* name, Function f) {
    int calls = 0;
    const auto counted = [&](double x) { return ++calls, f(x); };
    numeric::Integrate(counted, 0.0, 3.0);
    ShowRow(table, name,
            Race({{"ours", [&] { Keep(numeric::Integrate(f, 0.0, 3.0)); }, static_cast<double>(calls)},
                  {"f alone",
                   [&] {
                       double sum = 0.0;
                       for (int i = 0; i < calls; ++i) {
                           sum += f(3.0 * i / calls);
                       }
                       Keep(sum);
                   },
                   static_cast<double>(calls)}}));
}

/// In a differential equation each value waits for the one before, so it is held against values that do; and,
/// as a second row, against values that do not.
template <typename Function>
void CompareCashKarp(const bench::Table& table, const std::string& name, Function f) {
    constexpr double kEnd = 5.0;
    int calls = 0;
    const auto counted = [&](std::span<const double> at) { return ++calls, f(at); };
    const auto integrate = [](auto& function) {
        numeric::OdeState y = {1.0, 0.0};
        const auto outcome =
            numeric::ODEInt(function, 1, y, 0.0, kEnd, 1e-5, numeric::kOdeFirstStep, numeric::kOdeLeastStep);
        Keep(outcome == numeric::OdeOutcome::Done ? y[0] : 0.0);
    };
    integrate(counted);
    const auto waiting = [&] {
        double value = 1.0;
        for (int i = 0; i < calls; ++i) {
            const std::array<double, 2> at = {kEnd * i / calls + 1e-9 * value, 1.0 + 1e-9 * value};
            value = f(std::span<const double>(at));
        }
        Keep(value);
    };
    const auto by_itself = [&] {
        double sum = 0.0;
        for (int i = 0; i < calls; ++i) {
            const std::array<double, 2> at = {kEnd * i / calls, 1.0};
            sum += f(std::span<const double>(at));
        }
        Keep(sum);
    };
    const auto count = static_cast<double>(calls);
    const auto ours = [&] { integrate(f); };
    ShowRow(table, (name + ", f waiting for f").c_str(),
            Race({{"ours", ours, count}, {"f alone", waiting, count}}));
    ShowRow(table, (name + ", f by itself").c_str(),
            Race({{"ours", ours, count}, {"f alone", by_itself, count}}));
}

}  // namespace

int main() {
    {
        const bench::Table table({"Beside GSL, ns", "Tavrelo", "GSL", "ratio"});
        CompareSystems(table);
        CompareRoots(table);
    }
    std::printf("\n");
    const bench::Table table({"A value asked for by an integration, ns", "Tavrelo", "f alone", "ratio"});
    CompareSimpson(table, "Simpson, exp(-x) sin 3x + 1.5 compiled",
                   [](double x) { return std::exp(-x) * std::sin(3.0 * x) + 1.5; });
    CompareSimpson(table, "Simpson, the same as a formula",
                   [f = std::make_shared<FormulaOfX>("EXP(-X)*SEN(3*X)+1.5")](double x) { return (*f)(x); });
    CompareCashKarp(table, "Cash-Karp, y sin x - 0.3 y compiled",
                    [](std::span<const double> at) { return std::sin(at[0]) * at[1] - 0.3 * at[1]; });
    CompareCashKarp(table, "Cash-Karp, the same as a formula",
                    [f = std::make_shared<FormulaOfX>("SEN(X)*Y-0.3*Y")](std::span<const double> at) {
                        return (*f)(at);
                    });
}
