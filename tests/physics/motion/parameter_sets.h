#pragma once

#include <span>

#include "motion/data_sets.h"

namespace tavrelo::physics {

/// A set of data for equations with a parameter, and when it leaves the parameter open or the procedure says
/// that it does not treat the case.
struct ParameterSet {
    DataForms forms;
    bool (*leaves_speed_open)(const KnownInterval&);
    bool (*leaves_acceleration_open)(const KnownInterval&);
};

std::span<const ParameterSet> ParameterSets();

}  // namespace tavrelo::physics
