#include "mechanics/particle/root_choice.h"

#include "mechanics/forces/found_forces.h"

namespace tavrelo::mechanics::particle {
namespace {

using notation::Force;

// A root put into the forces, and what their components then add up to; nothing while one is unknown.
struct TriedRoot {
    std::vector<Force> forces;
    std::optional<forces::ComponentSums> sums;
    Report report;

    bool IsGood() const { return InEquilibrium(sums) && forces::AreBalanced(forces); }
};

TriedRoot Tried(std::span<const Force> forces, const RootCase& method, const Root& root) {
    TriedRoot tried = {{forces.begin(), forces.end()}, {}, method.ReportOf(root)};
    for (Force& force : tried.forces)
        forces::PutFoundValues(
            force, [&](const notation::UnknownTerm& unknown) { return method.Factor(unknown, root); });
    tried.sums = forces::SumComponents(tried.forces);
    return tried;
}

std::string QuestionLine(const std::array<NamedValue, 2>& values, int decimals) {
    return values[0].name + ShownValue(values[0], decimals) + ", " + values[1].name +
           ShownValue(values[1], decimals);
}

std::string QuestionText(const Report& first, const Report& second, int decimals) {
    return "Existen dos soluciones (posiblemente iguales) que son:\n" + QuestionLine(first.values, decimals) +
           "\n" + QuestionLine(second.values, decimals) +
           "\nPara escoger la primera oprime el botón \"Sí\". Para la segunda oprime \"No\".";
}

}  // namespace

Equilibrium ChooseRoot(std::span<const Force> forces, const RootCase& method, const TwoRoots& roots,
                       int decimals) {
    const TriedRoot first = Tried(forces, method, roots[0]);
    const TriedRoot second = Tried(forces, method, roots[1]);
    const auto finish = [&](const TriedRoot& tried) {
        return Finish(tried.forces, tried.report, second.sums.value_or(forces::ComponentSums{}), decimals);
    };
    if (first.IsGood() && second.IsGood())
        return Choice{method.IsBetweenAngles(),
                      QuestionText(first.report, second.report, decimals),
                      {finish(first), finish(second)}};
    if (first.IsGood())
        return finish(first);
    if (second.IsGood())
        return finish(second);
    return text::Refusal{kNoEquilibrium};
}

}  // namespace tavrelo::mechanics::particle
