#pragma once

#include <string>
#include <variant>
#include <vector>

#include "mechanics/projectile/data_pair.h"
#include "mechanics/projectile/equation_line.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::projectile {

/// The values that a parameter of a launch may have: one, or two between which the user chooses. At each of
/// them the motion meets both data, at whatever time, before the launch too.
using ParameterValues = std::variant<text::Refusal, std::vector<double>>;

// Each takes a launch of its kind with a start. With D, X, Y the differences from the start and al the angle
// at the point, they solve x = v0x D, y = v0y D - 4.9 D^2, vy = v0y - 9.8 D. All fail with Overflow.

/// The speed v0 for a known angle. Positive ones only; an angle at the point stands for its tangent.
ParameterValues SpeedsFor(const Launch& launch, const PairData& data);
/// The angle for a known speed, above -180 to 180 degrees. The velocity at the point has the given direction,
/// not the opposite one, and a point is reached after the launch.
ParameterValues AnglesFor(const Launch& launch, const PairData& data);
/// The component v0x for a known v0y, all pairs but XSpeed, which leads to a quartic (quartic.h). `mover`
/// names the coordinates in refusals.
ParameterValues HorizontalSpeedsFor(int mover, const Launch& launch, const PairData& data, int decimals);
/// The component v0y for a known v0x.
ParameterValues VerticalSpeedsFor(int mover, const Launch& launch, const PairData& data, int decimals);

/// With neither speed nor angle known, the equations that a pair gives: for t, x and t, y the product and the
/// component, for the others one between tan q and the horizontal component.
std::variant<text::Refusal, std::vector<std::string>> RelationsFor(int mover, const Launch& launch,
                                                                   const PairData& data, int decimals);

/// The question whether to plant again with one of the found values, lines parted by "\n". `name` is the
/// plain name: "v0", "theta0", "v0x".
std::string SpeedQuestion(const std::string& name, const std::vector<double>& values);
std::string AngleQuestion(const std::vector<double>& values, int decimals);
std::string ComponentQuestion(const std::string& name, const std::vector<double>& values);

}  // namespace tavrelo::mechanics::projectile
