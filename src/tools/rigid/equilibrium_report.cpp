#include "tools/rigid/equilibrium_report.h"

#include "mechanics/forces/sum_equation.h"
#include "text/markup.h"
#include "text/number_text.h"
#include "text/symbols.h"

namespace tavrelo::tools::rigid {
namespace {

using frame::Lines;
using mechanics::rigid::BodyEquation;
using mechanics::rigid::BodyEquations;
using mechanics::rigid::BodyResults;
using mechanics::rigid::FoundUnknown;

std::string Heading(const std::string& text) { return "\\0100" + text + "\\"; }

// The name as the diagrams show it. One that holds marks of the markup itself stays as it was typed.
std::string NameMarkup(const std::string& name) {
    const std::string escaped = text::EscapeMarks(name);
    return escaped == name ? text::SymbolMarkup(name) : escaped;
}

Lines Opening(const BodyEquations& equations) {
    std::string names;
    for (const std::string& name : equations.unknowns)
        names.append(names.empty() ? "" : ", ").append(text::EscapeMarks(name));
    return {std::to_string(equations.unknowns.size()) + " incógnitas, " +
                std::to_string(equations.equations.size()) + " ecuaciones.",
            "Incógnitas: " + names, "Ecuaciones:"};
}

Lines EquationsOf(int body, const BodyEquations& equations, int decimals) {
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

std::string ResultLine(const BodyResults& results, int decimals) {
    std::string line;
    for (const FoundUnknown& found : results)
        line += (line.empty() ? "" : ", ") + found.name + " = " + text::RoundedText(found.value, decimals);
    return line;
}

}  // namespace

std::string EquationLine(const BodyEquation& equation, int decimals) {
    const std::string text =
        mechanics::forces::EquationMarkup({equation.terms, equation.constant}, NameMarkup, decimals);
    return std::string(LetterOf(equation.sum)) + (text.starts_with(' ') ? ":" : ": ") + text;
}

std::vector<Lines> EquilibriumReport(std::span<const mechanics::rigid::ChosenBody> bodies,
                                     const BodyEquations& equations, const BodyResults& results,
                                     int decimals) {
    std::vector<Lines> report = {Opening(equations)};
    for (const mechanics::rigid::ChosenBody& body : bodies)
        report.push_back(EquationsOf(body.number, equations, decimals));
    if (!results.empty())
        report.push_back(Solutions(results, decimals));
    return report;
}

std::string QuestionBetween(const mechanics::rigid::BodyChoice& choice, int decimals) {
    const auto& [first, second] = choice;
    return "Solución 1:\n" + ResultLine(first, decimals) + "\nSolución 2:\n" + ResultLine(second, decimals) +
           "\nPara escoger la primera solución oprime \"Sí\", para la segunda oprime \"No\".";
}

}  // namespace tavrelo::tools::rigid
