#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "text/rich_text.h"
#include "window/control.h"
#include "window/keys.h"
#include "window/picture_cells.h"
#include "window/surface.h"

// The controls by kind: properties, events as std::function members, and what the user can do to them. A
// `User...` member is called by the view (or by a transcript) and fires the events; all other members are the
// program's.

namespace tavrelo::window {

/// What the program does of its own at some moment, without more to know.
using Event = std::function<void()>;

template <class Signature>
class Handler;

/// What the program does when something happens to a control. A handler is given only through guarded.h, so
/// that none stands without a guard.
template <class Result, class... Args>
class Handler<Result(Args...)> {
  public:
    explicit operator bool() const { return static_cast<bool>(m_function); }
    Result operator()(Args... args) const { return m_function(args...); }

  private:
    friend struct HandlerAccess;
    std::function<Result(Args...)> m_function;
};

/// A window: `Form1` itself and the dialog `Form2`.
class Window : public Control {
  public:
    using Control::Control;
    /// What the title bar says behind the caption, such as the tool in use; empty for nothing.
    const std::string& Subtitle() const { return m_subtitle; }
    void SetSubtitle(std::string subtitle) { Set(m_subtitle, std::move(subtitle)); }
    /// The user closed it by its frame.
    void UserClose();
    Handler<void()> OnClose;

  private:
    std::string m_subtitle;
};

class Frame : public Control {
  public:
    using Control::Control;
};

/// A coloured rectangle that takes no clicks.
class Shape : public Control {
  public:
    using Control::Control;
};

class Label : public Control {
  public:
    using Control::Control;
    /// Pixels at 100 % from the beginning of one word of the caption to the next, for names that stand over a
    /// row of boxes; 0 shows the caption as a text.
    int WordPitch() const { return m_word_pitch; }
    void SetWordPitch(int pixels) { Set(m_word_pitch, pixels); }
    /// Whether the label stands out, for what it says is what the user has to look at now.
    bool CallsAttention() const { return m_calls_attention; }
    void CallAttention(bool calls) { Set(m_calls_attention, calls); }
    void UserClick();
    Handler<void()> OnClick;

  private:
    int m_word_pitch = 0;
    bool m_calls_attention = false;
};

/// Where a button's picture stands in a bitmap of the program; pixels at 100 %.
struct Icon {
    std::string bitmap;  // empty: the caption is shown
    Rect source;

    friend bool operator==(const Icon&, const Icon&) = default;
};

class Button : public Control {
  public:
    using Control::Control;
    const Icon& Picture() const { return m_icon; }
    void SetPicture(Icon icon) { Set(m_icon, std::move(icon)); }
    void UserClick();
    Handler<void()> OnClick;

  private:
    Icon m_icon;
};

/// One of a group of exclusive choices: all option buttons of the same array.
class OptionButton : public Control {
  public:
    using Control::Control;
    bool Checked() const { return m_checked; }
    /// Checks this one and unchecks the others of its group.
    void Choose();
    void Uncheck() { Set(m_checked, false); }
    void UserClick();
    Handler<void()> OnClick;

    std::vector<OptionButton*> group;  // filled by the window, this one included

  private:
    bool m_checked = false;
};

class CheckBox : public Control {
  public:
    using Control::Control;
    bool Checked() const { return m_checked; }
    void SetChecked(bool checked) { Set(m_checked, checked); }
    void UserClick();
    Handler<void()> OnClick;

  private:
    bool m_checked = false;
};

/// Part of a text, in characters from 0; the caret stands at its end.
struct TextSelection {
    std::size_t start = 0;
    std::size_t length = 0;

    friend bool operator==(const TextSelection&, const TextSelection&) = default;
};

/// Characters that a box of one line holds; what is typed or pasted beyond them is left out.
inline constexpr std::size_t kMostCharacters = 32767;

/// What boxes with a caret have in common. A key stroke goes through OnKeyDown, OnKeyPress, the box's own
/// editing and OnKeyUp; a handler that answers true has consumed it, and nothing behind it happens.
class TextControl : public Control {
  public:
    using Control::Control;

    virtual const std::string& Text() const { return m_text; }
    /// Replaces the text, cut to kMostCharacters; the caret goes to its end; OnChange stays silent.
    virtual void SetText(std::string text);
    /// As SetText, and tells OnChange.
    void SetTextAndTell(std::string text);
    /// Replaces the selected characters; the caret goes behind the new ones; OnChange stays silent.
    void Insert(std::string_view text);

    const TextSelection& Selection() const { return m_selection; }
    /// Clipped to the text.
    void Select(TextSelection selection);
    void SelectAll();
    void PutCaretAtEnd();
    std::size_t Length() const;

    /// What the view shows in grey while the box is empty.
    const std::string& Hint() const { return m_hint; }
    void SetHint(std::string hint) { Set(m_hint, std::move(hint)); }

    bool Locked() const { return m_locked; }
    void SetLocked(bool locked) { Set(m_locked, locked); }

    bool UserKeyDown(const KeyStroke& stroke);
    bool UserKeyPress(char32_t character);
    void UserKeyUp(const KeyStroke& stroke);
    /// The box's own editing left this text and selection. Several lines become one, and what is too much in
    /// front of the caret goes: there stands what was typed or pasted last.
    void UserEdited(std::string text, TextSelection selection);
    void UserSelected(TextSelection selection) { Select(selection); }

    Handler<bool(const KeyStroke&)> OnKeyDown;
    Handler<bool(char32_t)> OnKeyPress;
    Handler<void(const KeyStroke&)> OnKeyUp;
    Handler<void()> OnChange;
    Handler<void()> OnGotFocus;
    Handler<void()> OnLostFocus;

  protected:
    virtual void StoreText(std::string text) { m_text = std::move(text); }

    std::string m_text;

  private:
    TextSelection Clipped(TextSelection selection) const;

    TextSelection m_selection;
    std::string m_hint;
    bool m_locked = false;
};

class TextBox : public TextControl {
  public:
    using TextControl::TextControl;
};

/// A box of rich text. Only one that is not locked can be typed into; what is typed takes the look of its
/// base font.
class RichTextBox : public TextControl {
  public:
    using TextControl::TextControl;

    const text::RichText& Content() const { return m_content; }
    /// Replaces everything; the caret goes to the front.
    void SetContent(text::RichText content);
    /// Appends at the end and leaves the caret there.
    void AppendContent(const text::RichText& content);

  protected:
    void StoreText(std::string text) override;

  private:
    text::RichText m_content;
};

/// A block of grid cells, rows and columns counted from 0 with the fixed ones.
struct CellBlock {
    int first_row = 0;
    int first_col = 0;
    int last_row = 0;
    int last_col = 0;

    int Rows() const { return last_row - first_row + 1; }
    int Cols() const { return last_col - first_col + 1; }
    friend bool operator==(const CellBlock&, const CellBlock&) = default;
};

enum class Alignment { Left, Center, Right };

/// A table of texts with fixed heading rows and columns. Typing into a cell is the tool's affair
/// (OnKeyPress); the grid itself knows only the current cell, the selected block and the arrow keys.
class Grid : public Control {
  public:
    using Control::Control;

    int Rows() const { return static_cast<int>(m_cells.size()); }
    int Cols() const { return static_cast<int>(m_columns.size()); }
    int FixedRows() const { return m_fixed_rows; }
    int FixedCols() const { return m_fixed_cols; }
    /// Empties the grid and gives it a new size.
    void Arrange(int rows, int cols, int fixed_rows, int fixed_cols);
    void AddRow(const std::vector<std::string>& cells);
    void RemoveRow(int row);
    /// Takes the texts of a row away; those below move up, and the first column keeps its numbers.
    void RemoveNumberedRow(int row);
    bool HasCell(int row, int col) const;

    // A row or column outside the grid fails with SubscriptRange.
    const std::string& Cell(int row, int col) const;
    void SetCell(int row, int col, std::string text);
    text::Color CellBackColor(int row, int col) const;
    void SetCellBackColor(int row, int col, text::Color color);

    int ColWidth(int col) const;  // twips
    void SetColWidth(int col, int twips);
    Alignment ColAlignment(int col) const;
    void SetColAlignment(int col, Alignment alignment);
    int RowHeight() const { return m_row_height; }  // twips
    void SetRowHeight(int twips) { Set(m_row_height, twips); }

    int Row() const { return m_row; }
    int Col() const { return m_col; }
    const CellBlock& Selection() const { return m_selection; }
    /// The block as the user dragged it: the first cell may lie below or right of the last one.
    const CellBlock& DraggedBlock() const { return m_dragged; }
    /// Makes one cell the current one and the selection, without events. A grid may have none: (-1, -1).
    void SetCurrent(int row, int col);
    void Select(const CellBlock& block);

    /// A press on a cell: it becomes current (OnEnterCell, OnSelChange), then OnMouseDown. A fixed cell
    /// changes nothing.
    void UserPress(int row, int col);
    /// A drag from the first cell of the block to the last one, in any direction; the first cell is the
    /// current one.
    void UserDrag(const CellBlock& block);
    /// A drag that began with UserPress has come to this cell.
    void UserDragTo(int row, int col);
    void UserDblClick(int row, int col);
    bool UserKeyDown(const KeyStroke& stroke);
    bool UserKeyPress(char32_t character);
    bool UserKeyUp(const KeyStroke& stroke);
    /// An arrow key that no handler consumed: moves the current cell, with Shift the end of the selection.
    void UserNavigate(Key key, bool extend);

    /// What a column is called that has no fixed row above it.
    std::function<std::string(int col)> NameColumn;

    Handler<void(int row, int col)> OnMouseDown;
    Handler<void()> OnSelChange;
    Handler<void()> OnEnterCell;
    Handler<void()> OnDblClick;  // the clicked cell is the current one
    Handler<bool(const KeyStroke&)> OnKeyDown;
    Handler<bool(char32_t)> OnKeyPress;
    Handler<bool(const KeyStroke&)> OnKeyUp;

  private:
    struct CellData {
        std::string text;
        text::Color back_color = text::kWhite;
    };
    struct Column {
        int width = 960;
        Alignment alignment = Alignment::Left;
    };
    const CellData& At(int row, int col) const;
    CellData& At(int row, int col);
    const Column& ColumnAt(int col) const;
    Column& ColumnAt(int col);
    void MoveTo(int row, int col);
    void DragOver(const CellBlock& block);

    std::vector<std::vector<CellData>> m_cells;
    std::vector<Column> m_columns;
    int m_fixed_rows = 0;
    int m_fixed_cols = 0;
    int m_row_height = 255;
    int m_row = -1;
    int m_col = -1;
    CellBlock m_selection{-1, -1, -1, -1};
    CellBlock m_dragged{-1, -1, -1, -1};
};

/// A mouse event in the control's own units.
struct MouseStroke {
    double x = 0;
    double y = 0;
    MouseButton button = MouseButton::Left;
    bool shift = false;
    bool ctrl = false;
    bool alt = false;
};

/// The units of a picture's mouse events.
enum class MouseUnits {
    Pixels,    // from the top left, downward
    PixelsUp,  // from the bottom left, upward
    Twips,     // from the top left, downward
};

/// A drawing surface with mouse events. Pictures may also hold other controls.
class Picture : public Control {
  public:
    Picture(Identity identity, const ControlLinks& links);

    Recorder& Canvas() { return m_canvas; }
    const Recorder& Canvas() const { return m_canvas; }
    /// Fits the canvas to the bounds; what was drawn stays.
    void FitCanvas();
    /// What the picture shows, in words for those who do not see it, on a board where nothing stands yet how
    /// to begin; empty for one without content.
    std::string Description() const;

    MouseUnits Units() const { return m_units; }
    void SetUnits(MouseUnits units) { m_units = units; }
    /// From pixels (top left, downward) to the control's own units and back.
    Point ToOwnUnits(Point pixels) const;
    Point ToPixels(Point own) const;

    /// The picture's own pointer shape; 0 is the window's.
    int PointerShape() const { return m_pointer_shape; }
    void SetPointerShape(int shape) { Set(m_pointer_shape, shape); }

    void UserMouseDown(const MouseStroke& stroke);
    void UserMouseMove(const MouseStroke& stroke);
    void UserMouseUp(const MouseStroke& stroke);

    Handler<void(const MouseStroke&)> OnMouseDown;
    Handler<void(const MouseStroke&)> OnMouseMove;
    Handler<void(const MouseStroke&)> OnMouseUp;

    /// Lists what can be pressed on the picture, from what is painted on it and how its clicks are heard. It
    /// is asked whenever somebody wants to know, so the answer is never old; unset, the picture has no cells.
    std::function<std::vector<PictureCell>()> ListCells;
    std::vector<PictureCell> Cells() const;
    bool HasCells() const { return static_cast<bool>(ListCells); }

    /// The cell among `cells` that the keys are at: where the user went last, at first the checked one, else
    /// the first. kNoCell when none is enabled.
    int CurrentCell(std::span<const PictureCell> cells) const;
    int CurrentCell() const { return CurrentCell(Cells()); }
    /// An arrow, Home or End: goes to another cell, or answers false.
    bool UserMoveCell(Key key);
    /// The user put the keys at a cell, by its index.
    void UserGoToCell(int cell);
    /// A key presses the current cell: the events of a click of the mouse on its middle. A cell that such a
    /// press takes up is held, and the next press puts it down at the cell that is then the current one.
    void UserChooseCell(const CellPress& press);
    /// The button that holds a cell taken up by a key.
    const std::optional<MouseButton>& HeldWith() const { return m_held_with; }
    /// Puts a held cell back: a release outside the picture.
    void UserLetGo();

  private:
    MouseStroke StrokeAt(Point pixels, const CellPress& press) const;
    void KeepPlace(Point pixels);

    Recorder m_canvas;
    MouseUnits m_units = MouseUnits::Pixels;
    int m_pointer_shape = 0;
    // Cells come and go with what is painted; where the keys are is kept as a place (pixels).
    std::optional<Point> m_cell_place;
    std::optional<MouseButton> m_held_with;
};

/// A list that opens, with at most one row chosen.
class ComboBox : public Control {
  public:
    using Control::Control;
    const std::vector<std::string>& Items() const { return m_items; }
    /// New rows; none is chosen.
    void SetItems(std::vector<std::string> items);
    int Index() const { return m_index; }  // -1: none
    /// Chooses a row without OnClick.
    void SetIndex(int index) { Set(m_index, index, Change::Selection); }
    void UserPick(int index);
    Handler<void()> OnClick;

  private:
    std::vector<std::string> m_items;
    int m_index = -1;
};

/// A list in view; several rows can be chosen where `multiple`.
class ListBox : public Control {
  public:
    using Control::Control;
    const std::vector<std::string>& Items() const { return m_items; }
    /// New rows; none is chosen.
    void SetItems(std::vector<std::string> items);
    void Clear() { SetItems({}); }
    /// A row more at the end, not chosen; the others stay as they are.
    void AddItem(std::string item);
    void RemoveItem(int row);
    bool IsChosen(int row) const;
    void SetChosen(int row, bool chosen);
    /// Exactly these rows.
    void UserPick(const std::vector<int>& rows);
    Handler<void()> OnClick;

    bool multiple = false;

  private:
    std::vector<std::string> m_items;
    std::vector<bool> m_chosen;
};

class TabStrip : public Control {
  public:
    using Control::Control;
    const std::vector<std::string>& Tabs() const { return m_tabs; }
    void SetTabs(std::vector<std::string> captions) { Set(m_tabs, std::move(captions), Change::Content); }
    int Current() const { return m_current; }
    /// Brings a tab to the front without OnClick.
    void SetCurrent(int tab) { Set(m_current, tab, Change::Selection); }
    void UserPick(int tab);
    /// Told with the tab that was in front before.
    Handler<void(int previous)> OnClick;

  protected:
    bool ShowsPage(int page) const override { return page == m_current; }

  private:
    std::vector<std::string> m_tabs;
    int m_current = 0;
};

/// A pair of arrows over a whole number, with a box that shows it.
class UpDown : public Control {
  public:
    using Control::Control;
    int Value() const { return m_value; }
    void SetValue(int value);
    int Minimum() const { return m_minimum; }
    int Maximum() const { return m_maximum; }
    void SetRange(int minimum, int maximum);
    void UserSpin(int value);
    Handler<void()> OnChange;

    TextBox* buddy = nullptr;  // null: the control shows its number itself

  private:
    int m_value = 0;
    int m_minimum = 0;
    int m_maximum = 0;
};

}  // namespace tavrelo::window
