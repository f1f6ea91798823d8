#pragma once

#include "mechanics/motion/parameter_case.h"

/// The unknown acceleration, by data set; the speed at the base is known.
namespace tavrelo::mechanics::motion::acceleration {

Finding OfTimePosition(const ParameterCase& each);
Finding OfTimeSpeed(const ParameterCase& each);
Finding OfPositionSpeed(const ParameterCase& each);
Finding OfTimesDx(const ParameterCase& each);
Finding OfPositionsDt(const ParameterCase& each);
Finding OfPositionsDv(const ParameterCase& each);
Finding OfTimesXFactor(const ParameterCase& each);
Finding OfTimesVFactor(const ParameterCase& each);
Finding OfPositionsTFactor(const ParameterCase& each);
Finding OfPositionsVFactor(const ParameterCase& each);
Finding OfSpeedsTFactor(const ParameterCase& each);
Finding OfSpeedsXFactor(const ParameterCase& each);
Finding RefuseSet(const ParameterCase& each);

}  // namespace tavrelo::mechanics::motion::acceleration
