#pragma once

#include <string_view>
#include <variant>

#include "mechanics/rigid/structure.h"

namespace tavrelo::mechanics::rigid {

/// What the text of a line asks for: to draw it, to take it away, or nothing.
struct LineCommand {
    enum class Action { None, Draw, Cancel } action = Action::None;
    LineRow line;
};

/// Reads a system's number and a chain of its points: "2cde", "2cdec" for a closed figure, "2cd-" to cancel.
/// The text is taken as it stands, blanks included.
std::variant<text::Refusal, LineCommand> ReadLine(std::string_view text, const SystemPoints& systems,
                                                  const PointTable& points);

}  // namespace tavrelo::mechanics::rigid
