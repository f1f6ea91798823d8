#include "numeric/real_roots.h"

#include <algorithm>
#include <cmath>

#include "numeric/checked.h"
#include "numeric/polynomials.h"

namespace tavrelo::numeric {

namespace {

/// Whether the roots of a quadratic with b and c other than 0 fall together.
bool IsSquare(double a, double b, double c) {
    const double product = Finite(4.0 * a * c);
    return CleanDifference(Finite(b * b), product) == 0.0;
}

}  // namespace

double CleanDifference(double a, double b) {
    const double difference = CheckedSubtract(a, b);
    return std::abs(difference) <= kRoundingOfTerms * std::max(std::abs(a), std::abs(b)) ? 0.0 : difference;
}

RealRootList RealRoots(double a, double b, double c) {
    RealRootList list;
    if (a == 0.0) {
        if (b != 0.0) {
            list.Add(CheckedDivide(0.0 - c, b));
        }
        return list;
    }
    if (IsSquare(a, b, c)) {
        list.Add(CheckedDivide(0.0 - b, 2.0 * a));
        return list;
    }
    const QuadraticRoots roots = QuadRoots(a, b, c);
    if (roots.real) {
        list.Add(roots.first);
        list.Add(roots.second);
    }
    return list;
}

}  // namespace tavrelo::numeric
