#include "key_names.h"
#include "numeric/utf8.h"
#include "verbs.h"

namespace tavrelo::transcript {
namespace {

bool IsPressed(shell::ControlKind kind) {
    return kind == shell::ControlKind::Button || kind == shell::ControlKind::OptionButton ||
           kind == shell::ControlKind::CheckBox || kind == shell::ControlKind::Label;
}

bool TakesKeys(const shell::Control& control) {
    return dynamic_cast<const shell::TextControl*>(&control) || dynamic_cast<const shell::Grid*>(&control);
}

shell::Control& FindTyped(Session& session, std::string_view name) {
    shell::Control& control = session.Find(name);
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

bool TakesSeveral(const shell::Control& control) {
    const auto* list = dynamic_cast<const shell::ListBox*>(&control);
    return list && list->multiple;
}

/// How many rows or tabs a control has to pick from.
std::size_t ChoiceCount(const shell::Control& control) {
    if (const auto* combo = dynamic_cast<const shell::ComboBox*>(&control))
        return combo->Items().size();
    if (const auto* tabs = dynamic_cast<const shell::TabStrip*>(&control))
        return tabs->Tabs().size();
    if (const auto* list = dynamic_cast<const shell::ListBox*>(&control))
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
    shell::Control& control = session.Find(arguments.Word());
    if (!IsPressed(control.Kind()))
        Session::FailMisfit(control.Name());
    arguments.ExpectEnd();
    if (session.Reach(control))
        session.driver.Press(control);
}

void TypeCharacters(Session& session, shell::Control& control, std::string_view text) {
    for (const char32_t character : numeric::ToCodePoints(text))
        session.driver.Stroke(control, StrokeOf(character));
}

void Type(Session& session, Arguments& arguments) {
    shell::Control& control = FindTyped(session, arguments.Word());
    if (!session.Reach(control))
        return;
    session.driver.GiveFocus(control);
    TypeCharacters(session, control, arguments.Rest());
}

void PressKey(Session& session, Arguments& arguments) {
    shell::Control& control = FindTyped(session, arguments.Word());
    const shell::KeyStroke stroke = StrokeNamed(arguments.Word());
    arguments.ExpectEnd();
    if (!session.Reach(control))
        return;
    session.driver.GiveFocus(control);
    session.driver.Stroke(control, stroke);
}

void SetText(Session& session, Arguments& arguments) {
    auto& box = session.FindAs<shell::TextControl>(arguments.Word());
    if (!session.Reach(box))
        return;
    session.driver.GiveFocus(box);
    if (!box.Locked())
        session.driver.ReplaceText(box, std::string(arguments.Rest()));
}

void Pick(Session& session, Arguments& arguments) {
    shell::Control& control = session.Find(arguments.Word());
    const std::size_t count = ChoiceCount(control);
    const std::vector<int> indexes = ReadIndexes(arguments);
    if (indexes.size() != 1 && !TakesSeveral(control))
        throw ScriptError("exactly one index is wanted");
    if (!session.Reach(control))
        return;
    CheckIndexes(indexes, count);
    if (auto* combo = dynamic_cast<shell::ComboBox*>(&control))
        session.driver.Pick(*combo, indexes.front());
    else if (auto* tabs = dynamic_cast<shell::TabStrip*>(&control))
        session.driver.Pick(*tabs, indexes.front());
    else
        session.driver.Pick(dynamic_cast<shell::ListBox&>(control), indexes);
}

void Spin(Session& session, Arguments& arguments) {
    auto& control = session.FindAs<shell::UpDown>(arguments.Word());
    const int value = arguments.WholeNumber();
    arguments.ExpectEnd();
    if (session.Reach(control))
        session.driver.Spin(control, value);
}

}  // namespace tavrelo::transcript
