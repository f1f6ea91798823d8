#pragma once

#include <span>
#include <string_view>

namespace tavrelo::frame {

/// One row of the list of topics of a tool: its title and where its text stands.
struct HelpTopic {
    std::string_view title;
    std::string_view file;
    std::string_view tag;
};

/// The topics of a tool, by its index + 1 (1 to 6); empty for any other.
std::span<const HelpTopic> HelpTopics(int help_tool);

}  // namespace tavrelo::frame
