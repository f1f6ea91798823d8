#include "mechanics/projectile/equation_line.h"

#include <string_view>

#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

std::string WithSlashesDoubled(std::string_view markup) {
    std::string doubled;
    for (const char each : markup) {
        doubled += each;
        if (each == '/')
            doubled += each;
    }
    return doubled;
}

}  // namespace

std::string SumText(const std::vector<Term>& terms) {
    constexpr std::string_view kLeadingPlus = " + ";
    std::string sum;
    for (const Term& term : terms)
        sum += text::TermText(true, false, term.coefficient, term.factor);
    if (sum.empty())
        return "0";
    return sum.substr(sum.starts_with(kLeadingPlus) ? kLeadingPlus.size() : 1);
}

std::string ForPicture(const EquationLine& line) { return line.left + " = " + SumText(line.right); }

std::string ForReport(const EquationLine& line) { return WithSlashesDoubled(ForPicture(line)); }

}  // namespace tavrelo::mechanics::projectile
