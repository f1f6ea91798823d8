#include "window/form1.h"

#include <charconv>
#include <utility>

#include "text/refusal.h"

namespace tavrelo::window {
namespace {

struct ArrayName {
    std::string_view base;
    int index;
};

/// "cmdParts(5)" as base and index; index -1 for a name without brackets.
ArrayName SplitName(std::string_view name) {
    const std::size_t open = name.find('(');
    if (open == std::string_view::npos)
        return {name, -1};
    int index = 0;
    std::from_chars(name.data() + open + 1, name.data() + name.size(), index);
    return {name.substr(0, open), index};
}

std::unique_ptr<Control> NewControl(Control::Identity identity, const ControlLinks& links) {
    switch (identity.kind) {
        case ControlKind::Window:
            return std::make_unique<Window>(std::move(identity), links);
        case ControlKind::Frame:
            return std::make_unique<Frame>(std::move(identity), links);
        case ControlKind::Label:
            return std::make_unique<Label>(std::move(identity), links);
        case ControlKind::Button:
            return std::make_unique<Button>(std::move(identity), links);
        case ControlKind::OptionButton:
            return std::make_unique<OptionButton>(std::move(identity), links);
        case ControlKind::CheckBox:
            return std::make_unique<CheckBox>(std::move(identity), links);
        case ControlKind::TextBox:
            return std::make_unique<TextBox>(std::move(identity), links);
        case ControlKind::RichTextBox:
            return std::make_unique<RichTextBox>(std::move(identity), links);
        case ControlKind::Grid:
            return std::make_unique<Grid>(std::move(identity), links);
        case ControlKind::Picture:
            return std::make_unique<Picture>(std::move(identity), links);
        case ControlKind::ComboBox:
            return std::make_unique<ComboBox>(std::move(identity), links);
        case ControlKind::ListBox:
            return std::make_unique<ListBox>(std::move(identity), links);
        case ControlKind::TabStrip:
            return std::make_unique<TabStrip>(std::move(identity), links);
        case ControlKind::UpDown:
            return std::make_unique<UpDown>(std::move(identity), links);
        case ControlKind::Shape:
            break;
    }
    return std::make_unique<Shape>(std::move(identity), links);
}

/// A box with a caret starts with its caption as its text.
void ApplyFlags(Control& control, int flags) {
    control.SetVisible(!(flags & kHidden));
    control.SetEnabled(!(flags & kDisabled));
    if (auto* text = dynamic_cast<TextControl*>(&control)) {
        text->SetText(control.Caption());
        text->SetLocked(flags & kLocked);
    }
    if (auto* list = dynamic_cast<ListBox*>(&control))
        list->multiple = flags & kMultiple;
    if (auto* picture = dynamic_cast<Picture*>(&control)) {
        if (flags & kTwips)
            picture->SetUnits(MouseUnits::Twips);
        if (flags & kUpward)
            picture->SetUnits(MouseUnits::PixelsUp);
        picture->FitCanvas();
    }
}

/// A box that loses the focus keeps its caret and lets its selection go.
void DropSelection(Control* control) {
    auto* box = dynamic_cast<TextControl*>(control);
    if (box && box->Selection().length > 0)
        box->Select({box->Selection().start + box->Selection().length, 0});
}

}  // namespace

Form1::Form1(const Host& host)
    : boxes(host.boxes), clipboard(host.clipboard), printer(host.printer), files(host.files) {
    MakeControls();
    LinkOptions();
}

void Form1::MakeControls() {
    m_links.changed = [this](Control& control, Change change) {
        if (m_focus && !m_focus->IsUsable())
            DropSelection(std::exchange(m_focus, nullptr));
        if (OnChange)
            OnChange(control, change);
    };
    m_links.handler_failed = [this] { boxes.Tell(text::kCommandFailed); };
    for (const ControlRow& row : ControlTable())
        MakeControl(row);
    for (const ControlTooltip& row : TooltipTable())
        MustFind(row.name)->SetTooltip(std::string(row.tooltip));
}

void Form1::MakeControl(const ControlRow& row) {
    Control* parent = row.parent.empty() ? nullptr : MustFind(row.parent);
    auto control = NewControl({std::string(row.name), row.kind, parent, row.page, row.flags}, m_links);
    control->SetBounds(row.bounds);
    control->SetCaption(std::string(row.caption));
    ApplyFlags(*control, row.flags);
    m_order.push_back(control.get());
    m_controls.emplace(row.name, std::move(control));
}

Control* Form1::Find(std::string_view name) const {
    const auto found = m_controls.find(name);
    return found == m_controls.end() ? nullptr : found->second.get();
}

Control* Form1::MustFind(std::string_view name) const {
    Control* control = Find(name);
    if (!control)
        FailOn(name);
    return control;
}

void Form1::FailOn(std::string_view name) {
    throw numeric::RuntimeFailure(numeric::FailureCode::Internal, std::string(name));
}

std::vector<std::pair<int, Control*>> Form1::FindArray(std::string_view name) const {
    std::vector<std::pair<int, Control*>> items;
    for (Control* control : m_order) {
        const ArrayName split = SplitName(control->Name());
        if (split.base == name && split.index >= 0)
            items.emplace_back(split.index, control);
    }
    return items;
}

void Form1::LinkOptions() {
    for (Control* control : m_order)
        if (auto* option = dynamic_cast<OptionButton*>(control))
            for (const auto& [index, other] : FindArray(SplitName(option->Name()).base))
                option->group.push_back(dynamic_cast<OptionButton*>(other));
}

void Form1::Arrange(Arrangement arrangement) {
    // The arrangement with the clock only tells what differs from the calculator's.
    if (arrangement == Arrangement::CalculatorWithClock)
        Arrange(Arrangement::Calculator);
    for (const ArrangedBounds& row : ArrangementTable()) {
        if (row.arrangement != arrangement)
            continue;
        Control* control = MustFind(row.name);
        control->SetBounds(row.bounds);
        if (auto* picture = dynamic_cast<Picture*>(control))
            picture->FitCanvas();
    }
    FillPages();
    if (std::exchange(m_arrangement, arrangement) != arrangement)
        TellNames();
}

void Form1::TellNames() {
    for (const ControlName& row : NameTable())
        if (row.arrangement && OnChange)
            OnChange(*MustFind(row.name), Change::State);
}

void Form1::FillPages() {
    constexpr int kBorder = 2;
    constexpr int kTabHeight = 24;
    for (const ControlRow& row : ControlTable()) {
        if (!(row.flags & kFilling))
            continue;
        const Rect& strip = MustFind(row.parent)->Bounds();
        MustFind(row.name)->SetBounds(
            {kBorder, kTabHeight, strip.width - 2 * kBorder, strip.height - kTabHeight - kBorder});
    }
}

void Form1::SetFocus(Control& control) {
    if (!control.IsUsable() || m_focus == &control)
        return;
    MoveFocus(control);
    if (OnChange)
        OnChange(control, Change::Focus);
}

void Form1::UserFocused(Control& control) {
    try {
        MoveFocus(control);
    } catch (...) {
        m_links.handler_failed();
    }
}

void Form1::MoveFocus(Control& control) {
    if (m_focus == &control)
        return;
    auto* left = dynamic_cast<TextControl*>(m_focus);
    DropSelection(m_focus);
    m_focus = &control;
    if (left && left->OnLostFocus)
        left->OnLostFocus();
    auto* entered = dynamic_cast<TextControl*>(&control);
    if (entered && entered->OnGotFocus)
        entered->OnGotFocus();
}

void Form1::Announce(std::string_view sentence) const {
    if (OnAnnounce && !sentence.empty())
        OnAnnounce(sentence);
}

void Form1::SetPointer(int shape) {
    m_pointer = shape;
    if (OnChange)
        OnChange(Main(), Change::State);
}

void Form1::End() {
    if (m_ended)
        return;
    m_ended = true;
    Dialog().SetVisible(false);
    Main().SetVisible(false);
    if (OnEnd)
        OnEnd();
}

}  // namespace tavrelo::window
