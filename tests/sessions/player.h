#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "runner.h"

namespace tavrelo::sessions {

struct Plan {
    std::uint64_t seed = 1;
    int acts = 200;
    transcript::DriverMaker make_driver;  // of the program that is played
    transcript::DriverMaker make_peer;    // of one that does the same and must show the same; may be empty
};

/// What went wrong in a session, and the session as a transcript that leads there.
struct Fault {
    std::string reason;
    std::vector<std::string> transcript;
};

/// Plays one random session. After each act: nothing has left the guard, no text of the window holds a number
/// that is none, what is shown is what the problem holds, a refusal has left the problem as it was, the
/// buttons are as the state of the tool tells, and both programs show the same.
std::optional<Fault> PlaySession(const Plan& plan);

}  // namespace tavrelo::sessions
