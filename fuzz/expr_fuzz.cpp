// Any text as a formula, a line in reverse Polish notation, a list of coefficients and a text with brackets:
// nothing may crash or hang, no result may be infinite or not a number, and no text may come out broken or
// out of proportion.

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "expr/brackets.h"
#include "expr/expression.h"
#include "expr/polynomial_text.h"
#include "expr/postfix.h"
#include "numeric/angles.h"
#include "numeric/checked.h"
#include "text/utf8.h"

namespace {

using tavrelo::expr::CExpression;
using tavrelo::numeric::RuntimeFailure;
using tavrelo::text::Value;

/// A message adds no more to what it quotes; a number has no more characters.
constexpr std::size_t kMessageBytes = 100;
/// Coefficients of one byte become a term of some twenty.
constexpr std::size_t kBytesPerTerm = 40;

void Require(bool condition, std::string_view what) {
    if (!condition) {
        std::cerr << "broken: " << what << "\n";
        std::abort();
    }
}

bool IsUtf8(std::string_view text) {
    return tavrelo::text::ToUtf8(tavrelo::text::ToCodePoints(text)) == text;
}

/// Out of valid text only valid text of at most `bytes` bytes may come.
void RequireText(const std::string& text, std::string_view input, std::size_t bytes) {
    Require(text.size() <= bytes, "text too long");
    Require(IsUtf8(text) || !IsUtf8(input), "text is not UTF-8");
}

void RequireSound(const Value& value, std::string_view input) {
    if (const double* number = value.IfNumber()) {
        Require(std::isfinite(*number), "result is not finite");
    }
    RequireText(value.Text(), input, input.size() + kMessageBytes);
}

template <typename Action>
void Try(Action action) {
    try {
        action();
    } catch (const RuntimeFailure&) {
        // A failure is a good answer.
    }
}

void CheckRoots(CExpression& expression) {
    expression.FindRoots(-2, 2, 0.5, "", 1e-9);
    expression.FindRoots(1, -1, 0, "X", 1e-9);
    for (int i = 0; i <= expression.RootsCount() + 1; ++i) {
        Require(std::isfinite(expression.Root(i)), "root is not finite");
    }
}

/// What an evaluation came to: a number or the text of a failure.
struct Outcome {
    double number = 0.0;
    std::string failure;
};

template <typename Evaluation>
Outcome OutcomeOf(Evaluation evaluate) {
    try {
        return {evaluate(), {}};
    } catch (const RuntimeFailure& failure) {
        return {0.0, failure.what()};
    }
}

void RequireEqual(const Outcome& a, const Outcome& b) {
    Require(a.failure == b.failure, "another failure by the numeric form");
    Require(std::bit_cast<std::uint64_t>(a.number) == std::bit_cast<std::uint64_t>(b.number),
            "another value by the numeric form");
}

/// The first value of a formula comes from its program, the second and the columns from its numeric form.
void CheckNumericForm(const std::string& text, const double& angle_factor) {
    static constexpr std::array<std::array<double, 3>, 5> kPoints = {
        {{0.5, 2, 3.25}, {-0.5, 2, 1e300}, {0, 0, 1}, {30, -7, 0.1}, {1e-160, 1e160, -2}}};
    CExpression numeric(angle_factor);
    try {
        numeric.SetExpression(text);
    } catch (const RuntimeFailure&) {
        return;
    }
    for (std::size_t k = 0; k < kPoints.size(); ++k) {
        CExpression fresh(angle_factor);
        fresh.SetExpression(text);
        const Outcome expected = OutcomeOf([&] { return fresh.EvaluateNumber(kPoints[k]); });
        RequireEqual(OutcomeOf([&] { return numeric.EvaluateNumber(kPoints[k]); }), expected);
        const std::array<double, 3> at = kPoints[k];
        const std::array<double, 2> columns[] = {{at[0], at[0]}, {at[1], at[1]}, {at[2], at[2]}};
        const std::span<const double> spans[] = {columns[0], columns[1], columns[2]};
        std::array<double, 2> values{};
        const Outcome column = OutcomeOf([&] {
            numeric.EvaluateColumn(spans, values);
            return values[1];
        });
        RequireEqual(column, expected);
    }
}

void CheckFormula(const std::string& text, const double& angle_factor) {
    CExpression expression(angle_factor);
    Try([&] { expression.SetExpression(text); });
    RequireText(expression.ErrorDescription(), text, text.size() + kMessageBytes);
    Require(expression.ErrorPos() >= 0 && expression.ErrorPos() <= static_cast<int>(text.size()) + 1,
            "position outside the text");
    RequireText(expression.RPNExpression(), text, 20 * text.size() + kMessageBytes);
    Try([&] { RequireSound(expression.Value(), text); });
    const std::vector<Value> vars = {1.5, "10", Value()};
    Try([&] { RequireSound(expression.Value(vars), text); });
    const std::vector<double> numbers = {-0.5, 2, 1e300};
    Try([&] { Require(std::isfinite(expression.EvaluateNumber(numbers)), "number is not finite"); });
    CheckRoots(expression);
    CheckNumericForm(text, angle_factor);
}

void CheckPostfix(const std::string& text) {
    const tavrelo::expr::PostfixResult result = tavrelo::expr::EvalRPN(text);
    Require(result.value.has_value() == result.message.empty(), "neither value nor message");
    Require(!result.value || std::isfinite(*result.value), "postfix value is not finite");
}

void CheckBrackets(const std::string& text) {
    const auto normal = tavrelo::expr::CheckParentheses(text);
    Require(!normal || normal->size() == text.size(), "brackets changed the length");
}

void CheckPolynomial(const std::string& text) {
    std::vector<std::string> coefs(1);
    for (const char c : text) {
        if (c == ',') {
            coefs.emplace_back();
        } else {
            coefs.back().push_back(c);
        }
    }
    Try([&] {
        const auto polynomial = tavrelo::expr::GetPolynomial(coefs);
        Require(!polynomial || polynomial->size() <= kBytesPerTerm * coefs.size(), "polynomial too long");
    });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const double degrees = tavrelo::numeric::kRadiansPerDegree;
    CheckFormula(text, degrees);
    CheckPostfix(text);
    CheckBrackets(text);
    CheckPolynomial(text);
    return 0;
}
