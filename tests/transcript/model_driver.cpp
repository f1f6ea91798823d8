#include "model_driver.h"

#include "text/utf8.h"
#include "text_editing.h"
#include "window/cell_typing.h"

namespace tavrelo::transcript {
namespace {

using window::ControlKind;
using window::Key;
using window::KeyStroke;

constexpr text::Color kWindowColor = text::Rgb(240, 240, 240);

bool IsVisibleWithPanels(const window::Control& control) {
    return control.Visible() && (!control.Parent() || IsVisibleWithPanels(*control.Parent()));
}

/// The character that a key sends behind its key-down; 0 for none.
char32_t PressedCharacter(const KeyStroke& stroke) {
    if (stroke.ctrl || stroke.alt)
        return 0;
    switch (stroke.key) {
        case Key::Character:
            return stroke.character;
        case Key::Enter:
            return window::kEnterCharacter;
        case Key::Backspace:
            return window::kBackspaceCharacter;
        default:
            return 0;
    }
}

/// True when the program took the key.
template <class TypedControl>
bool Offer(TypedControl& control, const KeyStroke& stroke) {
    if (control.UserKeyDown(stroke))
        return true;
    const char32_t character = PressedCharacter(stroke);
    return character != 0 && control.UserKeyPress(character);
}

bool IsArrow(Key key) { return key == Key::Left || key == Key::Right || key == Key::Up || key == Key::Down; }

std::vector<std::string> CellsOfRow(const window::Grid& grid, int row) {
    std::vector<std::string> cells;
    for (int col = 0; col < grid.Cols(); ++col)
        cells.push_back(grid.Cell(row, col));
    return cells;
}

class ModelDriver : public Driver {
  public:
    ModelDriver() : m_program(m_world.AsHost()), m_editing(m_world.clipboard) {}

    app::Program& Program() override { return m_program; }
    RecordedHost& World() override { return m_world; }
    bool IsReachable(const window::Control& control) override { return control.IsUsable(); }

    void Press(window::Control& control) override;
    void Drag(window::Picture& picture, const window::MouseStroke& from,
              const window::MouseStroke& to) override;
    void Hover(window::Picture& picture, window::Point place) override;
    void GiveFocus(window::Control& control) override { Window().UserFocused(control); }
    void Stroke(window::Control& control, const KeyStroke& stroke) override;
    void ReplaceText(window::TextControl& box, const std::string& text) override;
    void PressCell(window::Grid& grid, CellPlace cell) override;
    void DragCells(window::Grid& grid, const window::CellBlock& block) override;
    void DoubleClickCell(window::Grid& grid, CellPlace cell) override;
    void Pick(window::ComboBox& combo, int row) override;
    void Pick(window::TabStrip& tabs, int tab) override { tabs.UserPick(tab); }
    void Pick(window::ListBox& list, const std::vector<int>& rows) override;
    void Spin(window::UpDown& control, int value) override { control.UserSpin(value); }
    void PutOnClipboard(const std::string& text) override { m_world.clipboard.SetText(text); }

    Appearance Look(const window::Control& control) override { return LookOf(control); }
    std::string Text(const window::TextBox& box) override { return box.Text(); }
    std::vector<text::Run> Runs(const window::RichTextBox& box) override { return box.Content().Runs(); }
    window::TextSelection Selection(const window::TextControl& box) override { return box.Selection(); }
    std::vector<std::vector<std::string>> Cells(const window::Grid& grid) override;
    window::CellBlock Selection(const window::Grid& grid) override { return grid.Selection(); }
    std::vector<ListRow> Rows(const window::ComboBox& combo) override;
    std::vector<ListRow> Rows(const window::ListBox& list) override;
    std::vector<ListRow> Rows(const window::TabStrip& tabs) override;
    bool IsChecked(const window::OptionButton& option) override { return option.Checked(); }
    bool IsChecked(const window::CheckBox& check) override { return check.Checked(); }
    int FrontTab(const window::TabStrip& tabs) override { return tabs.Current(); }
    int Value(const window::UpDown& control) override { return control.Value(); }
    std::vector<window::DrawOp> Drawing(const window::Picture& picture) override;
    std::vector<std::string> DrawnTexts(const window::Picture& picture) override;
    const window::Control* Focus() override { return Window().Focus(); }
    int Pointer() override;
    ClipboardContent OnClipboard() override;

  private:
    window::Form1& Window() { return m_program.Window(); }
    void TakeInTable(window::Grid& grid, const KeyStroke& stroke);

    RecordedHost m_world;
    app::Program m_program;
    TextEditing m_editing;
};

void ModelDriver::Press(window::Control& control) {
    if (auto* label = dynamic_cast<window::Label*>(&control)) {
        label->UserClick();
        return;
    }
    Window().UserFocused(control);
    if (auto* button = dynamic_cast<window::Button*>(&control))
        button->UserClick();
    else if (auto* option = dynamic_cast<window::OptionButton*>(&control))
        option->UserClick();
    else if (auto* check = dynamic_cast<window::CheckBox*>(&control))
        check->UserClick();
}

void ModelDriver::Drag(window::Picture& picture, const window::MouseStroke& from,
                       const window::MouseStroke& to) {
    picture.UserMouseDown(from);
    if (from.x != to.x || from.y != to.y)
        picture.UserMouseMove(to);
    picture.UserMouseUp(to);
}

void ModelDriver::Hover(window::Picture& picture, window::Point place) {
    window::MouseStroke stroke;
    stroke.x = place.x;
    stroke.y = place.y;
    picture.UserMouseMove(stroke);
}

void ModelDriver::Stroke(window::Control& control, const KeyStroke& stroke) {
    if (auto* box = dynamic_cast<window::TextControl*>(&control)) {
        if (!Offer(*box, stroke))
            m_editing.Take(*box, stroke);
        box->UserKeyUp(stroke);
    } else if (auto* grid = dynamic_cast<window::Grid*>(&control)) {
        if (!Offer(*grid, stroke))
            TakeInTable(*grid, stroke);
        grid->UserKeyUp(stroke);
    }
}

/// What the view of a table does by itself with a key that the program left alone.
void ModelDriver::TakeInTable(window::Grid& grid, const KeyStroke& stroke) {
    if (IsArrow(stroke.key) && !stroke.ctrl && !stroke.alt)
        grid.UserNavigate(stroke.key, stroke.shift);
    else if (IsCopying(stroke))
        if (const auto text = window::TextOfBlock(grid))
            m_world.clipboard.SetText(*text);
}

void ModelDriver::ReplaceText(window::TextControl& box, const std::string& text) {
    box.UserEdited(text, {text::CharacterCount(text), 0});
}

void ModelDriver::PressCell(window::Grid& grid, CellPlace cell) {
    Window().UserFocused(grid);
    grid.UserPress(cell.row, cell.col);
}

void ModelDriver::DragCells(window::Grid& grid, const window::CellBlock& block) {
    Window().UserFocused(grid);
    grid.UserDrag(block);
}

void ModelDriver::DoubleClickCell(window::Grid& grid, CellPlace cell) {
    Window().UserFocused(grid);
    grid.UserDblClick(cell.row, cell.col);
}

void ModelDriver::Pick(window::ComboBox& combo, int row) {
    Window().UserFocused(combo);
    combo.UserPick(row);
}

void ModelDriver::Pick(window::ListBox& list, const std::vector<int>& rows) {
    Window().UserFocused(list);
    list.UserPick(rows);
}

std::vector<std::vector<std::string>> ModelDriver::Cells(const window::Grid& grid) {
    std::vector<std::vector<std::string>> rows;
    for (int row = 0; row < grid.Rows(); ++row)
        rows.push_back(CellsOfRow(grid, row));
    return rows;
}

std::vector<ListRow> ModelDriver::Rows(const window::ComboBox& combo) {
    std::vector<ListRow> rows;
    for (const std::string& item : combo.Items())
        rows.push_back({item, static_cast<int>(rows.size()) == combo.Index()});
    return rows;
}

std::vector<ListRow> ModelDriver::Rows(const window::ListBox& list) {
    std::vector<ListRow> rows;
    for (const std::string& item : list.Items())
        rows.push_back({item, list.IsChosen(static_cast<int>(rows.size()))});
    return rows;
}

std::vector<ListRow> ModelDriver::Rows(const window::TabStrip& tabs) {
    std::vector<ListRow> rows;
    for (const std::string& caption : tabs.Tabs())
        rows.push_back({caption, static_cast<int>(rows.size()) == tabs.Current()});
    return rows;
}

std::vector<window::DrawOp> ModelDriver::Drawing(const window::Picture& picture) {
    return picture.Canvas().Operations();
}

std::vector<std::string> ModelDriver::DrawnTexts(const window::Picture& picture) {
    return picture.Canvas().VisibleTexts();
}

int ModelDriver::Pointer() {
    if (Window().Pointer() != window::kPointerDefault)
        return Window().Pointer();
    for (const window::Control* control : Window().Controls()) {
        const auto* picture = dynamic_cast<const window::Picture*>(control);
        if (picture && picture->PointerShape() != window::kPointerDefault && picture->IsShown())
            return picture->PointerShape();
    }
    return window::kPointerDefault;
}

ClipboardContent ModelDriver::OnClipboard() {
    const RecordedClipboard& clipboard = m_world.clipboard;
    return {clipboard.Text(), clipboard.PictureWidth(), clipboard.PictureHeight()};
}

}  // namespace

text::Color OwnBackColor(const window::Control& control) {
    switch (control.Kind()) {
        case ControlKind::Picture:
            return dynamic_cast<const window::Picture&>(control).Canvas().BackColor;
        case ControlKind::TextBox:
        case ControlKind::RichTextBox:
        case ControlKind::Grid:
        case ControlKind::ComboBox:
        case ControlKind::ListBox:
            return text::kWhite;
        default:
            return kWindowColor;
    }
}

Appearance LookOf(const window::Control& control) {
    return {IsVisibleWithPanels(control),
            control.Enabled(),
            control.Underlined(),
            control.Caption(),
            control.Tooltip(),
            control.ForeColor(),
            control.HasBackColor() ? control.BackColor() : OwnBackColor(control),
            control.Bounds()};
}

std::unique_ptr<Driver> MakeModelDriver() { return std::make_unique<ModelDriver>(); }

}  // namespace tavrelo::transcript
