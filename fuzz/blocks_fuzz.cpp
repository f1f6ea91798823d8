// Whatever stands on the clipboard is pasted into every table and every box of the program: no failure leaves
// a handler, tables keep their size and their headings, a box of one line holds one line.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "app/program.h"
#include "harness.h"
#include "numeric/checked.h"
#include "text/utf8.h"
#include "window/controls.h"

namespace {

using namespace tavrelo;
using fuzz::Require;
using Cells = std::vector<std::vector<std::string>>;

/// A world with a clipboard and nothing else.
struct World : window::Boxes, window::Clipboard, window::Printer, window::Files {
    window::Answer ShowMessage(std::string_view, std::string_view, window::Buttons) override {
        return window::Answer::Ok;
    }
    std::optional<std::string> AskText(std::string_view, std::string_view) override { return std::nullopt; }
    std::string Text() const override { return clipboard; }
    void SetText(std::string_view text) override { clipboard = text; }
    void SetPicture(const window::Recorder&) override {}
    bool Print(const text::RichText&, const window::PageMargins&) override { return false; }
    std::string Read(std::string_view name) const override {
        throw numeric::RuntimeFailure(numeric::FailureCode::FileNotFound, std::string(name));
    }

    std::string clipboard;
    window::Host host{*this, *this, *this, *this};
};

const window::KeyStroke kPaste{.character = U'v', .ctrl = true};

void ChooseTool(window::Form1& form, int tool) {
    constexpr double kButton = 37;  // pixels
    constexpr double kMiddle = 16;
    auto& bar = form.Get<window::Picture>("Image1");
    const window::Point place = bar.ToOwnUnits({tool * kButton - kMiddle, kMiddle});
    bar.UserMouseDown({.x = place.x, .y = place.y});
    bar.UserMouseUp({.x = place.x, .y = place.y});
}

Cells Headings(const window::Grid& grid) {
    Cells headings;
    for (int row = 0; row < grid.Rows(); ++row) {
        headings.emplace_back();
        for (int col = 0; col < grid.Cols(); ++col)
            if (row < grid.FixedRows() || col < grid.FixedCols())
                headings.back().push_back(grid.Cell(row, col));
    }
    return headings;
}

/// Into its first cell, one in its middle and its last one; what was pasted is copied and pasted again.
void PasteIntoTable(window::Form1& form, window::Grid& grid, World& world) {
    const std::string text = world.clipboard;
    const Cells headings = Headings(grid);
    const int rows = grid.Rows();
    const int cols = grid.Cols();
    const int middle_row = (rows + grid.FixedRows()) / 2;
    for (const auto& [row, col] :
         {std::pair{grid.FixedRows(), grid.FixedCols()}, {middle_row, cols / 2}, {rows - 1, cols - 1}}) {
        if (!grid.HasCell(row, col))
            continue;
        form.UserFocused(grid);
        grid.UserPress(row, col);
        world.clipboard = text;
        grid.UserKeyDown(kPaste);
        grid.UserKeyDown({.character = U'c', .ctrl = true});
        grid.UserKeyDown(kPaste);
        const std::string shown = grid.Cell(row, col);
        Require(text::ToUtf8(text::ToCodePoints(shown)) == shown);
    }
    Require(grid.Rows() == rows && grid.Cols() == cols && Headings(grid) == headings);
    world.clipboard = text;
}

void PasteIntoBox(window::Form1& form, window::TextControl& box, const std::string& text) {
    if (box.Locked())
        return;
    form.UserFocused(box);
    box.UserEdited(text, {text::CharacterCount(text), 0});
    Require(box.Text().find_first_of("\r\n") == std::string::npos);
    Require(box.Length() <= window::kMostCharacters);
    Require(box.Selection().start <= box.Length());
    box.UserKeyPress(window::kEnterCharacter);
    box.UserKeyDown({.key = window::Key::Enter});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int kToolButtons = 6;
    World world;
    world.clipboard = text::ToUtf8(text::ToCodePoints({reinterpret_cast<const char*>(data), size}));
    app::Program program(world.host);
    window::Form1& form = program.Window();
    for (int tool = 1; tool <= kToolButtons; ++tool) {
        ChooseTool(form, tool);
        Require(static_cast<int>(form.publics.CurrentTool) == tool - 1);
        for (window::Control* control : form.Controls()) {
            if (!control->IsUsable())
                continue;
            if (auto* grid = dynamic_cast<window::Grid*>(control))
                PasteIntoTable(form, *grid, world);
            else if (auto* box = dynamic_cast<window::TextControl*>(control))
                PasteIntoBox(form, *box, world.clipboard);
        }
    }
    return 0;
}
