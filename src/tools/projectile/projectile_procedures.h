#pragma once

#include <span>
#include <string_view>

#include "frame/points_tool.h"
#include "mechanics/projectile/procedures.h"

namespace tavrelo::tools::projectile {

/// A row of the panel of equations.
struct ProcedureRow {
    mechanics::projectile::Procedure procedure;
    std::string_view title;
    std::span<const std::string_view> needs;  // what it needs, in picture markup
    std::string_view help_tag;
};
/// An entry of the list.
struct SpecialEntry {
    mechanics::projectile::Special special;
    std::string_view title;
    std::span<const std::string_view> needs;
    std::string_view help_tag;
};

// Rows that keys choose too.
inline constexpr int kPlantRow = 1;
inline constexpr int kSubstituteRow = 2;

/// Rows count from 1, entries of the list from 0; fails with SubscriptRange on any other.
const ProcedureRow& ProcedureOfRow(int row);
const SpecialEntry& SpecialOfEntry(int entry);

const frame::PointsTexts& ProjectileTexts();

/// The topic of a help button: on the configuration, on the row in use (from 1), or on the entry in use (from
/// 0, -1 for none). Nothing where there is none.
std::optional<frame::TopicPlace> ProjectileTopic(frame::PointsHelp button, int row, int entry);

}  // namespace tavrelo::tools::projectile
