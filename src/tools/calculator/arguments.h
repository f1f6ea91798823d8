#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "frame/shared_expression.h"
#include "text/refusal.h"
#include "text/value.h"
#include "window/controls.h"

namespace tavrelo::tools::calculator {

/// How the cells of a selection are read.
enum class CellReading {
    Formulas,  // each cell is a formula and is worth its value; "x" stays, for it marks an unknown
    Texts,     // as typed: vectors have a notation of their own
};

/// The arguments of a routine: the selected block of the table as numbers and texts.
class Arguments {
  public:
    Arguments() = default;
    Arguments(int rows, int cols) : m_rows(rows), m_cols(cols) {}

    void Add(text::Value cell);

    int Rows() const { return m_rows; }
    int Cols() const { return m_cols; }
    /// Cells that are not empty, and how many of them are numbers.
    int Count() const { return static_cast<int>(m_list.size()); }
    int Numbers() const { return m_numbers; }

    // By position among the cells that are not empty, row by row, from 0. Past the last one they fail with
    // SubscriptRange.
    const text::Value& At(int index) const;
    /// Fails with TypeMismatch on a cell that is no number.
    double Number(int index) const;
    std::string Text(int index) const { return At(index).Text(); }
    /// All of them, which must be numbers.
    std::vector<double> AllNumbers() const;

  private:
    int m_rows = 0;
    int m_cols = 0;
    int m_numbers = 0;
    std::vector<text::Value> m_list;
};

/// Reads the selected block. The first cell, row by row, whose formula is wrong or cannot be evaluated is
/// refused; the table itself is never changed.
std::variant<text::Refusal, Arguments> GetCells(const window::Grid& grid, CellReading reading,
                                                frame::SharedExpression& expression);

enum class CountTest { None, Square, SquareAndColumn, Within, Even, MultipleOfThree };
enum class NumberTest { None, All, WholeBlock, Within };

struct CountRange {
    int least = 0;
    int most = 0;
    constexpr bool Holds(int count) const { return count >= least && count <= most; }
};

/// What a routine asks of the count and of the kind of its arguments before it looks at them.
struct ArgumentCheck {
    CountTest count_test = CountTest::None;
    CountRange count = {};
    std::string_view count_message = {};
    NumberTest number_test = NumberTest::None;
    CountRange numbers = {};
    std::string_view number_message = "Algún argumento no es numérico.";
};
std::optional<text::Refusal> CheckArgs(const ArgumentCheck& check, const Arguments& arguments);

/// What is said of a formula that the parser refused.
text::Refusal WrongFormula(const std::string& typed, const std::string& description);

}  // namespace tavrelo::tools::calculator
