#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "window/host.h"

// What the tools ask the user in boxes.

namespace tavrelo::window {

/// Which of two solutions is meant: 0 for Yes, 1 for No.
std::size_t AskWhichSolution(Boxes& boxes, std::string_view question, std::string_view title = kProgramTitle);

/// True when the user answered Yes, or OK.
bool Confirm(Boxes& boxes, std::string_view question, Buttons buttons = Buttons::YesNo);

/// A number that the user types into an input box.
struct NumberQuestion {
    std::string_view prompt;
    std::string_view not_a_number;  // said of any other text
};

/// The number of the answer. Nothing when the box was cancelled or left empty, or after an answer that is no
/// number, which is refused in a box. Fails with Overflow past the range of a double.
std::optional<double> AskNumber(Boxes& boxes, const NumberQuestion& question);

}  // namespace tavrelo::window
