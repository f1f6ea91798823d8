// Six formulas beside muParser and beside the same formula compiled by the C++ compiler: one value at a time,
// a column of 300, the parser, and a new object with its first value.

#include <muParser.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <span>
#include <vector>

#include "expr/expression.h"
#include "race.h"

namespace {

using namespace tavrelo;
using bench::Keep;
using bench::Nanoseconds;
using bench::Race;
using bench::Ratio;

constexpr double kRadians = 1.0;
constexpr std::size_t kPoints = 300;
constexpr std::size_t kMostVariables = 3;

struct Formula {
    const char* ours;
    const char* peers;
    std::size_t variables;
};

constexpr Formula kFormulas[] = {
    {"X^2+3*X-1", "x^2+3*x-1", 1},
    {"SEN(X)*EXP(-X/10)", "sin(x)*exp(-x/10)", 1},
    {"(X^3-2*X)/(1+X^2)", "(x^3-2*x)/(1+x^2)", 1},
    {"R(X^2+Y^2)+ATAN(Y/(X+5))", "sqrt(x^2+y^2)+atan(y/(x+5))", 2},
    {"2*X+3*Y-4*Z+0*X+0*Y+0*Z", "2*x+3*y-4*z+0*x+0*y+0*z", 3},
    {"((X+1)*(X+2)*(X+3)*(X+4))/(X^2+1)-LN(X+10)", "((x+1)*(x+2)*(x+3)*(x+4))/(x^2+1)-ln(x+10)", 1},
};

/// The points at which the formulas are evaluated, one column a variable.
struct Points {
    std::array<std::vector<double>, kMostVariables> columns;

    Points() {
        for (std::size_t k = 0; k < kPoints; ++k) {
            const double step = static_cast<double>(k);
            columns[0].push_back(0.5 + 0.01 * step);
            columns[1].push_back(1.5 - 0.001 * step);
            columns[2].push_back(2.0 + 0.002 * step);
        }
    }
};

/// Hands `use` the formula as the C++ compiler takes it.
template <typename Use>
void WithCompiled(std::size_t index, Use use) {
    switch (index) {
        case 0:
            return use([](double x, double, double) { return x * x + 3 * x - 1; });
        case 1:
            return use([](double x, double, double) { return std::sin(x) * std::exp(-x / 10); });
        case 2:
            return use([](double x, double, double) { return (x * x * x - 2 * x) / (1 + x * x); });
        case 3:
            return use(
                [](double x, double y, double) { return std::sqrt(x * x + y * y) + std::atan(y / (x + 5)); });
        case 4:
            return use(
                [](double x, double y, double z) { return 2 * x + 3 * y - 4 * z + 0 * x + 0 * y + 0 * z; });
        default:
            return use([](double x, double, double) {
                return ((x + 1) * (x + 2) * (x + 3) * (x + 4)) / (x * x + 1) - std::log(x + 10);
            });
    }
}

/// Adding them up in their order keeps the values apart, as calls one by one are.
void SumCompiled(std::size_t index, const Points& points) {
    WithCompiled(index, [&](auto function) {
        double sum = 0.0;
        for (std::size_t k = 0; k < kPoints; ++k) {
            sum += function(points.columns[0][k], points.columns[1][k], points.columns[2][k]);
        }
        Keep(sum);
    });
}

void FillCompiled(std::size_t index, const Points& points, std::vector<double>& values) {
    WithCompiled(index, [&](auto function) {
        for (std::size_t k = 0; k < kPoints; ++k) {
            values[k] = function(points.columns[0][k], points.columns[1][k], points.columns[2][k]);
        }
        Keep(values[kPoints / 2]);
    });
}

/// muParser with its variables.
struct Peer {
    std::array<double, kMostVariables> variables{};
    mu::Parser parser;

    Peer() {
        parser.DefineVar("x", &variables[0]);
        parser.DefineVar("y", &variables[1]);
        parser.DefineVar("z", &variables[2]);
    }
    /// The parser parses when the first value is asked for.
    double Parse(const char* formula) {
        parser.SetExpr(formula);
        return parser.Eval();
    }
    double At(const Points& points, std::size_t point) {
        for (std::size_t i = 0; i < kMostVariables; ++i) {
            variables[i] = points.columns[i][point];
        }
        return parser.Eval();
    }
};

double OursAt(expr::CExpression& expression, std::size_t variables, const Points& points, std::size_t point) {
    const std::array<double, kMostVariables> at = {points.columns[0][point], points.columns[1][point],
                                                   points.columns[2][point]};
    return expression.EvaluateNumber(std::span(at).first(variables));
}

/// One row of a table: ours, the peer's and maybe the compiler's time, and how many times as fast as the peer
/// we are.
class Contest {
  public:
    Contest(const char* title, bool with_compiler)
        : m_table(with_compiler
                      ? std::vector<std::string>{title, "Tavrelo", "muParser", "C++", "times as fast"}
                      : std::vector<std::string>{title, "Tavrelo", "muParser", "times as fast"}) {}

    void Run(const char* formula, const std::vector<bench::Runner>& runners) {
        const std::vector<double> times = Race(runners);
        std::vector<std::string> cells;
        for (const double time : times) {
            cells.push_back(Nanoseconds(time));
        }
        m_ratios.push_back(times[1] / times[0]);
        cells.push_back(Ratio(m_ratios.back()));
        m_columns = cells.size();
        m_table.Row(formula, cells);
    }
    void Finish() {
        std::vector<std::string> cells(m_columns - 1);
        cells.push_back(Ratio(bench::GeometricMean(m_ratios)));
        m_table.Row("geometric mean", cells);
        std::printf("\n");
    }

  private:
    bench::Table m_table;
    std::vector<double> m_ratios;
    std::size_t m_columns = 0;
};

void CompareValues(const Points& points) {
    Contest contest("One value at a time, ns", true);
    for (std::size_t index = 0; index < std::size(kFormulas); ++index) {
        const Formula& formula = kFormulas[index];
        expr::CExpression expression(kRadians);
        expression.SetExpression(formula.ours);
        Peer peer;
        peer.Parse(formula.peers);
        contest.Run(formula.ours, {{"ours",
                                    [&] {
                                        double sum = 0.0;
                                        for (std::size_t k = 0; k < kPoints; ++k) {
                                            sum += OursAt(expression, formula.variables, points, k);
                                        }
                                        Keep(sum);
                                    },
                                    kPoints},
                                   {"muParser",
                                    [&] {
                                        double sum = 0.0;
                                        for (std::size_t k = 0; k < kPoints; ++k) {
                                            sum += peer.At(points, k);
                                        }
                                        Keep(sum);
                                    },
                                    kPoints},
                                   {"C++", [&] { SumCompiled(index, points); }, kPoints}});
    }
    contest.Finish();
}

void CompareColumns(const Points& points) {
    Contest contest("A column of 300 values, ns a value", true);
    for (std::size_t index = 0; index < std::size(kFormulas); ++index) {
        const Formula& formula = kFormulas[index];
        expr::CExpression expression(kRadians);
        expression.SetExpression(formula.ours);
        Peer peer;
        peer.Parse(formula.peers);
        const std::span<const double> columns[] = {points.columns[0], points.columns[1], points.columns[2]};
        std::vector<double> values(kPoints);
        contest.Run(formula.ours, {{"ours",
                                    [&] {
                                        expression.EvaluateColumn(std::span(columns).first(formula.variables),
                                                                  values);
                                        Keep(values[kPoints / 2]);
                                    },
                                    kPoints},
                                   {"muParser",
                                    [&] {
                                        for (std::size_t k = 0; k < kPoints; ++k) {
                                            values[k] = peer.At(points, k);
                                        }
                                        Keep(values[kPoints / 2]);
                                    },
                                    kPoints},
                                   {"C++", [&] { FillCompiled(index, points, values); }, kPoints}});
    }
    contest.Finish();
}

void CompareParsers() {
    Contest contest("A new text in the same object, ns", false);
    for (const Formula& formula : kFormulas) {
        expr::CExpression expression(kRadians);
        Peer peer;
        contest.Run(formula.ours, {{"ours",
                                    [&] {
                                        expression.SetExpression(formula.ours);
                                        Keep(expression.ErrorCode());
                                    }},
                                   {"muParser", [&] { Keep(peer.Parse(formula.peers)); }}});
    }
    contest.Finish();
}

void CompareFreshObjects(const Points& points) {
    Contest contest("A new object, its text and its first value, ns", false);
    for (const Formula& formula : kFormulas) {
        contest.Run(formula.ours, {{"ours",
                                    [&] {
                                        expr::CExpression expression(kRadians);
                                        expression.SetExpression(formula.ours);
                                        Keep(OursAt(expression, formula.variables, points, 0));
                                    }},
                                   {"muParser", [&] {
                                        Peer peer;
                                        Keep(peer.Parse(formula.peers));
                                    }}});
    }
    contest.Finish();
}

}  // namespace

int main() {
    const Points points;
    CompareValues(points);
    CompareColumns(points);
    CompareParsers();
    CompareFreshObjects(points);
}
