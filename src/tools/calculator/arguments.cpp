#include "tools/calculator/arguments.h"

#include <algorithm>
#include <iterator>

#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::tools::calculator {
namespace {

using text::Value;

constexpr std::string_view kCorrect = "Corrige la expresión ";
constexpr std::string_view kUnknown = "x";

enum class CountTest { None, Square, SquareAndColumn, Within, Even, MultipleOfThree };
enum class NumberTest { All, WholeBlock, Within };

struct Range {
    int least = 0;
    int most = 0;
    bool Holds(int count) const { return count >= least && count <= most; }
};

constexpr std::string_view kNotNumeric = "Algún argumento no es numérico.";
constexpr std::string_view kThree = "Deben ser 3 argumentos.";
constexpr std::string_view kTwo = "Deben ser 2 argumentos.";
constexpr std::string_view kSix = "Deben ser 6 argumentos.";
constexpr std::string_view kEven = "Debe ser un número par de argumentos.";

struct Check {
    int routine;
    CountTest count_test;
    Range count;
    std::string_view count_message;
    NumberTest number_test = NumberTest::All;
    Range numbers = {};
    std::string_view number_message = kNotNumeric;
};

// clang-format off
constexpr Check kChecks[] = {
    {1, CountTest::Square, {}, "La región a seleccionar debe ser n x n.", NumberTest::WholeBlock},
    {2, CountTest::SquareAndColumn, {}, "La región a seleccionar debe ser n x n+1.", NumberTest::WholeBlock},
    {5, CountTest::Within, {3, 3}, kThree},
    {6, CountTest::Within, {5, 5}, "Deben ser 5 argumentos."},
    {7, CountTest::Within, {4, 4}, "Deben ser 4 argumentos."},
    {8, CountTest::Within, {3, 3}, kThree},
    {9, CountTest::Within, {2, 2}, kTwo},
    {10, CountTest::Within, {6, 6}, kSix, NumberTest::Within, {3, 3},
     "Tres de los argumentos deben ser numéricos y los restantes iguales a \"x\"."},
    {11, CountTest::Within, {6, 6}, kSix},
    {12, CountTest::Even, {}, kEven},
    {13, CountTest::None, {}, {}},
    {14, CountTest::Even, {}, kEven},
    {15, CountTest::MultipleOfThree, {}, "El número de argumentos debe ser un múltiplo de 3"},
    {16, CountTest::Within, {3, 3}, kThree},
    {17, CountTest::None, {}, {}},
    {19, CountTest::Within, {2, 4}, "Número de argumentos incorrecto (deben ser 2, 3 ó 4)."},
    {20, CountTest::Within, {2, 2}, kTwo},
    {22, CountTest::Within, {2, 3}, "Número de argumentos incorrecto (deben ser 2 ó 3).",
     NumberTest::Within, {2, 3}, "Los argumentos deben ser todos numéricos"},
    {23, CountTest::Even, {}, kEven},
    {24, CountTest::Even, {}, kEven},
    {25, CountTest::Even, {}, kEven},
    {26, CountTest::None, {}, {}},
};
// clang-format on

bool CountIsRight(const Check& check, const Arguments& arguments) {
    switch (check.count_test) {
        case CountTest::None:
            return true;
        case CountTest::Square:
            return arguments.Rows() == arguments.Cols();
        case CountTest::SquareAndColumn:
            return arguments.Rows() == arguments.Cols() - 1;
        case CountTest::Within:
            return check.count.Holds(arguments.Count());
        case CountTest::Even:
            return arguments.Count() % 2 == 0;
        case CountTest::MultipleOfThree:
            return arguments.Count() % 3 == 0;
    }
    return true;
}

bool NumbersAreRight(const Check& check, const Arguments& arguments) {
    switch (check.number_test) {
        case NumberTest::All:
            return arguments.Numbers() == arguments.Count();
        case NumberTest::WholeBlock:
            return arguments.Numbers() == arguments.Rows() * arguments.Cols();
        case NumberTest::Within:
            return check.numbers.Holds(arguments.Numbers());
    }
    return true;
}

/// The value of a cell. A literal without a point comes back from the parser as a text and is a number here.
std::variant<text::Refusal, Value> Evaluate(const std::string& cell, frame::SharedExpression& shared) {
    try {
        expr::CExpression& expression = shared.Get();
        expression.RaiseErrors = true;
        expression.SetExpression(cell);
        if (expression.ErrorCode() == 0) {
            const Value value = expression.Value();
            return value.HoldsText() ? Value(text::LiteralToNumber(value.Text())) : value;
        }
        const std::string description = expression.ErrorDescription();
        shared.Renew();
        return WrongFormula(cell, description);
    } catch (const numeric::RuntimeFailure&) {
        shared.Renew();
        return text::Refusal{std::string(kCorrect) + cell};
    }
}

}  // namespace

void Arguments::Add(Value cell) {
    if (cell.Text().empty())
        return;
    if (text::IsNum(cell))
        ++m_numbers;
    m_list.push_back(std::move(cell));
}

const Value& Arguments::At(int index) const {
    if (index < 0 || index >= Count())
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "argument");
    return m_list[static_cast<std::size_t>(index)];
}

double Arguments::Number(int index) const { return At(index).Number(); }

std::vector<double> Arguments::AllNumbers() const {
    std::vector<double> numbers;
    std::ranges::transform(m_list, std::back_inserter(numbers), &Value::Number);
    return numbers;
}

std::variant<text::Refusal, Arguments> GetCells(const window::Grid& grid, CellReading reading,
                                                frame::SharedExpression& expression) {
    const window::CellBlock& block = grid.Selection();
    Arguments arguments(block.Rows(), block.Cols());
    for (int row = block.first_row; row <= block.last_row; ++row) {
        for (int col = block.first_col; col <= block.last_col; ++col) {
            const std::string& cell = grid.Cell(row, col);
            const bool is_text = cell.empty() || text::EqualIgnoringCase(cell, kUnknown);
            if (reading == CellReading::Texts || is_text) {
                arguments.Add(cell);
                continue;
            }
            auto outcome = Evaluate(cell, expression);
            if (auto* refusal = std::get_if<text::Refusal>(&outcome))
                return std::move(*refusal);
            arguments.Add(std::get<Value>(std::move(outcome)));
        }
    }
    return arguments;
}

std::optional<text::Refusal> CheckArgs(int routine, const Arguments& arguments) {
    const auto check = std::ranges::find(kChecks, routine, &Check::routine);
    if (check == std::end(kChecks))
        return std::nullopt;
    if (!CountIsRight(*check, arguments))
        return text::Refusal{std::string(check->count_message)};
    if (!NumbersAreRight(*check, arguments))
        return text::Refusal{std::string(check->number_message)};
    return std::nullopt;
}

text::Refusal WrongFormula(const std::string& typed, const std::string& description) {
    return text::Refusal{std::string(kCorrect) + typed + "\n" + description};
}

}  // namespace tavrelo::tools::calculator
