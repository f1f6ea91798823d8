#pragma once

#include <string>

#include "chance.h"
#include "driver.h"

namespace tavrelo::sessions {

/// The next thing that a random student does, as a command of the transcript language: with a control within
/// reach, or with the toolbar, the routine menu, the clock or the clipboard. It never leaves the program.
std::string RandomAct(transcript::Driver& driver, Chance& chance);

}  // namespace tavrelo::sessions
