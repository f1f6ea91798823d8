#include "text/signed_sum.h"

#include <string_view>

#include "text/number_text.h"

namespace tavrelo::text {

std::string SignedSum(std::span<const SumTerm> terms, int decimals) {
    constexpr std::string_view kLeadingPlus = " + ";
    std::string sum;
    for (const SumTerm& term : terms)
        sum += TermText(true, false, RoundTo(term.coef, decimals), term.symbol);
    if (sum.empty())
        return "0";
    return sum.starts_with(kLeadingPlus) ? sum.substr(kLeadingPlus.size()) : sum;
}

}  // namespace tavrelo::text
