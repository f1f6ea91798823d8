#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/program.h"
#include "recorded_host.h"
#include "window/controls.h"

namespace tavrelo::transcript {

/// What a control looks like, apart from its contents.
struct Appearance {
    bool visible = false;  // itself and all its panels; a tab that is not in front does not count
    bool enabled = false;  // itself alone
    bool underlined = false;
    std::string caption;
    std::string tooltip;
    text::Color fore_color;
    text::Color back_color;
    window::Rect bounds;  // pixels at 100 %, in its panel
};

/// One row of a combo or a list.
struct ListRow {
    std::string text;
    bool chosen = false;
};

/// What the clipboard holds: a text, or an image when `width` is above 0.
struct ClipboardContent {
    std::string text;
    int width = 0;  // pixels at 100 %
    int height = 0;
};

/// A place in a grid, rows and columns from 0 with the fixed ones.
struct CellPlace {
    int row = 0;
    int col = 0;
};

/// What a reader of the screen is told of the window: objects in view, and what was found wrong with them.
struct TreeFindings {
    int objects = 0;
    int named = 0;
    int with_role = 0;
    int reachable = 0;      // by keyboard
    int read_in_place = 0;  // texts, headings and what holds others: not to be gone to
    int alike = 0;          // called like another one in view
    std::vector<std::string> complaints;
};

/// One program under test, seen from outside: what a student can do to its window and what stands in it. One
/// driver acts on the window model, the other one on the real window. A driver serves one transcript; the
/// runner makes a new one for the next.
///
/// Controls are named by the model's objects in both cases: the runner finds them in Form1 and hands them
/// over, already checked for their kind. The actions are called only when IsReachable answered true just
/// before. An action returns when everything it set off is done, boxes included.
class Driver {
  public:
    virtual ~Driver() = default;
    Driver() = default;
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;

    virtual app::Program& Program() = 0;
    /// The answers queued for boxes, the boxes opened so far, the help files and the printed pages.
    virtual RecordedHost& World() = 0;

    /// The control is in view and enabled, and so are its panels; its tab is in front.
    virtual bool IsReachable(const window::Control& control) = 0;

    // What the student does.

    /// Clicks in the middle of a button, option button, check box or label.
    virtual void Press(window::Control& control) = 0;
    /// Presses at the first place and releases at the second one (the same for a plain click, else the
    /// pointer moves there in between), in the picture's own units. Both have the same button and held keys.
    virtual void Drag(window::Picture& picture, const window::MouseStroke& from,
                      const window::MouseStroke& to) = 0;
    /// Moves the pointer there, own units.
    virtual void Hover(window::Picture& picture, window::Point place) = 0;

    /// Gives the focus to a control that is about to be typed into; nothing happens when it has it already.
    virtual void GiveFocus(window::Control& control) = 0;
    /// One key, pressed and released, to a control that GiveFocus was called for.
    virtual void Stroke(window::Control& control, const window::KeyStroke& stroke) = 0;
    /// Selects all of a box that has the focus and is not locked, and pastes the text over it: one change,
    /// the caret behind it.
    virtual void ReplaceText(window::TextControl& box, const std::string& text) = 0;

    virtual void PressCell(window::Grid& grid, CellPlace cell) = 0;
    /// Drags from the first cell of the block to the last one.
    virtual void DragCells(window::Grid& grid, const window::CellBlock& block) = 0;
    virtual void DoubleClickCell(window::Grid& grid, CellPlace cell) = 0;

    // Rows and tabs from 0; they exist.
    virtual void Pick(window::ComboBox& combo, int row) = 0;
    virtual void Pick(window::TabStrip& tabs, int tab) = 0;
    /// Exactly these rows.
    virtual void Pick(window::ListBox& list, const std::vector<int>& rows) = 0;
    /// Arrows up or down until the number stands there; it may lie outside the range, where the control
    /// stops.
    virtual void Spin(window::UpDown& control, int value) = 0;

    virtual void PutOnClipboard(const std::string& text) = 0;

    // What is seen (of hidden and disabled controls too).

    virtual Appearance Look(const window::Control& control) = 0;
    /// The text of a text box, as it stands.
    virtual std::string Text(const window::TextBox& box) = 0;
    /// The runs of a rich box, line ends "\r\n" or "\n"; neighbours may be equal.
    virtual std::vector<text::Run> Runs(const window::RichTextBox& box) = 0;
    /// Start and length in characters.
    virtual window::TextSelection Selection(const window::TextControl& box) = 0;
    /// All cells by row, fixed ones included.
    virtual std::vector<std::vector<std::string>> Cells(const window::Grid& grid) = 0;
    /// The selected block, ordered; (-1, -1, -1, -1) when there is none.
    virtual window::CellBlock Selection(const window::Grid& grid) = 0;
    virtual std::vector<ListRow> Rows(const window::ComboBox& combo) = 0;
    virtual std::vector<ListRow> Rows(const window::ListBox& list) = 0;
    /// The captions of the tabs, the one in front chosen.
    virtual std::vector<ListRow> Rows(const window::TabStrip& tabs) = 0;
    virtual bool IsChecked(const window::OptionButton& option) = 0;
    virtual bool IsChecked(const window::CheckBox& check) = 0;
    virtual int FrontTab(const window::TabStrip& tabs) = 0;
    virtual int Value(const window::UpDown& control) = 0;
    // A driver of a real window fails with ScriptError when what it paints is not what was drawn.

    /// The drawing as it stands, pixels at 100 %.
    virtual std::vector<window::DrawOp> Drawing(const window::Picture& picture) = 0;
    virtual std::vector<std::string> DrawnTexts(const window::Picture& picture) = 0;

    /// The control with the focus, or null.
    virtual const window::Control* Focus() = 0;
    /// The number of the pointer shape in force; see window::PointerShape.
    virtual int Pointer() = 0;
    virtual ClipboardContent OnClipboard() = 0;

    /// Walks what a reader of the screen is told; a driver without a window is told nothing.
    virtual TreeFindings WalkTree() { return {}; }

    // The end of a transcript.

    /// Saves a picture of the window in a PNG file; a driver without a window does nothing.
    virtual void SavePicture(const std::string& /*path*/) {}
};

/// What the command line says about how a window is played.
struct DriverOptions {
    int zoom_percent = 100;
    bool is_maximised = false;  // then the page is as large as the screen holds
    bool is_dark = false;       // as on a dark desktop
    bool has_contrast = false;
};

}  // namespace tavrelo::transcript
