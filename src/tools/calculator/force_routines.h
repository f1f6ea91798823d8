#pragma once

#include "tools/calculator/routine_run.h"

namespace tavrelo::tools::calculator {

// Resultants of systems of forces: report, and diagram on `pic`. A last argument without a partner is the
// point at which the resultant is wanted too.

Outcome ParallelLine(RoutineRun& run);   // x1, F1, x2, F2, ...
Outcome ParallelSpace(RoutineRun& run);  // r1, F1z, r2, F2z, ...
/// r1, F1, r2, F2, ...; a number anywhere among them is the moment of a couple.
Outcome PlaneForces(RoutineRun& run);
/// The formula is the density of the load; the arguments are its limits.
Outcome DistributedLoad(RoutineRun& run);
/// The forces are handed to the particle tool as they were typed.
Outcome ParticleEquilibrium(RoutineRun& run);

}  // namespace tavrelo::tools::calculator
