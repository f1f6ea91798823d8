#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>

#include "problem.h"

namespace tavrelo::physics {

/// Plays problems of a kind, the first with `seed`, each further one with the next number, so that any
/// of them can be played alone; `problems` or as many as the kind has in a check. Writes a line of the table,
/// the refusals by message and the first faults in full. True when no answer was wrong and no problem was
/// refused that may not be.
bool PlayKind(const ProblemKind& kind, std::uint64_t seed, std::optional<int> problems, std::ostream& out);

/// The heading of the table.
void WriteHeading(std::ostream& out);

}  // namespace tavrelo::physics
