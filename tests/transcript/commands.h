#pragma once

#include <string_view>

#include "session.h"

namespace tavrelo::transcript {

/// Carries out one command and leaves what it shows in the session, boxes in the order in which they opened.
/// Fails with ScriptError on an unknown verb, control, property or key, on malformed arguments and on a verb
/// that does not fit the kind of control.
void Perform(Session& session, std::string_view command);

}  // namespace tavrelo::transcript
