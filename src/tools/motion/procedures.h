#pragma once

#include <span>
#include <string_view>

#include "frame/points_tool.h"
#include "mechanics/motion/procedures.h"

namespace tavrelo::tools::motion {

using mechanics::motion::Procedure;

struct ProcedureEntry {
    Procedure procedure;
    std::string_view title;                   // of its row or its place in the list
    std::span<const std::string_view> needs;  // what it needs, in picture markup
    std::string_view help_tag;
};

// Rows that keys choose too.
inline constexpr int kPlantRow = 1;
inline constexpr int kSubstituteRow = 2;

/// Rows count from 1, entries of the list from 0; fails with SubscriptRange on any other.
const ProcedureEntry& ProcedureOfRow(int row);
const ProcedureEntry& ProcedureOfEntry(int entry);

const frame::PointsTexts& MotionTexts();

/// The topic of a help button: on the configuration, on the row in use (from 1), or on the entry in use (from
/// 0, -1 for none). Nothing where there is none.
std::optional<frame::TopicPlace> MotionTopic(frame::PointsHelp button, int row, int entry);

}  // namespace tavrelo::tools::motion
