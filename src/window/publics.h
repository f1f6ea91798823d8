#pragma once

#include <cstdint>

#include "numeric/angles.h"
#include "text/number_text.h"

namespace tavrelo::window {

/// The tools, by the index that SelectTool is given.
enum class Tool : std::int16_t {
    Calculator = 0,
    Particle = 1,
    RigidBody = 2,
    Motion = 3,
    Projectile = 4,
    Kinematics = 5,
    Preferences = 6,
    Help = 7,
    Exit = 8,
};
inline constexpr int kToolCount = 6;  // those with panels of their own

/// What the parts of the program share while it runs; nothing of it outlives the run.
struct Publics {
    Tool CurrentTool = Tool::Calculator;
    std::int32_t HelpTool = 0;      // 0 until a tool was chosen, else index + 1
    std::int32_t ProcCategory = 0;  // group of the icon menu, or the way of the kinematics tool
    std::int32_t ProcNumber = 0;    // calculator routine
    bool ShowingWelcome = false;
    std::int16_t Decimals = text::kDefaultDecimals;
    double AngleFactor = numeric::kRadiansPerDegree;
    bool QuickKeys = true;
    bool InfixNotation = true;
    bool DegreesMode = true;
    bool GridCopyMode = false;
};

}  // namespace tavrelo::window
