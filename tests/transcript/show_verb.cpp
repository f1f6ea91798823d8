#include <algorithm>
#include <optional>

#include "show.h"
#include "text_lines.h"
#include "verbs.h"

namespace tavrelo::transcript {
namespace {

using Lines = std::vector<std::string>;

/// Asks the driver for what a property of a control shows. Fails with ScriptError when the control has no
/// such property.
struct Property {
    std::string_view name;
    std::string (*value)(Session& session, const window::Control& control);
};

template <class ControlType>
const ControlType& As(const window::Control& control) {
    const auto* typed = dynamic_cast<const ControlType*>(&control);
    if (!typed)
        Session::FailMisfit(control.Name());
    return *typed;
}

template <class ControlType>
const ControlType* If(const window::Control& control) {
    return dynamic_cast<const ControlType*>(&control);
}

std::string BoundsOf(Session& session, const window::Control& control) {
    const window::Rect bounds = session.driver.Look(control).bounds;
    return NumbersText({bounds.left, bounds.top, bounds.width, bounds.height});
}

std::string CheckedOf(Session& session, const window::Control& control) {
    if (const auto* option = If<window::OptionButton>(control))
        return TruthText(session.driver.IsChecked(*option));
    return TruthText(session.driver.IsChecked(As<window::CheckBox>(control)));
}

std::string RowsOf(Session& session, const window::Control& control) {
    Driver& driver = session.driver;
    if (const auto* grid = If<window::Grid>(control))
        return std::to_string(driver.Cells(*grid).size());
    if (const auto* combo = If<window::ComboBox>(control))
        return std::to_string(driver.Rows(*combo).size());
    return std::to_string(driver.Rows(As<window::ListBox>(control)).size());
}

std::string SelectionOf(Session& session, const window::Control& control) {
    if (const auto* grid = If<window::Grid>(control)) {
        const window::CellBlock block = session.driver.Selection(*grid);
        return NumbersText({block.first_row, block.first_col, block.last_row, block.last_col});
    }
    const window::TextSelection chosen = session.driver.Selection(As<window::TextControl>(control));
    return NumbersText({chosen.start, chosen.length});
}

constexpr Property kProperties[] = {
    {"visible", [](Session& s, const window::Control& c) { return TruthText(s.driver.Look(c).visible); }},
    {"enabled", [](Session& s, const window::Control& c) { return TruthText(s.driver.Look(c).enabled); }},
    {"checked", CheckedOf},
    {"underline",
     [](Session& s, const window::Control& c) { return TruthText(s.driver.Look(c).underlined); }},
    {"tooltip", [](Session& s, const window::Control& c) { return s.driver.Look(c).tooltip; }},
    {"caption", [](Session& s, const window::Control& c) { return s.driver.Look(c).caption; }},
    {"forecolor",
     [](Session& s, const window::Control& c) { return ColorText(s.driver.Look(c).fore_color); }},
    {"backcolor",
     [](Session& s, const window::Control& c) { return ColorText(s.driver.Look(c).back_color); }},
    {"bounds", BoundsOf},
    {"tab",
     [](Session& s, const window::Control& c) {
         return std::to_string(s.driver.FrontTab(As<window::TabStrip>(c)));
     }},
    {"rows", RowsOf},
    {"selection", SelectionOf},
};

Lines ShapesOf(Session& session, const window::Control& control, Arguments& arguments) {
    const auto drawing = session.driver.Drawing(As<window::Picture>(control));
    const std::string_view kind = IsShapeKind(arguments.NextWord()) ? arguments.Word() : std::string_view();
    return ShapeLines(drawing, kind);
}

Lines PropertyOf(Session& session, const window::Control& control, std::string_view name,
                 Arguments& arguments) {
    if (name == "runs")
        return RunLines(session.driver.Runs(As<window::RichTextBox>(control)));
    if (name == "shapes")
        return ShapesOf(session, control, arguments);
    const auto* found = std::ranges::find(kProperties, name, &Property::name);
    if (found == std::end(kProperties))
        throw ScriptError("there is no property \"" + std::string(name) + "\"");
    return TextLines(found->value(session, control));
}

/// The text of a control.
Lines TextOf(Session& session, const window::Control& control) {
    Driver& driver = session.driver;
    if (const auto* rich = If<window::RichTextBox>(control))
        return RichTextLines(driver.Runs(*rich));
    if (const auto* box = If<window::TextBox>(control))
        return TextLines(driver.Text(*box));
    if (const auto* grid = If<window::Grid>(control))
        return GridLines(driver.Cells(*grid));
    if (const auto* combo = If<window::ComboBox>(control))
        return ListLines(driver.Rows(*combo));
    if (const auto* list = If<window::ListBox>(control))
        return ListLines(driver.Rows(*list));
    if (const auto* picture = If<window::Picture>(control))
        return driver.DrawnTexts(*picture);
    if (const auto* tabs = If<window::TabStrip>(control))
        return ListLines(driver.Rows(*tabs));
    if (const auto* up_down = If<window::UpDown>(control))
        return {std::to_string(driver.Value(*up_down))};
    return TextLines(driver.Look(control).caption);
}

Lines CellOf(Session& session, const window::Grid& grid, Arguments& arguments) {
    const auto row = static_cast<std::size_t>(arguments.WholeNumber());
    const auto col = static_cast<std::size_t>(arguments.WholeNumber());
    const auto cells = session.driver.Cells(grid);
    if (row >= cells.size() || col >= cells[row].size())
        return {"! no such cell"};
    return {cells[row][col]};
}

bool IsFilter(std::string_view word) { return word == "with" || word == "tail"; }

/// Those of the lines that "with TEXT" or "tail N" asks for; blank lines count for nothing.
Lines Filtered(const Lines& lines, Arguments& arguments) {
    if (!IsFilter(arguments.NextWord()))
        return lines;
    Lines kept = lines;
    std::erase_if(kept, [](const std::string& line) { return WithoutTrailingBlanks(line).empty(); });
    if (arguments.Word() == "with") {
        const std::string_view text = arguments.Rest();
        std::erase_if(kept, [&](const std::string& line) { return line.find(text) == std::string::npos; });
        return kept;
    }
    const auto count = static_cast<std::size_t>(std::max(arguments.WholeNumber(), 0));
    return kept.size() <= count ? kept : Lines(kept.end() - static_cast<std::ptrdiff_t>(count), kept.end());
}

Lines LinesOfControl(Session& session, std::string_view name, Arguments& arguments) {
    const std::size_t point = name.find('.');
    const window::Control& control = session.Find(name.substr(0, point));
    if (point != std::string_view::npos)
        return PropertyOf(session, control, name.substr(point + 1), arguments);
    const auto* grid = If<window::Grid>(control);
    const bool asks_for_cell = grid && !arguments.AtEnd() && !IsFilter(arguments.NextWord());
    return asks_for_cell ? CellOf(session, *grid, arguments) : TextOf(session, control);
}

Lines FocusLines(Session& session, Arguments&) {
    const window::Control* focus = session.driver.Focus();
    return focus ? Lines{focus->Name()} : Lines{};
}

Lines GlobalLines(Session& session, Arguments& arguments) {
    const std::string_view name = arguments.Word();
    const auto value = session.driver.Program().GlobalValue(name);
    if (!value)
        throw ScriptError("there is no global \"" + std::string(name) + "\"");
    return TextLines(*value);
}

/// What can be shown that is no control.
struct Place {
    std::string_view name;
    Lines (*lines)(Session& session, Arguments& arguments);
};
constexpr Place kPlaces[] = {
    {"focus", FocusLines},
    {"clipboard", [](Session& s, Arguments&) { return ClipboardLines(s.driver.OnClipboard()); }},
    {"pointer", [](Session& s, Arguments&) { return Lines{PointerText(s.driver.Pointer())}; }},
    {"printer", [](Session& s, Arguments&) { return PageLines(s.driver.World().printer.Pages()); }},
    {"value", GlobalLines},
};

}  // namespace

void Show(Session& session, Arguments& arguments) {
    const std::string_view name = arguments.Word();
    const auto* place = std::ranges::find(kPlaces, name, &Place::name);
    const Lines lines = place == std::end(kPlaces) ? LinesOfControl(session, name, arguments)
                                                   : place->lines(session, arguments);
    const Lines shown = Filtered(lines, arguments);
    arguments.ExpectEnd();
    session.Show(shown);
}

}  // namespace tavrelo::transcript
