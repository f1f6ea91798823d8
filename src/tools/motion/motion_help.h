#pragma once

#include <optional>
#include <string_view>

namespace tavrelo::tools::motion {

/// Where a help topic stands.
struct TopicPlace {
    std::string_view file;
    std::string_view tag;
};

/// The topic of a help button (`cmdHelpTable`, 0 to 2) of the motion tools (4 or 5): on the configuration, on
/// the row of procedures in use (from 1), or on the entry of the list in use (from 0, -1 for none). Nothing
/// where there is none.
std::optional<TopicPlace> HelpOfButton(int button, int tool, int row, int entry);

}  // namespace tavrelo::tools::motion
