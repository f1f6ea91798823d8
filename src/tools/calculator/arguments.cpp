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

bool CountIsRight(const ArgumentCheck& check, const Arguments& arguments) {
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

bool NumbersAreRight(const ArgumentCheck& check, const Arguments& arguments) {
    switch (check.number_test) {
        case NumberTest::None:
            return true;
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

std::optional<text::Refusal> CheckArgs(const ArgumentCheck& check, const Arguments& arguments) {
    if (!CountIsRight(check, arguments))
        return text::Refusal{std::string(check.count_message)};
    if (!NumbersAreRight(check, arguments))
        return text::Refusal{std::string(check.number_message)};
    return std::nullopt;
}

text::Refusal WrongFormula(const std::string& typed, const std::string& description) {
    return text::Refusal{std::string(kCorrect) + typed + "\n" + description};
}

}  // namespace tavrelo::tools::calculator
