#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "window/control.h"

namespace tavrelo::window {

/// One row of the window's inventory: a control with its panel, place, caption and start state. Arrays of
/// controls are rows named "cmdParts(0)". The order of the rows is the reading and tab order.
struct ControlRow {
    std::string_view name;
    ControlKind kind;
    std::string_view parent;  // empty for a window
    Rect bounds;
    std::string_view caption = {};
    int flags = 0;
    int page = Control::kAllPages;
};

// Start states, joined in ControlRow::flags.
inline constexpr int kHidden = 1;
inline constexpr int kDisabled = 2;
inline constexpr int kLocked = 4;
inline constexpr int kTwips = 8;      // mouse events in twips
inline constexpr int kUpward = 16;    // mouse events with y growing upward
inline constexpr int kMultiple = 32;  // list with several rows chosen
inline constexpr int kFilling = 64;   // fills the page of its tab strip, whatever size that has

// What a control is to the user, joined with the start states; see Control::Has.
inline constexpr int kBoard = 128;   // a drawing that a student takes along
inline constexpr int kAnswer = 256;  // a report that tells what an action came to: said aloud when it appears
inline constexpr int kCancel = 512;  // the button that Escape presses anywhere on its panel
inline constexpr int kRaised = 1024;  // lies over the panels beside it, though it comes before them

std::span<const ControlRow> ControlTable();

/// The arrangements of the panels whose place depends on the tool in use.
enum class Arrangement {
    Calculator,
    CalculatorWithClock,  // the calculator while the direction clock shows
    Particle,
    RigidBody,
    Motion,
    Projectile,
    Kinematics,
};

struct ArrangedBounds {
    std::string_view name;
    Arrangement arrangement;
    Rect bounds;
};
/// The places that differ from the start place of the control table.
std::span<const ArrangedBounds> ArrangementTable();

struct ControlTooltip {
    std::string_view name;
    std::string_view tooltip;
};
std::span<const ControlTooltip> TooltipTable();

/// What a control is called by a voice that reads the window aloud: short, the telling word first, and never
/// the kind of the control, which the voice tells by itself. Of the rows of a control the first one holds
/// whose condition is met; a control without such a row goes by its caption.
struct ControlName {
    std::string_view name;
    std::string_view words;
    // The caption of this control, or one word of it counted from 1, goes on behind the words; the row holds
    // while there is such a one. A control may take up its own caption.
    std::string_view label = {};
    int word = kWholeCaption;
    // The row holds in this arrangement, or with this caption, alone.
    std::optional<Arrangement> arrangement = {};
    std::string_view caption = {};

    static constexpr int kWholeCaption = 0;
};
std::span<const ControlName> NameTable();

inline constexpr Rect kForm1Bounds{0, 0, 800, 612};
inline constexpr Rect kForm2Bounds{0, 0, 440, 256};

}  // namespace tavrelo::window
