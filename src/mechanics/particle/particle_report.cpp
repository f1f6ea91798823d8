#include "mechanics/particle/particle_report.h"

#include "text/number_text.h"
#include "text/symbols.h"

namespace tavrelo::mechanics::particle {
namespace {

constexpr int kCheckDecimals = 0;

std::string CheckLine(const mechanics::forces::ComponentSums& sums) {
    return SumLine("x", text::RoundedText(sums.x, kCheckDecimals)) + "    " +
           SumLine("y", text::RoundedText(sums.y, kCheckDecimals));
}

std::vector<std::string> ReportLines(const Report& report, const mechanics::forces::ComponentSums& check,
                                     int decimals) {
    std::vector<std::string> lines = {SumLine("x", mechanics::forces::EquationText(report.x, decimals)),
                                      SumLine("y", mechanics::forces::EquationText(report.y, decimals))};
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

Solution Finish(const mechanics::forces::ForceTable& table, const Report& report,
                const mechanics::forces::ComponentSums& start, int decimals) {
    const auto check = mechanics::forces::SumComponents(table, start);
    Solution solution = {table, ReportLines(report, check.value_or(start), decimals)};
    mechanics::forces::MarkSolved(solution.table, decimals);
    return solution;
}

}  // namespace tavrelo::mechanics::particle
