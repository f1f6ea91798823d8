#include "numeric/linear_systems.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "numeric/checked.h"
#include "numeric/compare.h"
#include "numeric/dependence.h"

namespace tavrelo::numeric {

namespace {

/// Stands for a pivot of 0, so that the factorisation can go on.
constexpr double kTinyPivot = 1e-20;

void RequireOrder(std::size_t expected, std::size_t found) {
    if (expected != found) {
        throw RuntimeFailure(FailureCode::SubscriptRange, "lengths of a linear system");
    }
}

/// One over the largest element of each row, that weighs the candidates for a pivot.
class RowScales {
  public:
    /// False when a row is all zeros.
    bool Measure(const SquareMatrix& a);
    void Move(std::size_t from, std::size_t to) { m_scales[to] = m_scales[from]; }
    /// The row, of equal ones the last, with the best candidate in `column` from row `first` down.
    std::size_t PivotRow(std::span<const double> column, std::size_t first) const;

  private:
    std::array<double, kLargestOrder> m_scales;
};

bool RowScales::Measure(const SquareMatrix& a) {
    const std::size_t n = a.Order();
    std::fill_n(m_scales.begin(), n, 0.0);
    for (std::size_t column = 0; column < n; ++column) {
        const std::span<const double> elements = a.Column(column);
        for (std::size_t row = 0; row < n; ++row) {
            m_scales[row] = std::max(m_scales[row], std::abs(elements[row]));
        }
    }
    const auto end = m_scales.begin() + static_cast<std::ptrdiff_t>(n);
    if (std::find(m_scales.begin(), end, 0.0) != end) {
        return false;
    }
    std::transform(m_scales.begin(), end, m_scales.begin(),
                   [](double largest) { return CheckedDivide(1.0, largest); });
    return true;
}

std::size_t RowScales::PivotRow(std::span<const double> column, std::size_t first) const {
    std::size_t pivot = first;
    double best = 0.0;
    for (std::size_t row = first; row < column.size(); ++row) {
        const double merit = m_scales[row] * std::abs(column[row]);
        if (merit >= best) {
            best = merit;
            pivot = row;
        }
    }
    return pivot;
}

/// Subtracts from each element of column j the products of the factors found so far, in their order. Going
/// down the columns, two of them at a time, spares most of the memory traffic.
void Reduce(SquareMatrix& a, std::size_t j) {
    const std::span<double> column = a.Column(j);
    std::size_t k = 0;
    for (; k + 1 < j; k += 2) {
        const double* first = std::as_const(a).Column(k).data();
        const double* second = std::as_const(a).Column(k + 1).data();
        const double x = column[k];
        const double y = column[k + 1] -= first[k + 1] * x;
        for (std::size_t i = k + 2; i < column.size(); ++i) {
            column[i] = column[i] - first[i] * x - second[i] * y;
        }
    }
    if (k < j) {
        const std::span<const double> last = std::as_const(a).Column(k);
        const double x = column[k];
        for (std::size_t i = k + 1; i < column.size(); ++i) {
            column[i] -= last[i] * x;
        }
    }
}

void SwapRows(SquareMatrix& a, std::size_t first, std::size_t second) {
    for (std::size_t column = 0; column < a.Order(); ++column) {
        std::swap(a(first, column), a(second, column));
    }
}

/// Divides what stands under the pivot by it and returns the pivot.
double ScaleBelowPivot(std::span<double> column, std::size_t j) {
    if (column[j] == 0.0) {
        column[j] = kTinyPivot;
    }
    const double inverse = 1.0 / column[j];
    for (std::size_t i = j + 1; i < column.size(); ++i) {
        column[i] *= inverse;
    }
    return column[j];
}

/// Takes the exchanges and the products of the lower factors to the right side.
void SubstituteForward(const SquareMatrix& factors, std::span<double> b, const Permutation& permutation) {
    for (std::size_t i = 0; i < b.size(); ++i) {
        std::swap(b[i], b[permutation[i]]);
    }
    for (std::size_t j = 0; j < b.size(); ++j) {
        if (b[j] == 0.0) {
            continue;
        }
        const std::span<const double> column = factors.Column(j);
        for (std::size_t i = j + 1; i < b.size(); ++i) {
            b[i] -= column[i] * b[j];
        }
    }
}

void SubstituteBackward(const SquareMatrix& factors, std::span<double> b) {
    for (std::size_t i = b.size(); i-- > 0;) {
        double rest = b[i];
        for (std::size_t j = i + 1; j < b.size(); ++j) {
            rest -= factors(i, j) * b[j];
        }
        b[i] = CheckedDivide(rest, factors(i, i));
    }
}

/// LUBack that throws what goes wrong.
void Substitute(const SquareMatrix& factors, std::span<double> b, const Permutation& permutation) {
    SubstituteForward(factors, b, permutation);
    SubstituteBackward(factors, b);
}

}  // namespace

SquareMatrix::SquareMatrix(std::size_t order, std::span<const double> rows) : SquareMatrix(order) {
    RequireOrder(order * order, rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        (*this)(i / order, i % order) = rows[i];
    }
}

std::string_view TextOf(LinearOutcome outcome) {
    switch (outcome) {
        case LinearOutcome::Done:
            return "";
        case LinearOutcome::NotFactored:
            return "Falló la rutina LUDec.";
        case LinearOutcome::NotSubstituted:
            return "Falló la rutina LUBack.";
        case LinearOutcome::DeterminantIsZero:
            return "El determinante del sistema es cero.";
        case LinearOutcome::SystemNotSolved:
            return "No pude resolver el sistema.";
    }
    return "";
}

LinearOutcome LUDec(SquareMatrix& a, Permutation& permutation, double& determinant) {
    const std::size_t n = a.Order();
    if (n > kLargestOrder) {
        throw RuntimeFailure(FailureCode::SubscriptRange, "order of a matrix");
    }
    RowScales scales;
    if (!scales.Measure(a)) {
        return LinearOutcome::NotFactored;
    }
    permutation.resize(n);
    double product = 1.0;
    for (std::size_t j = 0; j < n; ++j) {
        Reduce(a, j);
        permutation[j] = scales.PivotRow(a.Column(j), j);
        if (permutation[j] != j) {
            SwapRows(a, j, permutation[j]);
            scales.Move(j, permutation[j]);
            product = -product;
        }
        product *= ScaleBelowPivot(a.Column(j), j);
    }
    // An overflow anywhere in the factors reaches the diagonal of its row or column, and so the product.
    if (!std::isfinite(product)) {
        throw RuntimeFailure(FailureCode::Overflow, "determinant");
    }
    determinant = product;
    return LinearOutcome::Done;
}

LinearOutcome LUBack(const SquareMatrix& factors, std::span<double> b, const Permutation& permutation) {
    RequireOrder(factors.Order(), b.size());
    RequireOrder(factors.Order(), permutation.size());
    try {
        Substitute(factors, b, permutation);
        return LinearOutcome::Done;
    } catch (const RuntimeFailure&) {
        return LinearOutcome::NotSubstituted;
    }
}

std::vector<double> LargestOfRows(const SquareMatrix& a) {
    std::vector<double> largest(a.Order());
    for (std::size_t column = 0; column < a.Order(); ++column) {
        const std::span<const double> elements = a.Column(column);
        for (std::size_t row = 0; row < a.Order(); ++row)
            largest[row] = std::max(largest[row], std::abs(elements[row]));
    }
    return largest;
}

bool HasRoundingPivot(const SquareMatrix& factors, const Permutation& permutation,
                      std::vector<double> largest) {
    for (std::size_t j = 0; j < factors.Order(); ++j) {
        std::swap(largest[j], largest[permutation[j]]);
        if (std::abs(factors(j, j)) < kRoundingPivot * largest[j])
            return true;
    }
    return false;
}

namespace {

/// Factors and substitutes; `refuses` may find fault with the factors.
template <typename Refuses>
LinearOutcome SolveUnless(Refuses refuses, SquareMatrix& a, std::span<double> b) {
    RequireOrder(a.Order(), b.size());
    Permutation permutation;
    double determinant = 0.0;
    try {
        LUDec(a, permutation, determinant);
        if (NearEq(determinant, 0.0, kZeroDeterminant) || refuses(permutation)) {
            return LinearOutcome::DeterminantIsZero;
        }
        Substitute(a, b, permutation);
        return LinearOutcome::Done;
    } catch (const RuntimeFailure&) {
        return LinearOutcome::SystemNotSolved;
    }
}

}  // namespace

LinearOutcome SolveLinear(SquareMatrix& a, std::span<double> b) {
    return SolveUnless([](const Permutation&) { return false; }, a, b);
}

LinearOutcome SolveIndependent(SquareMatrix& a, std::span<double> b) {
    const bool are_dependent = AreDependent(a);
    const std::vector<double> largest = LargestOfRows(a);
    return SolveUnless(
        [&](const Permutation& permutation) {
            return are_dependent || HasRoundingPivot(a, permutation, largest);
        },
        a, b);
}

double Determinant(SquareMatrix a) {
    Permutation permutation;
    double determinant = 0.0;
    LUDec(a, permutation, determinant);
    return determinant;
}

}  // namespace tavrelo::numeric
