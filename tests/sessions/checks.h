#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "session.h"

namespace tavrelo::sessions {

/// What stands in every control, as the lines that a transcript shows, by the control's name.
using Contents = std::map<std::string, std::vector<std::string>>;
Contents ContentsOf(transcript::Session& session);

/// What no text of the program may hold: a number that is none. The line, or nothing.
std::optional<std::string> FindNoNumber(const Contents& contents);
std::optional<std::string> FindNoNumber(const std::vector<std::string>& lines);

/// Whether an act showed one refusal and nothing else: a box with OK alone that no other text goes with.
bool IsRefusal(const std::vector<std::string>& shown);
/// The first control whose contents a refusal changed though it keeps a problem: a table, a list, a report, a
/// diagram or the log. Nothing when all are as before.
std::optional<std::string> ChangedProblem(const Contents& before, const Contents& after);

/// The first difference between the contents of two windows.
std::optional<std::string> FirstDifference(const Contents& model, const Contents& window);

}  // namespace tavrelo::sessions
