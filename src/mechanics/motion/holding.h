#pragma once

#include <initializer_list>
#include <span>

namespace tavrelo::mechanics::motion {

/// Whether the terms of an equation, written with all of them on one side, cancel: to a thousandth, absolute
/// and of the largest term, and never asked for more than rounding allows. Found values are put back into
/// their equations with this before they are reported. A sum past the range of a double does not cancel.
bool TermsCancel(std::span<const double> terms);
inline bool TermsCancel(std::initializer_list<double> terms) {
    return TermsCancel(std::span(terms.begin(), terms.size()));
}

}  // namespace tavrelo::mechanics::motion
