#include "mechanics/particle/particle_report.h"

#include "mechanics/forces/found_forces.h"
#include "text/number_text.h"
#include "text/symbols.h"

namespace tavrelo::mechanics::particle {
namespace {

constexpr int kCheckDecimals = 0;

std::string CheckLine(const forces::ComponentSums& sums) {
    return SumLine("x", text::RoundedText(sums.x, kCheckDecimals)) + "    " +
           SumLine("y", text::RoundedText(sums.y, kCheckDecimals));
}

std::vector<std::string> ReportLines(const Report& report, const forces::ComponentSums& check, int decimals) {
    std::vector<std::string> lines = {SumLine("x", EquationMarkup(report.x, text::SubscriptName, decimals)),
                                      SumLine("y", EquationMarkup(report.y, text::SubscriptName, decimals))};
    for (const NamedValue& value : report.values)
        lines.push_back(text::SubscriptName(value.name) + ShownValue(value, decimals));
    lines.push_back(CheckLine(check));
    return lines;
}

}  // namespace

std::string SumLine(const char* axis, const std::string& right_side) {
    return std::string(";SF!") + axis + " = " + right_side;
}

std::string ShownValue(const NamedValue& value, int decimals) {
    return " = " + text::RoundedText(value.value, decimals) + value.unit;
}

Solution Finish(std::vector<notation::Force> solved, const Report& report, const forces::ComponentSums& start,
                int decimals) {
    const auto check = forces::SumComponents(solved, start);
    std::vector<std::string> lines = ReportLines(report, check.value_or(start), decimals);
    for (notation::Force& force : solved)
        forces::CompleteFoundForce(force);
    return {std::move(solved), std::move(lines)};
}

}  // namespace tavrelo::mechanics::particle
