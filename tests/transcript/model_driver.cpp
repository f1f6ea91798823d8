#include "model_driver.h"

#include "numeric/utf8.h"
#include "text_editing.h"

namespace tavrelo::transcript {
namespace {

using shell::ControlKind;
using shell::Key;
using shell::KeyStroke;

constexpr shell::Color kWindowColor = shell::Rgb(240, 240, 240);

bool IsVisibleWithPanels(const shell::Control& control) {
    return control.Visible() && (!control.Parent() || IsVisibleWithPanels(*control.Parent()));
}

/// The background of a control that the program gave none.
shell::Color OwnBackColor(const shell::Control& control) {
    switch (control.Kind()) {
        case ControlKind::Picture:
            return dynamic_cast<const shell::Picture&>(control).Canvas().BackColor;
        case ControlKind::TextBox:
        case ControlKind::RichTextBox:
        case ControlKind::Grid:
        case ControlKind::ComboBox:
        case ControlKind::ListBox:
            return shell::kWhite;
        default:
            return kWindowColor;
    }
}

/// The character that a key sends behind its key-down; 0 for none.
char32_t PressedCharacter(const KeyStroke& stroke) {
    if (stroke.ctrl || stroke.alt)
        return 0;
    switch (stroke.key) {
        case Key::Character:
            return stroke.character;
        case Key::Enter:
            return shell::kEnterCharacter;
        case Key::Backspace:
            return shell::kBackspaceCharacter;
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

std::vector<std::string> CellsOfRow(const shell::Grid& grid, int row) {
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
    bool IsReachable(const shell::Control& control) override { return control.IsUsable(); }

    void Press(shell::Control& control) override;
    void Drag(shell::Picture& picture, const shell::MouseStroke& from, const shell::MouseStroke& to) override;
    void Hover(shell::Picture& picture, shell::Point place) override;
    void GiveFocus(shell::Control& control) override { Window().UserFocused(control); }
    void Stroke(shell::Control& control, const KeyStroke& stroke) override;
    void ReplaceText(shell::TextControl& box, const std::string& text) override;
    void PressCell(shell::Grid& grid, CellPlace cell) override;
    void DragCells(shell::Grid& grid, const shell::CellBlock& block) override;
    void DoubleClickCell(shell::Grid& grid, CellPlace cell) override;
    void Pick(shell::ComboBox& combo, int row) override;
    void Pick(shell::TabStrip& tabs, int tab) override { tabs.UserPick(tab); }
    void Pick(shell::ListBox& list, const std::vector<int>& rows) override;
    void Spin(shell::UpDown& control, int value) override { control.UserSpin(value); }
    void PutOnClipboard(const std::string& text) override { m_world.clipboard.SetText(text); }

    Appearance Look(const shell::Control& control) override { return LookOf(control); }
    std::string Text(const shell::TextBox& box) override { return box.Text(); }
    std::vector<shell::Run> Runs(const shell::RichTextBox& box) override { return box.Content().Runs(); }
    shell::TextSelection Selection(const shell::TextControl& box) override { return box.Selection(); }
    std::vector<std::vector<std::string>> Cells(const shell::Grid& grid) override;
    shell::CellBlock Selection(const shell::Grid& grid) override { return grid.Selection(); }
    std::vector<ListRow> Rows(const shell::ComboBox& combo) override;
    std::vector<ListRow> Rows(const shell::ListBox& list) override;
    bool IsChecked(const shell::OptionButton& option) override { return option.Checked(); }
    bool IsChecked(const shell::CheckBox& check) override { return check.Checked(); }
    int FrontTab(const shell::TabStrip& tabs) override { return tabs.Current(); }
    int Value(const shell::UpDown& control) override { return control.Value(); }
    std::vector<shell::DrawOp> Drawing(const shell::Picture& picture) override;
    std::vector<std::string> DrawnTexts(const shell::Picture& picture) override;
    const shell::Control* Focus() override { return Window().Focus(); }
    int Pointer() override;
    ClipboardContent OnClipboard() override;

  private:
    shell::Form1& Window() { return m_program.Window(); }

    RecordedHost m_world;
    app::Program m_program;
    TextEditing m_editing;
};

void ModelDriver::Press(shell::Control& control) {
    if (auto* label = dynamic_cast<shell::Label*>(&control)) {
        label->UserClick();
        return;
    }
    Window().UserFocused(control);
    if (auto* button = dynamic_cast<shell::Button*>(&control))
        button->UserClick();
    else if (auto* option = dynamic_cast<shell::OptionButton*>(&control))
        option->UserClick();
    else if (auto* check = dynamic_cast<shell::CheckBox*>(&control))
        check->UserClick();
}

void ModelDriver::Drag(shell::Picture& picture, const shell::MouseStroke& from,
                       const shell::MouseStroke& to) {
    picture.UserMouseDown(from);
    if (from.x != to.x || from.y != to.y)
        picture.UserMouseMove(to);
    picture.UserMouseUp(to);
}

void ModelDriver::Hover(shell::Picture& picture, shell::Point place) {
    shell::MouseStroke stroke;
    stroke.x = place.x;
    stroke.y = place.y;
    picture.UserMouseMove(stroke);
}

void ModelDriver::Stroke(shell::Control& control, const KeyStroke& stroke) {
    if (auto* box = dynamic_cast<shell::TextControl*>(&control)) {
        if (!Offer(*box, stroke))
            m_editing.Take(*box, stroke);
        box->UserKeyUp(stroke);
    } else if (auto* grid = dynamic_cast<shell::Grid*>(&control)) {
        if (!Offer(*grid, stroke) && IsArrow(stroke.key))
            grid->UserNavigate(stroke.key, stroke.shift);
        grid->UserKeyUp(stroke);
    }
}

void ModelDriver::ReplaceText(shell::TextControl& box, const std::string& text) {
    box.UserEdited(text, {numeric::CharacterCount(text), 0});
}

void ModelDriver::PressCell(shell::Grid& grid, CellPlace cell) {
    Window().UserFocused(grid);
    grid.UserPress(cell.row, cell.col);
}

void ModelDriver::DragCells(shell::Grid& grid, const shell::CellBlock& block) {
    Window().UserFocused(grid);
    grid.UserDrag(block);
}

void ModelDriver::DoubleClickCell(shell::Grid& grid, CellPlace cell) {
    Window().UserFocused(grid);
    grid.UserDblClick(cell.row, cell.col);
}

void ModelDriver::Pick(shell::ComboBox& combo, int row) {
    Window().UserFocused(combo);
    combo.UserPick(row);
}

void ModelDriver::Pick(shell::ListBox& list, const std::vector<int>& rows) {
    Window().UserFocused(list);
    list.UserPick(rows);
}

std::vector<std::vector<std::string>> ModelDriver::Cells(const shell::Grid& grid) {
    std::vector<std::vector<std::string>> rows;
    for (int row = 0; row < grid.Rows(); ++row)
        rows.push_back(CellsOfRow(grid, row));
    return rows;
}

std::vector<ListRow> ModelDriver::Rows(const shell::ComboBox& combo) {
    std::vector<ListRow> rows;
    for (const std::string& item : combo.Items())
        rows.push_back({item, static_cast<int>(rows.size()) == combo.Index()});
    return rows;
}

std::vector<ListRow> ModelDriver::Rows(const shell::ListBox& list) {
    std::vector<ListRow> rows;
    for (const std::string& item : list.Items())
        rows.push_back({item, list.IsChosen(static_cast<int>(rows.size()))});
    return rows;
}

std::vector<shell::DrawOp> ModelDriver::Drawing(const shell::Picture& picture) {
    return picture.Canvas().Operations();
}

std::vector<std::string> ModelDriver::DrawnTexts(const shell::Picture& picture) {
    return picture.Canvas().VisibleTexts();
}

int ModelDriver::Pointer() {
    if (Window().Pointer() != shell::kPointerDefault)
        return Window().Pointer();
    for (const shell::Control* control : Window().Controls()) {
        const auto* picture = dynamic_cast<const shell::Picture*>(control);
        if (picture && picture->PointerShape() != shell::kPointerDefault && picture->IsShown())
            return picture->PointerShape();
    }
    return shell::kPointerDefault;
}

ClipboardContent ModelDriver::OnClipboard() {
    const RecordedClipboard& clipboard = m_world.clipboard;
    return {clipboard.Text(), clipboard.PictureWidth(), clipboard.PictureHeight()};
}

}  // namespace

Appearance LookOf(const shell::Control& control) {
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
