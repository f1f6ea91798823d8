#include "mechanics/rigid/rigid_problem.h"

namespace tavrelo::mechanics::rigid {

std::string_view RigidProblem::LettersOfSystem(int system) const {
    return system >= 1 && system <= kSystems ? std::string_view(systems[static_cast<std::size_t>(system) - 1])
                                             : std::string_view();
}

text::Refusal SystemNotDefined(std::string_view system) {
    return text::Refusal{"No se ha definido el sistema " + std::string(system) + "."};
}

}  // namespace tavrelo::mechanics::rigid
