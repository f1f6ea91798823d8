#include "mechanics/rigid/rigid_report.h"

#include <algorithm>
#include <iterator>

#include "text/markup.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::rigid {
namespace {

using Lines = std::vector<std::string>;

std::string Heading(const std::string& text) { return "\\0100" + text + "\\"; }

Lines Opening(const BodyEquations& equations) {
    std::string names;
    for (const std::string& name : equations.unknowns)
        names.append(names.empty() ? "" : ", ").append(text::EscapeMarks(name));
    return {std::to_string(equations.unknowns.size()) + " incógnitas, " +
                std::to_string(equations.equations.size()) + " ecuaciones.",
            "Incógnitas: " + names, "Ecuaciones:"};
}

Lines BodyPortion(int body, const BodyEquations& equations, int decimals) {
    Lines lines = {Heading("Cuerpo " + std::to_string(body) + ":")};
    for (const BodyEquation& equation : equations.equations)
        if (equation.body == body)
            lines.push_back(EquationLine(equation, decimals));
    return lines;
}

Lines Solutions(const BodyResults& results, int decimals) {
    Lines lines = {Heading("Soluciones:")};
    for (const FoundUnknown& found : results)
        lines.push_back(text::EscapeMarks(found.name) + " = " + text::NumText(found.value, decimals).Text());
    return lines;
}

std::size_t MarksOf(const Lines& lines) {
    std::size_t marks = 1;  // the end mark
    for (const std::string& line : lines)
        marks += text::CountMarks(line);
    return marks;
}

/// The portion as it is, or line by line when one rendering does not take it.
std::vector<Lines> Divided(const Lines& portion) {
    if (MarksOf(portion) <= text::kMarkLimit)
        return {portion};
    std::vector<Lines> lines;
    for (const std::string& line : portion)
        lines.push_back({line});
    return lines;
}

/// Joins neighbouring portions while one rendering takes them.
ReportPortions Packed(const std::vector<Lines>& portions) {
    ReportPortions packed;
    for (const Lines& portion : portions)
        for (const Lines& part : Divided(portion)) {
            if (!packed.empty() && MarksOf(packed.back()) + MarksOf(part) <= text::kMarkLimit)
                std::ranges::copy(part, std::back_inserter(packed.back()));
            else
                packed.push_back(part);
        }
    return packed;
}

}  // namespace

ReportPortions EquilibriumReport(std::span<const ChosenBody> bodies, const BodyEquations& equations,
                                 const BodyResults& results, int decimals) {
    std::vector<Lines> portions = {Opening(equations)};
    for (const ChosenBody& body : bodies)
        portions.push_back(BodyPortion(body.number, equations, decimals));
    if (!results.empty())
        portions.push_back(Solutions(results, decimals));
    return Packed(portions);
}

}  // namespace tavrelo::mechanics::rigid
