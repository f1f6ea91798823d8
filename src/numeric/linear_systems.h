#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace tavrelo::numeric {

/// A square matrix, all zeros at first. Rows and columns count from 0.
class SquareMatrix {
  public:
    explicit SquareMatrix(std::size_t order) : m_order(order), m_elements(order * order) {}
    /// From its elements row after row; fails with SubscriptRange unless there are `order` squared.
    SquareMatrix(std::size_t order, std::span<const double> rows);

    std::size_t Order() const { return m_order; }
    double& operator()(std::size_t row, std::size_t column) { return m_elements[column * m_order + row]; }
    double operator()(std::size_t row, std::size_t column) const {
        return m_elements[column * m_order + row];
    }
    /// The elements of one column, from the first row down.
    std::span<double> Column(std::size_t column) {
        return std::span(m_elements).subspan(column * m_order, m_order);
    }
    std::span<const double> Column(std::size_t column) const {
        return std::span(m_elements).subspan(column * m_order, m_order);
    }

  private:
    std::size_t m_order;
    std::vector<double> m_elements;  // column after column, as the factorisation walks them
};

/// How a step of a linear system ended.
enum class LinearOutcome {
    Done,
    NotFactored,        // LUDec met a row of zeros
    NotSubstituted,     // LUBack met an overflow or a division by zero
    DeterminantIsZero,  // |determinant| is at most kZeroDeterminant
    SystemNotSolved,    // an overflow on the way
};
/// The message for the user; empty for Done.
std::string_view TextOf(LinearOutcome outcome);

/// A determinant of at most this size counts as zero, whatever the scale of the coefficients.
inline constexpr double kZeroDeterminant = 1e-8;
/// A pivot below this part of the largest element of its row as given is only what rounding left of a zero.
inline constexpr double kRoundingPivot = 1e-13;
/// A larger matrix fails with SubscriptRange.
inline constexpr std::size_t kLargestOrder = 500;

/// The row with which each row was exchanged, from 0.
using Permutation = std::vector<std::size_t>;

/// Factors `a` in place: Crout's method, partial pivoting with rows scaled by their largest element, of equal
/// candidates the last. A zero pivot becomes 1e-20, so a singular matrix shows in `determinant` alone. After
/// NotFactored `determinant` is as it was and `a` untouched. Fails with Overflow, or with SubscriptRange past
/// kLargestOrder.
LinearOutcome LUDec(SquareMatrix& a, Permutation& permutation, double& determinant);

/// Solves with the factors and exchanges of LUDec; `b` is the right side, then the solution. After
/// NotSubstituted `b` is partly overwritten. Never throws on numbers; fails with SubscriptRange when the
/// lengths disagree.
LinearOutcome LUBack(const SquareMatrix& factors, std::span<double> b, const Permutation& permutation);

/// Solves a x = b; `a` is spoiled, `b` becomes x. Done, DeterminantIsZero (a row of zeros too; `b`
/// untouched) or SystemNotSolved (`b` partly overwritten). Fails with SubscriptRange when the lengths
/// disagree.
LinearOutcome SolveLinear(SquareMatrix& a, std::span<double> b);

/// The largest element of each row, by its size.
std::vector<double> LargestOfRows(const SquareMatrix& a);
/// Whether the rows of a matrix depend on each other but for rounding: a pivot among the factors and
/// exchanges of LUDec is below kRoundingPivot of the largest element that its row had (`largest`, of the
/// matrix as given).
bool HasRoundingPivot(const SquareMatrix& factors, const Permutation& permutation,
                      std::vector<double> largest);

/// SolveLinear that takes for DeterminantIsZero also equations that depend on each other but for rounding.
LinearOutcome SolveIndependent(SquareMatrix& a, std::span<double> b);

/// The determinant by LUDec; 0 with a row of zeros, and a number of the size of rounding for other singular
/// matrices. Fails with Overflow.
double Determinant(SquareMatrix a);

}  // namespace tavrelo::numeric
