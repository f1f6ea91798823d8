#include "mechanics/rigid/equilibrium_check.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "mechanics/rigid/results.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::rigid {
namespace {

constexpr double kLargestSum = 0.001;
constexpr double kPartOfLargestTerm = 0.001;
// What rounding may leave: of the sum's own largest term, and of the largest one of all sums, which a
// solution mixes with each other.
constexpr double kRounding = 1e-9;
constexpr double kRoundingOfAll = 1e-12;

// What an equation comes to with the results put in.
struct Balance {
    double sum = 0;
    double largest = 0;

    void Add(double term) {
        sum = numeric::CheckedAdd(sum, term);
        largest = std::max(largest, std::abs(term));
    }
};

// Nothing while one of its unknowns has no value.
std::optional<Balance> BalanceOf(const BodyEquation& equation, const BodyResults& results) {
    Balance balance;
    balance.Add(equation.constant);
    for (const BodyTerm& term : equation.terms) {
        const std::optional<double> factor = FactorOf(results, term.unknown);
        if (!factor)
            return {};
        balance.Add(numeric::CheckedMultiply(term.coef, *factor));
    }
    return balance;
}

bool IsZero(const Balance& balance, double largest_of_all) {
    const double allowed = std::min(kLargestSum, kPartOfLargestTerm * balance.largest);
    const double rounding = std::max(kRounding * balance.largest, kRoundingOfAll * largest_of_all);
    return std::abs(balance.sum) <= std::max(allowed, rounding);
}

}  // namespace

bool HoldsWith(const BodyEquations& equations, const BodyResults& results) {
    std::vector<Balance> balances;
    double largest = 0;
    for (const BodyEquation& equation : equations.equations) {
        const auto balance = BalanceOf(equation, results);
        if (!balance)
            return false;
        balances.push_back(*balance);
        largest = std::max(largest, balance->largest);
    }
    return std::ranges::all_of(balances, [&](const Balance& balance) { return IsZero(balance, largest); });
}

}  // namespace tavrelo::mechanics::rigid
