#pragma once

#include <string_view>

namespace tavrelo::tools::calculator {

/// A calculator routine: what it does and which arguments it expects, both in picture markup.
struct Routine {
    int number;
    std::string_view title;
    std::string_view prompt;
};

/// Null when there is no routine of that number.
const Routine* FindRoutine(int number);

}  // namespace tavrelo::tools::calculator
