#pragma once

#include <string>
#include <string_view>

#include "chance.h"

namespace tavrelo::sessions {

/// A text for a control, by its name: mostly what a student would type there, sometimes half of it, sometimes
/// something that belongs elsewhere or nowhere.
std::string TextFor(std::string_view control, Chance& chance);

/// An answer to an input box.
std::string AnswerText(Chance& chance);

}  // namespace tavrelo::sessions
