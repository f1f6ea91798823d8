#include "mechanics/particle/candidates.h"

#include "mechanics/forces/substitution.h"

namespace tavrelo::mechanics::particle {
namespace {

constexpr const char* kNoEquilibrium = "No se pueden cumplir las ecuaciones de equilibrio.";

mechanics::forces::ForceTable WithCandidate(const mechanics::forces::ForceTable& table,
                                            const CandidateCase& method, const Candidate& candidate) {
    mechanics::forces::ForceTable result = table;
    mechanics::forces::Substitute(
        result, [&](const std::string& unknown) { return method.Factor(unknown, candidate); });
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

Equilibrium ChooseCandidate(const mechanics::forces::ForceTable& table, const CandidateCase& method,
                            const std::vector<double>& values, int decimals) {
    const Candidate first = {values[0], values[1]};
    const Candidate second = {values[2], values[3]};
    const mechanics::forces::ForceTable first_table = WithCandidate(table, method, first);
    const mechanics::forces::ForceTable second_table = WithCandidate(table, method, second);
    const bool first_is_good =
        mechanics::forces::InEquilibrium(mechanics::forces::SumComponents(first_table));
    const auto remainder = mechanics::forces::SumComponents(second_table);
    const bool second_is_good = mechanics::forces::InEquilibrium(remainder);
    const auto finish = [&](const mechanics::forces::ForceTable& result, const Candidate& candidate) {
        return Finish(result, method.ReportOf(candidate),
                      remainder.value_or(mechanics::forces::ComponentSums{}), decimals);
    };
    if (first_is_good && second_is_good)
        return Choice{method.QuestionTitle(),
                      QuestionText(method.ReportOf(first), method.ReportOf(second), decimals),
                      {finish(first_table, first), finish(second_table, second)}};
    if (first_is_good)
        return finish(first_table, first);
    if (second_is_good)
        return finish(second_table, second);
    return text::Refusal{kNoEquilibrium};
}

}  // namespace tavrelo::mechanics::particle
