#include "window/controls.h"

#include <algorithm>
#include <utility>

#include "text/utf8.h"

namespace tavrelo::window {
namespace {

void Fire(const Handler<void()>& event) {
    if (event)
        event();
}

/// Each run of line ends a blank, none around the whole.
std::string OnOneLine(std::string_view text) {
    std::string line;
    bool at_line_end = false;
    for (const char character : text) {
        const bool was_at_line_end = at_line_end;
        at_line_end = character == '\r' || character == '\n';
        if (!at_line_end)
            line += character;
        else if (!was_at_line_end)
            line += ' ';
    }
    return text::Trim(line);
}

struct EditedText {
    std::u32string characters;
    std::size_t caret;
};

/// Takes the characters that are too many away in front of the caret, and behind it when these are not
/// enough.
void Fit(EditedText& text) {
    if (text.characters.size() <= kMostCharacters)
        return;
    const std::size_t excess = std::min(text.characters.size() - kMostCharacters, text.caret);
    text.caret -= excess;
    text.characters.erase(text.caret, excess);
    text.characters.resize(std::min(text.characters.size(), kMostCharacters));
}

}  // namespace

void Window::UserClose() {
    FireForUser([this] { Fire(OnClose); });
}

void Label::UserClick() {
    FireForUser([this] { Fire(OnClick); });
}

void Button::UserClick() {
    FireForUser([this] { Fire(OnClick); });
}

void OptionButton::Choose() {
    for (OptionButton* other : group)
        if (other != this)
            other->Uncheck();
    Set(m_checked, true);
}

void OptionButton::UserClick() {
    Choose();
    FireForUser([this] { Fire(OnClick); });
}

void CheckBox::UserClick() {
    SetChecked(!m_checked);
    FireForUser([this] { Fire(OnClick); });
}

void TextControl::SetText(std::string text) {
    if (text.size() > kMostCharacters)
        text = text::ToUtf8(text::ToCodePoints(text).substr(0, kMostCharacters));
    StoreText(std::move(text));
    m_selection = {Length(), 0};
    Notify(Change::Content);
}

void TextControl::SetTextAndTell(std::string text) {
    SetText(std::move(text));
    Fire(OnChange);
}

void TextControl::Insert(std::string_view text) {
    const std::u32string inserted = text::ToCodePoints(text);
    EditedText edited{text::ToCodePoints(Text()), m_selection.start + inserted.size()};
    edited.characters.replace(m_selection.start, m_selection.length, inserted);
    Fit(edited);
    SetText(text::ToUtf8(edited.characters));
    Select({edited.caret, 0});
}

TextSelection TextControl::Clipped(TextSelection selection) const {
    const std::size_t length = Length();
    selection.start = std::min(selection.start, length);
    selection.length = std::min(selection.length, length - selection.start);
    return selection;
}

void TextControl::Select(TextSelection selection) { Set(m_selection, Clipped(selection), Change::Selection); }

void TextControl::SelectAll() { Select({0, Length()}); }

void TextControl::PutCaretAtEnd() { Select({Length(), 0}); }

std::size_t TextControl::Length() const { return text::CharacterCount(Text()); }

bool TextControl::UserKeyDown(const KeyStroke& stroke) {
    bool consumed = false;
    FireForUser([&] { consumed = OnKeyDown && OnKeyDown(stroke); });
    return consumed;
}

bool TextControl::UserKeyPress(char32_t character) {
    bool consumed = false;
    FireForUser([&] { consumed = OnKeyPress && OnKeyPress(character); });
    return consumed;
}

void TextControl::UserKeyUp(const KeyStroke& stroke) {
    FireForUser([&] {
        if (OnKeyUp)
            OnKeyUp(stroke);
    });
}

void TextControl::UserEdited(std::string text, TextSelection selection) {
    const bool has_lines = text.find_first_of("\r\n") != std::string::npos;
    if (has_lines) {
        text = OnOneLine(text);
        selection = {text::CharacterCount(text), 0};
    }
    const bool is_long = text.size() > kMostCharacters && text::CharacterCount(text) > kMostCharacters;
    if (is_long) {
        EditedText edited{text::ToCodePoints(text), selection.start + selection.length};
        Fit(edited);
        text = text::ToUtf8(edited.characters);
        selection = {edited.caret, 0};
    }
    if (text == Text()) {
        if (has_lines || is_long)
            Notify(Change::Content);  // the view shows what was left out
        Select(selection);
        return;
    }
    StoreText(std::move(text));
    m_selection = Clipped(selection);
    Notify(Change::Content);
    FireForUser([this] { Fire(OnChange); });
}

void RichTextBox::SetContent(text::RichText content) {
    m_content = std::move(content);
    m_text = m_content.PlainText();
    Notify(Change::Content);
    Select({0, 0});
}

void RichTextBox::AppendContent(const text::RichText& content) {
    const ChangeBatch batch(*this);
    m_content.Append(content);
    m_text += content.PlainText();
    Notify(Change::Content);
    PutCaretAtEnd();
}

void RichTextBox::StoreText(std::string text) {
    constexpr double kTypedSize = 10;
    m_content = text::PlainRichText(text, text::kTextFont, kTypedSize);
    m_text = std::move(text);
}

Picture::Picture(Identity identity, const ControlLinks& links)
    : Control(std::move(identity), links), m_canvas(0, 0) {
    m_canvas.OnChange = [this] { Notify(Change::Content); };
}

void Picture::FitCanvas() { m_canvas.Resize(Bounds().width, Bounds().height); }

Point Picture::ToOwnUnits(Point pixels) const {
    switch (m_units) {
        case MouseUnits::Twips:
            return {pixels.x * kTwipsPerPixel, pixels.y * kTwipsPerPixel};
        case MouseUnits::PixelsUp:
            return {pixels.x, Bounds().height - pixels.y};
        case MouseUnits::Pixels:
            break;
    }
    return pixels;
}

Point Picture::ToPixels(Point own) const {
    switch (m_units) {
        case MouseUnits::Twips:
            return {own.x / kTwipsPerPixel, own.y / kTwipsPerPixel};
        case MouseUnits::PixelsUp:
            return {own.x, Bounds().height - own.y};
        case MouseUnits::Pixels:
            break;
    }
    return own;
}

void Picture::UserMouseDown(const MouseStroke& stroke) {
    m_cell_place.reset();
    KeepPlace(ToPixels({stroke.x, stroke.y}));
    FireForUser([&] {
        if (OnMouseDown)
            OnMouseDown(stroke);
    });
}

void Picture::UserMouseMove(const MouseStroke& stroke) {
    FireForUser([&] {
        if (OnMouseMove)
            OnMouseMove(stroke);
    });
}

void Picture::UserMouseUp(const MouseStroke& stroke) {
    FireForUser([&] {
        if (OnMouseUp)
            OnMouseUp(stroke);
    });
}

std::string Picture::Description() const {
    std::string words = m_canvas.Words();
    return words.empty() ? m_canvas.Invitation() : words;
}

std::vector<PictureCell> Picture::Cells() const {
    return ListCells ? ListCells() : std::vector<PictureCell>();
}

int Picture::CurrentCell(std::span<const PictureCell> cells) const {
    if (m_cell_place)
        return NearestCell(cells, *m_cell_place);
    const auto checked = std::ranges::find_if(
        cells, [](const PictureCell& cell) { return cell.checked && cell.role == CellRole::Choice; });
    if (checked != cells.end() && checked->enabled)
        return static_cast<int>(checked - cells.begin());
    return CellBeside(cells, kNoCell, Key::Home);
}

void Picture::KeepPlace(Point pixels) {
    const auto cells = Cells();
    const int cell = CellUnder(cells, pixels);
    if (cell == kNoCell || !cells[static_cast<std::size_t>(cell)].enabled)
        return;
    m_cell_place = MiddleOf(cells[static_cast<std::size_t>(cell)].bounds);
    Notify(Change::Selection);
}

bool Picture::UserMoveCell(Key key) {
    const auto cells = Cells();
    const int next = CellBeside(cells, CurrentCell(cells), key);
    if (next == kNoCell)
        return false;
    KeepPlace(MiddleOf(cells[static_cast<std::size_t>(next)].bounds));
    return true;
}

void Picture::UserGoToCell(int cell) {
    const auto cells = Cells();
    if (cell >= 0 && cell < static_cast<int>(cells.size()))
        KeepPlace(MiddleOf(cells[static_cast<std::size_t>(cell)].bounds));
}

MouseStroke Picture::StrokeAt(Point pixels, const CellPress& press) const {
    const Point own = ToOwnUnits(pixels);
    return {own.x, own.y, press.button, press.shift, press.ctrl, press.alt};
}

void Picture::UserChooseCell(const CellPress& press) {
    const auto cells = Cells();
    const int current = CurrentCell(cells);
    if (current == kNoCell)
        return;
    const PictureCell& cell = cells[static_cast<std::size_t>(current)];
    MouseStroke stroke = StrokeAt(MiddleOf(cell.bounds), press);
    if (m_held_with) {
        stroke.button = *std::exchange(m_held_with, std::nullopt);
        UserMouseUp(stroke);
        Notify(Change::Selection);
        return;
    }
    if (cell.drags_with == press.button)
        m_held_with = press.button;
    UserMouseDown(stroke);
    if (!m_held_with)
        UserMouseUp(stroke);
}

void Picture::UserLetGo() {
    if (!m_held_with)
        return;
    constexpr Point kOutside{-1, -1};
    UserMouseUp(StrokeAt(kOutside, {*std::exchange(m_held_with, std::nullopt)}));
    Notify(Change::Selection);
}

void ComboBox::SetItems(std::vector<std::string> items) {
    m_items = std::move(items);
    m_index = -1;
    Notify(Change::Content);
}

void ComboBox::UserPick(int index) {
    SetIndex(index);
    FireForUser([this] { Fire(OnClick); });
}

void ListBox::SetItems(std::vector<std::string> items) {
    m_items = std::move(items);
    m_chosen.assign(m_items.size(), false);
    Notify(Change::Content);
}

void ListBox::AddItem(std::string item) {
    m_items.push_back(std::move(item));
    m_chosen.push_back(false);
    Notify(Change::Content);
}

void ListBox::RemoveItem(int row) {
    m_items.erase(m_items.begin() + row);
    m_chosen.erase(m_chosen.begin() + row);
    Notify(Change::Content);
}

bool ListBox::IsChosen(int row) const {
    const auto index = static_cast<std::size_t>(row);
    return row >= 0 && index < m_chosen.size() && m_chosen[index];
}

void ListBox::SetChosen(int row, bool chosen) {
    if (row < 0 || row >= static_cast<int>(m_chosen.size()) || IsChosen(row) == chosen)
        return;
    m_chosen[static_cast<std::size_t>(row)] = chosen;
    Notify(Change::Selection);
}

void ListBox::UserPick(const std::vector<int>& rows) {
    for (int row = 0; row < static_cast<int>(m_chosen.size()); ++row)
        SetChosen(row, std::ranges::find(rows, row) != rows.end());
    FireForUser([this] { Fire(OnClick); });
}

void TabStrip::UserPick(int tab) {
    const int previous = m_current;
    SetCurrent(tab);
    FireForUser([&] {
        if (OnClick)
            OnClick(previous);
    });
}

void UpDown::SetValue(int value) {
    Set(m_value, std::clamp(value, m_minimum, m_maximum), Change::Selection);
    if (buddy)
        buddy->SetText(std::to_string(m_value));
}

void UpDown::SetRange(int minimum, int maximum) {
    m_minimum = minimum;
    m_maximum = maximum;
    SetValue(m_value);
}

void UpDown::UserSpin(int value) {
    SetValue(value);
    FireForUser([this] { Fire(OnChange); });
}

}  // namespace tavrelo::window
