#include "statics/candidates.h"

#include "statics/substitution.h"

namespace tavrelo::statics {
namespace {

constexpr const char* kNoEquilibrium = "No se pueden cumplir las ecuaciones de equilibrio.";

ForceTable WithCandidate(const ForceTable& table, const CandidateCase& method, const Candidate& candidate) {
    ForceTable result = table;
    Substitute(result, [&](const std::string& unknown) { return method.Factor(unknown, candidate); });
    return result;
}

std::string QuestionLine(const std::vector<NamedValue>& values, int decimals) {
    return values[0].name + ShownValue(values[0], decimals) + ", " + values[1].name +
           ShownValue(values[1], decimals);
}

std::string QuestionText(const Report& first, const Report& second, int decimals) {
    return "Existen dos soluciones (posiblemente iguales) que son:\n" + QuestionLine(first.values, decimals) +
           "\n" + QuestionLine(second.values, decimals) +
           "\nPara escoger la primera oprime el botón \"Sí\". Para la segunda oprime \"No\".";
}

}  // namespace

Equilibrium ChooseCandidate(const ForceTable& table, const CandidateCase& method,
                            const std::vector<double>& values, int decimals) {
    const Candidate first = {values[0], values[1]};
    const Candidate second = {values[2], values[3]};
    const ForceTable first_table = WithCandidate(table, method, first);
    const ForceTable second_table = WithCandidate(table, method, second);
    const bool first_is_good = InEquilibrium(SumComponents(first_table));
    const auto remainder = SumComponents(second_table);
    const bool second_is_good = InEquilibrium(remainder);
    const auto finish = [&](const ForceTable& result, const Candidate& candidate) {
        return Finish(result, method.ReportOf(candidate), remainder.value_or(ComponentSums{}), decimals);
    };
    if (first_is_good && second_is_good)
        return Choice{method.QuestionTitle(),
                      QuestionText(method.ReportOf(first), method.ReportOf(second), decimals),
                      {finish(first_table, first), finish(second_table, second)}};
    if (first_is_good)
        return finish(first_table, first);
    if (second_is_good)
        return finish(second_table, second);
    return Refusal{kNoEquilibrium};
}

}  // namespace tavrelo::statics
