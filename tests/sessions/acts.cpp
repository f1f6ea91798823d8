#include "acts.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "words.h"

namespace tavrelo::sessions {
namespace {

using window::Control;

constexpr int kTools = 8;  // the ninth button leaves
constexpr int kRoutines = 37;
constexpr int kHours = 12;
constexpr std::string_view kKeys[] = {"Enter",        "Backspace",    "Delete", "Insert", "Left",
                                      "Right",        "Up",           "Down",   "F10",    "F11",
                                      "F12",          "Ctrl+c",       "Ctrl+v", "Ctrl+x", "Ctrl+Insert",
                                      "Shift+Insert", "Shift+Delete", "+",      "5"};

std::string Number(double value) { return std::to_string(std::lround(value)); }

std::string Place(const window::Picture& picture, Chance& chance) {
    const auto& bounds = picture.Bounds();
    const auto reach = [&](int extent) { return chance.Between(-extent / 20 - 1, extent + extent / 20 + 1); };
    const window::Point own = picture.ToOwnUnits(
        {static_cast<double>(reach(bounds.width)), static_cast<double>(reach(bounds.height))});
    return Number(own.x) + " " + Number(own.y);
}

std::string Held(Chance& chance, bool with_all) {
    std::string held;
    if (chance.OneIn(4))
        held += " right";
    if (chance.OneIn(4))
        held += " shift";
    if (with_all && chance.OneIn(6))
        held += " ctrl";
    if (with_all && chance.OneIn(8))
        held += " alt";
    return held;
}

std::string OnPicture(const window::Picture& picture, Chance& chance) {
    const std::string& name = picture.Name();
    if (name == "Image1")
        return "tool " + std::to_string(chance.Between(1, kTools));
    switch (chance.Below(6)) {
        case 0:
            return "hover " + name + " " + Place(picture, chance);
        case 1:
            return "drag " + name + " " + Place(picture, chance) + " " + Place(picture, chance) +
                   Held(chance, false);
        default:
            return "mouse " + name + " " + Place(picture, chance) + Held(chance, true);
    }
}

std::string Cell(const window::Grid& grid, Chance& chance) {
    return std::to_string(chance.Between(0, grid.Rows() - 1)) + " " +
           std::to_string(chance.Between(0, grid.Cols() - 1));
}

/// A cell that is in view without scrolling: between such cells a drag is one.
std::string CellInView(const window::Grid& grid, Chance& chance) {
    constexpr int kRows = 7;
    constexpr int kCols = 4;
    return std::to_string(chance.Between(0, std::min(grid.Rows() - 1, kRows))) + " " +
           std::to_string(chance.Between(0, std::min(grid.Cols() - 1, kCols)));
}

std::string OnGrid(const window::Grid& grid, Chance& chance) {
    const std::string& name = grid.Name();
    switch (chance.Below(7)) {
        case 0:
            return "cell " + name + " " + Cell(grid, chance);
        case 1:
            return "block " + name + " " + CellInView(grid, chance) + " " + CellInView(grid, chance);
        case 2:
            return "key " + name + " " + std::string(chance.Of(std::span<const std::string_view>(kKeys)));
        case 3:
            return "dblclick " + name + " " + Cell(grid, chance);
        default: {
            std::string pieces = TextFor(name, chance);
            for (int more = chance.Between(0, 3); more > 0; --more)
                pieces += "|" + TextFor(name, chance);
            return "fill " + name + " " + Cell(grid, chance) + " " + pieces;
        }
    }
}

std::string InBox(const window::TextControl& box, Chance& chance) {
    const std::string& name = box.Name();
    switch (chance.Below(8)) {
        case 0:
            return "type " + name + " " + TextFor(name, chance);
        case 1:
        case 2:
            return "key " + name + " " + std::string(chance.Of(std::span<const std::string_view>(kKeys)));
        case 3:
        case 4:
            return "key " + name + " Enter";
        default:
            return "set " + name + " " + TextFor(name, chance);
    }
}

std::string Rows(std::size_t count, bool several, Chance& chance) {
    std::string rows = std::to_string(chance.Below(count));
    while (several && chance.OneIn(2))
        rows += " " + std::to_string(chance.Below(count));
    return rows;
}

std::string OnList(const Control& control, std::size_t count, bool several, Chance& chance) {
    return count == 0 ? std::string() : "pick " + control.Name() + " " + Rows(count, several, chance);
}

/// Nothing for a control that no one acts on.
std::string On(const Control& control, Chance& chance) {
    if (const auto* picture = dynamic_cast<const window::Picture*>(&control))
        return OnPicture(*picture, chance);
    if (const auto* grid = dynamic_cast<const window::Grid*>(&control))
        return OnGrid(*grid, chance);
    if (const auto* box = dynamic_cast<const window::TextControl*>(&control))
        return InBox(*box, chance);
    if (const auto* combo = dynamic_cast<const window::ComboBox*>(&control))
        return OnList(control, combo->Items().size(), false, chance);
    if (const auto* list = dynamic_cast<const window::ListBox*>(&control))
        return OnList(control, list->Items().size(), list->multiple, chance);
    if (const auto* tabs = dynamic_cast<const window::TabStrip*>(&control))
        return OnList(control, tabs->Tabs().size(), false, chance);
    if (dynamic_cast<const window::UpDown*>(&control))
        return "spin " + control.Name() + " " + std::to_string(chance.Between(-1, 11));
    switch (control.Kind()) {
        case window::ControlKind::Button:
        case window::ControlKind::OptionButton:
        case window::ControlKind::CheckBox:
        case window::ControlKind::Label:
            return "press " + control.Name();
        default:
            return {};
    }
}

/// What no single control stands for.
std::string AroundTheWindow(const transcript::Driver& /*driver*/, Chance& chance) {
    switch (chance.Below(6)) {
        case 0:
            return "clipboard " + TextFor("gd", chance);
        case 1:
            return "routine " + std::to_string(chance.Between(1, kRoutines));
        case 2:
            return "hour " + std::to_string(chance.Between(1, kHours));
        default:
            return "tool " + std::to_string(chance.Between(1, kTools));
    }
}

/// What begins anew or leads away, and labels, which do little: pressed as often as anything else they would
/// let no problem grow.
bool IsSeldom(const Control& control) {
    constexpr std::string_view kNames[] = {"Image1",        "cmdTable(",    "cmdNewMruaProbl",
                                           "cmdEraseTable", "cmdEraseEqns", "cmdParts(7)",
                                           "cmdVMb(2)",     "cmdConfig(",   "cmdCloseForm2"};
    return control.Kind() == window::ControlKind::Label ||
           std::ranges::any_of(kNames,
                               [&](std::string_view name) { return control.Name().starts_with(name); });
}
constexpr std::size_t kSeldom = 8;

/// The work of a tool is done on its strip and in its table: a third of the acts falls on them.
const Control& Chosen(std::span<const Control* const> reachable, Chance& chance) {
    constexpr std::string_view kWorkplaces[] = {"picAccel",   "Gd2",        "txtVector",
                                                "txtSegm(1)", "txtBody(2)", "gd"};
    if (chance.OneIn(3)) {
        std::vector<const Control*> workplaces;
        for (const Control* control : reachable)
            if (std::ranges::find(kWorkplaces, control->Name()) != std::end(kWorkplaces))
                workplaces.push_back(control);
        if (!workplaces.empty())
            return *chance.Of(std::span<const Control* const>(workplaces));
    }
    return *chance.Of(reachable);
}

}  // namespace

std::string RandomAct(transcript::Driver& driver, Chance& chance) {
    if (chance.OneIn(25))
        return AroundTheWindow(driver, chance);
    std::vector<const Control*> reachable;
    for (const Control* control : driver.Program().Window().Controls())
        if (driver.IsReachable(*control))
            reachable.push_back(control);
    for (;;) {
        const Control& control = Chosen(reachable, chance);
        if (IsSeldom(control) && !chance.OneIn(kSeldom))
            continue;
        const std::string act = On(control, chance);
        if (!act.empty())
            return act;
    }
}

}  // namespace tavrelo::sessions
