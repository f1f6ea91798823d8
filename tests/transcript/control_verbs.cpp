#include "key_names.h"
#include "text/utf8.h"
#include "verbs.h"

namespace tavrelo::transcript {
namespace {

bool IsPressed(window::ControlKind kind) {
    return kind == window::ControlKind::Button || kind == window::ControlKind::OptionButton ||
           kind == window::ControlKind::CheckBox || kind == window::ControlKind::Label;
}

bool TakesKeys(const window::Control& control) {
    return dynamic_cast<const window::TextControl*>(&control) || dynamic_cast<const window::Grid*>(&control);
}

window::Control& FindTyped(Session& session, std::string_view name) {
    window::Control& control = session.Find(name);
    if (!TakesKeys(control))
        Session::FailMisfit(name);
    return control;
}

std::vector<int> ReadIndexes(Arguments& arguments) {
    std::vector<int> indexes;
    while (!arguments.AtEnd())
        indexes.push_back(arguments.WholeNumber());
    return indexes;
}

bool TakesSeveral(const window::Control& control) {
    const auto* list = dynamic_cast<const window::ListBox*>(&control);
    return list && list->multiple;
}

/// How many rows or tabs a control has to pick from.
std::size_t ChoiceCount(const window::Control& control) {
    if (const auto* combo = dynamic_cast<const window::ComboBox*>(&control))
        return combo->Items().size();
    if (const auto* tabs = dynamic_cast<const window::TabStrip*>(&control))
        return tabs->Tabs().size();
    if (const auto* list = dynamic_cast<const window::ListBox*>(&control))
        return list->Items().size();
    Session::FailMisfit(control.Name());
}

void CheckIndexes(const std::vector<int>& indexes, std::size_t count) {
    for (const int index : indexes)
        if (index < 0 || static_cast<std::size_t>(index) >= count)
            throw ScriptError("there is no row " + std::to_string(index));
}

}  // namespace

void Press(Session& session, Arguments& arguments) {
    window::Control& control = session.Find(arguments.Word());
    if (!IsPressed(control.Kind()))
        Session::FailMisfit(control.Name());
    arguments.ExpectEnd();
    if (session.Reach(control))
        session.driver.Press(control);
}

void TypeCharacters(Session& session, window::Control& control, std::string_view text) {
    for (const char32_t character : text::ToCodePoints(text))
        session.driver.Stroke(control, StrokeOf(character));
}

void Type(Session& session, Arguments& arguments) {
    window::Control& control = FindTyped(session, arguments.Word());
    if (!session.Reach(control))
        return;
    session.driver.GiveFocus(control);
    TypeCharacters(session, control, arguments.Rest());
}

void PressKey(Session& session, Arguments& arguments) {
    window::Control& control = FindTyped(session, arguments.Word());
    const window::KeyStroke stroke = StrokeNamed(arguments.Word());
    arguments.ExpectEnd();
    if (!session.Reach(control))
        return;
    session.driver.GiveFocus(control);
    session.driver.Stroke(control, stroke);
}

void SetText(Session& session, Arguments& arguments) {
    auto& box = session.FindAs<window::TextControl>(arguments.Word());
    if (!session.Reach(box))
        return;
    session.driver.GiveFocus(box);
    if (!box.Locked())
        session.driver.ReplaceText(box, std::string(arguments.Rest()));
}

void Pick(Session& session, Arguments& arguments) {
    window::Control& control = session.Find(arguments.Word());
    const std::size_t count = ChoiceCount(control);
    const std::vector<int> indexes = ReadIndexes(arguments);
    if (indexes.size() != 1 && !TakesSeveral(control))
        throw ScriptError("exactly one index is wanted");
    if (!session.Reach(control))
        return;
    CheckIndexes(indexes, count);
    if (auto* combo = dynamic_cast<window::ComboBox*>(&control))
        session.driver.Pick(*combo, indexes.front());
    else if (auto* tabs = dynamic_cast<window::TabStrip*>(&control))
        session.driver.Pick(*tabs, indexes.front());
    else
        session.driver.Pick(dynamic_cast<window::ListBox&>(control), indexes);
}

void Spin(Session& session, Arguments& arguments) {
    auto& control = session.FindAs<window::UpDown>(arguments.Word());
    const int value = arguments.WholeNumber();
    arguments.ExpectEnd();
    if (session.Reach(control))
        session.driver.Spin(control, value);
}

}  // namespace tavrelo::transcript
