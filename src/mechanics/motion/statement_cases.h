#pragma once

#include "mechanics/motion/parameter_case.h"

/// The one equation that a data set states for the unknown speed at the base and acceleration.
namespace tavrelo::mechanics::motion::statement {

Statement OfTimePosition(const ParameterCase& each);
Statement OfTimeSpeed(const ParameterCase& each);
Statement OfPositionSpeed(const ParameterCase& each);
Statement OfTimesDx(const ParameterCase& each);
Statement OfPositionsDt(const ParameterCase& each);
Statement OfPositionsDv(const ParameterCase& each);
Statement OfTimesDv(const ParameterCase& each);
Statement OfDtDv(const ParameterCase& each);
Statement OfTimesXFactor(const ParameterCase& each);
Statement OfTimesVFactor(const ParameterCase& each);
Statement OfPositionsTFactor(const ParameterCase& each);
Statement OfPositionsVFactor(const ParameterCase& each);
Statement OfSpeedsTFactor(const ParameterCase& each);
Statement OfSpeedsXFactor(const ParameterCase& each);

}  // namespace tavrelo::mechanics::motion::statement
