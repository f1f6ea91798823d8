// Speed of the formula language: a curve or an integral evaluates one formula some hundred thousand times.

#include <benchmark/benchmark.h>

#include <array>
#include <string>

#include "expr/expression.h"
#include "expr/postfix.h"
#include "numeric/angles.h"
#include "text/number_text.h"

namespace {

using tavrelo::expr::CExpression;
using tavrelo::text::Value;

constexpr double kDegrees = tavrelo::numeric::kRadiansPerDegree;
constexpr double kX = 1.25;

// Token counts are those of the program, operands and operations together.
const std::string kTenTokens = "2*X^3-5.5*X+1/X";
const std::string kTwentyTokens = "SEN(X)*X^2+3*COS(2*X)-X/(4.5+X)";
const std::string kComparison = "IIF(X<2,X*3.5,7)";
const std::string kBeam = "12.5*STP(1,X,0)-4*STP(2,X,1.5)";

void Parse(benchmark::State& state, const std::string& formula) {
    CExpression expression(kDegrees);
    for (auto _ : state) {
        expression.SetExpression(formula);
        benchmark::DoNotOptimize(expression.ErrorCode());
    }
}
BENCHMARK_CAPTURE(Parse, TenTokens, kTenTokens);
BENCHMARK_CAPTURE(Parse, TwentyTokens, kTwentyTokens);
BENCHMARK_CAPTURE(Parse, Refused, std::string("2*X+)"));

void EvaluateNumber(benchmark::State& state, const std::string& formula) {
    CExpression expression(kDegrees);
    expression.SetExpression(formula);
    const std::array<double, 1> vars = {kX};
    for (auto _ : state) {
        benchmark::DoNotOptimize(expression.EvaluateNumber(vars));
    }
}
BENCHMARK_CAPTURE(EvaluateNumber, TenTokens, kTenTokens);
BENCHMARK_CAPTURE(EvaluateNumber, TwentyTokens, kTwentyTokens);
BENCHMARK_CAPTURE(EvaluateNumber, Comparison, kComparison);
BENCHMARK_CAPTURE(EvaluateNumber, Beam, kBeam);
BENCHMARK_CAPTURE(EvaluateNumber, SumsAndProducts, std::string("2*X*X*X-5.5*X"));

void EvaluateValue(benchmark::State& state, const std::string& formula) {
    CExpression expression(kDegrees);
    expression.SetExpression(formula);
    const std::array<Value, 1> vars = {Value(kX)};
    for (auto _ : state) {
        benchmark::DoNotOptimize(expression.Value(vars));
    }
}
BENCHMARK_CAPTURE(EvaluateValue, TenTokens, kTenTokens);
BENCHMARK_CAPTURE(EvaluateValue, TwentyTokens, kTwentyTokens);

void FailingEvaluation(benchmark::State& state) {
    CExpression expression(kDegrees);
    expression.RaiseErrors = false;
    expression.SetExpression("1/X");
    const std::array<Value, 1> vars = {Value(0)};
    for (auto _ : state) {
        benchmark::DoNotOptimize(expression.Value(vars));
    }
}
BENCHMARK(FailingEvaluation);

void Postfix(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(tavrelo::expr::EvalRPN("3 2 ^ 4 2 ^ + r 30 sen *"));
    }
}
BENCHMARK(Postfix);

void NumberAsText(benchmark::State& state) {
    double number = 1.0 / 3.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(number);
        benchmark::DoNotOptimize(tavrelo::text::NumberToText(number));
    }
}
BENCHMARK(NumberAsText);

void RoundedNumberAsText(benchmark::State& state) {
    double number = 1.0 / 3.0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(number);
        benchmark::DoNotOptimize(tavrelo::text::RoundedText(number, tavrelo::text::kDefaultDecimals));
    }
}
BENCHMARK(RoundedNumberAsText);

}  // namespace
