#include "projectile/spoken_numbers.h"

#include <cstdlib>
#include <sstream>

#include "text/utf8.h"

namespace tavrelo::physics {
namespace {

constexpr const char* kMinus = ";-";

/// A word as a number; nothing when it is none.
const double* NumberOf(const std::string& word, double& number) {
    char* end = nullptr;
    number = std::strtod(word.c_str(), &end);
    return !word.empty() && *end == '\0' ? &number : nullptr;
}

}  // namespace

std::vector<double> NumbersIn(const std::string& line) {
    std::string plain = text::ReplaceAll(text::ReplaceAll(line, ";- ", "-"), kMinus, "-");
    for (char& c : plain)
        if (c == '(' || c == ')' || c == ',')
            c = ' ';
    plain = text::ReplaceAll(plain, "°", " ");
    std::vector<double> numbers;
    std::istringstream words(plain);
    double number = 0;
    for (std::string word; words >> word;)
        if (NumberOf(word, number))
            numbers.push_back(number);
    return numbers;
}

SpokenPolynomial ReadPolynomial(const std::string& line, const std::string& variable) {
    SpokenPolynomial polynomial;
    std::istringstream words(line.substr(line.find(" = ") + 3));
    double sign = 1, coefficient = 1;
    bool has_coefficient = false;
    const auto end_term = [&](double& place) {
        place += sign * coefficient;
        sign = coefficient = 1;
        has_coefficient = false;
    };
    const auto end_constant = [&] {
        if (has_coefficient)
            end_term(polynomial.constant);
    };
    for (std::string word; words >> word;) {
        double number = 0;
        if (word == variable + "¡2") {
            end_term(polynomial.square);
        } else if (word == variable) {
            end_term(polynomial.linear);
        } else if (word == "+" || word == kMinus) {
            end_constant();
            sign = word == "+" ? 1 : -1;
        } else if (NumberOf(text::ReplaceAll(word, kMinus, "-"), number)) {
            coefficient = number;
            has_coefficient = true;
        }
    }
    end_constant();
    return polynomial;
}

}  // namespace tavrelo::physics
