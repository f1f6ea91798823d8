#pragma once

#include <vector>

#include "numeric/function_ref.h"

namespace tavrelo::mechanics::kinematics {

/// First step of Ridders' derivative at the time t: small near t = 0, so that a root or a logarithm is not
/// sampled at negative times; 0, which the derivative refuses, at t = 0.
double DerivativeStep(double t);
/// The derivative of f at the time t by Ridders' method. Two of its estimates may agree by chance although
/// both are wrong, so it is asked from a tenth of the first step too; where the answers differ, that one is
/// kept.
double SlopeAt(numeric::RealFunction f, double t, double first_step);
/// Step of the second derivative at the time t; 0 at t = 0.
double SecondDerivativeStep(double t);

/// Fails with OutOfDomain when two times are equal.
void RequireSpan(double t0, double t1);
/// `steps` + 1 times from t0 to t1.
std::vector<double> EqualSteps(double t0, double t1, int steps);

/// The derivative of a column sampled at equal steps, by the five-point formulas of fourth order: central
/// inside, one-sided at the ends. A column of fewer than five values fails with SubscriptRange.
std::vector<double> SlopeOf(const std::vector<double>& column, double step);

}  // namespace tavrelo::mechanics::kinematics
