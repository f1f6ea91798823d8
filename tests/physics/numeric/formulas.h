#pragma once

#include <functional>
#include <memory>
#include <string>

#include "problem.h"

namespace tavrelo::physics {

/// A formula as a student types it, with its derivatives and its integral by the rules of calculus.
struct Formula {
    std::string text;
    std::function<double(double)> value;
    std::function<double(double)> first;     // derivative
    std::function<double(double)> second;    // derivative
    std::function<double(double)> integral;  // any one of them
};

/// One to four terms: powers, sines and cosines, exponentials, roots and fractions, of moderate size and
/// without a pole for x from 0 to 5.
Formula AnyFormula(Chance& chance);

/// The formula of a text by the program's own reader; x is its variable. Fails with std::runtime_error on a
/// text that is refused.
class ReadFormula {
  public:
    explicit ReadFormula(const std::string& text);
    ~ReadFormula();
    double At(double x);

  private:
    struct Reader;
    std::unique_ptr<Reader> m_reader;
};

}  // namespace tavrelo::physics
