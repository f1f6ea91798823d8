#pragma once

#include <initializer_list>

namespace tavrelo::mechanics::motion {

/// Whether the terms of an equation, written with all of them on one side, cancel: to a thousandth, absolute
/// and of the largest term, and never asked for more than rounding allows. Found values are put back into
/// their equations with this before they are reported.
bool TermsCancel(std::initializer_list<double> terms);

}  // namespace tavrelo::mechanics::motion
