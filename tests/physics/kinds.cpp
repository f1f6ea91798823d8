#include "kinds.h"

#include "numeric/numeric_kinds.h"

namespace tavrelo::physics {
namespace {

constexpr ProblemKind kKinds[] = {
    {"numeric.systems", "systems of linear equations with a known solution", 3000, PlayRegularSystem},
};

}  // namespace

std::span<const ProblemKind> AllKinds() { return kKinds; }

}  // namespace tavrelo::physics
