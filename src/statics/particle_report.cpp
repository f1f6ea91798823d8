#include "statics/particle_report.h"

#include "numeric/number_text.h"
#include "vectors/symbols.h"

namespace tavrelo::statics {
namespace {

constexpr int kCheckDecimals = 0;

std::string CheckLine(const ComponentSums& sums) {
    return SumLine("x", numeric::RoundedText(sums.x, kCheckDecimals)) + "    " +
           SumLine("y", numeric::RoundedText(sums.y, kCheckDecimals));
}

std::vector<std::string> ReportLines(const Report& report, const ComponentSums& check, int decimals) {
    std::vector<std::string> lines = {SumLine("x", EquationText(report.x, decimals)),
                                      SumLine("y", EquationText(report.y, decimals))};
    for (const NamedValue& value : report.values)
        lines.push_back(vectors::SubscriptName(value.name) + ShownValue(value, decimals));
    lines.push_back(CheckLine(check));
    return lines;
}

}  // namespace

std::string SumLine(const char* axis, const std::string& right_side) {
    return std::string(";SF!") + axis + " = " + right_side;
}

std::string ShownValue(const NamedValue& value, int decimals) {
    return " = " + numeric::RoundedText(value.value, decimals) + value.unit;
}

Solution Finish(const ForceTable& table, const Report& report, const ComponentSums& start, int decimals) {
    const auto check = SumComponents(table, start);
    Solution solution = {table, ReportLines(report, check.value_or(start), decimals)};
    MarkSolved(solution.table, decimals);
    return solution;
}

}  // namespace tavrelo::statics
