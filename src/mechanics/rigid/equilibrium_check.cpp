#include "mechanics/rigid/equilibrium_check.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "mechanics/rigid/results.h"
#include "numeric/checked.h"
#include "numeric/compare.h"

namespace tavrelo::mechanics::rigid {
namespace {

// What rounding may leave of the largest term of all sums: a solution mixes them with each other.
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
    return std::abs(balance.sum) <=
           std::max(numeric::LargestRest(balance.largest), kRoundingOfAll * largest_of_all);
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
