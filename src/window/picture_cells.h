#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "window/keys.h"
#include "window/surface.h"

// The places of a picture that can be pressed. Who paints a picture and hears its clicks lists them, so that
// keys reach what the mouse reaches, a reader of the screen names it, and the view shows what is under the
// pointer.

namespace tavrelo::window {

enum class MouseButton { Left, Right };

/// What a press on a cell does to it.
enum class CellRole {
    Button,  // a command
    Choice,  // one of a group is chosen
    Switch,  // on or off
};

struct PictureCell {
    std::string name;  // in Spanish, short: what stands there
    Rect bounds;       // pixels at 100 %, from the top left of the picture; a press goes to the middle
    CellRole role = CellRole::Button;
    bool checked = false;  // a choice or a switch
    bool enabled = true;
    std::string tip = {};                        // more than the name says; may be empty
    std::optional<MouseButton> drags_with = {};  // this button takes it up, to be put down elsewhere

    friend bool operator==(const PictureCell&, const PictureCell&) = default;
};

inline constexpr int kNoCell = -1;

/// Where a press on a cell goes.
Point MiddleOf(const Rect& bounds);

/// The cell that holds a place, else kNoCell.
int CellUnder(std::span<const PictureCell> cells, Point place);
/// The enabled cell whose middle is nearest to a place; kNoCell where none is enabled.
int NearestCell(std::span<const PictureCell> cells, Point place);
/// The enabled cell to which a key leads from cell `from`: with an arrow the nearest one in that direction,
/// with Home and End the first and the last. kNoCell when there is none, and for any other key.
int CellBeside(std::span<const PictureCell> cells, int from, Key key);

/// How a cell is pressed by a key.
struct CellPress {
    MouseButton button = MouseButton::Left;
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

}  // namespace tavrelo::window
