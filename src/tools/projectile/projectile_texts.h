#pragma once

#include "frame/points_tool.h"

namespace tavrelo::tools::projectile {

const frame::PointsTexts& ProjectileTexts();

/// The topic of a help button: on the configuration, on the row in use (from 1), or on the entry in use (from
/// 0, -1 for none). Nothing where there is none.
std::optional<frame::TopicPlace> ProjectileTopic(frame::PointsHelp button, int row, int entry);

}  // namespace tavrelo::tools::projectile
