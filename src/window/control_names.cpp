#include "window/control_names.h"

#include <algorithm>

namespace tavrelo::window {
namespace {

constexpr std::string_view kInUse = ", en uso";  // an underlined caption
constexpr std::string_view kDash = "--";
constexpr std::string_view kEndMarks = ":=";

/// The words of a caption. A dash between words becomes a colon behind the word before it.
std::vector<std::string> WordsOf(std::string_view caption) {
    std::vector<std::string> words;
    while (!caption.empty()) {
        const std::size_t end = std::min(caption.find(' '), caption.size());
        const std::string_view word = caption.substr(0, end);
        if (word == kDash && !words.empty())
            words.back() += ':';
        else if (!word.empty())
            words.emplace_back(word);
        caption.remove_prefix(std::min(end + 1, caption.size()));
    }
    return words;
}

std::string Joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words)
        text.append(text.empty() ? "" : " ").append(word);
    return text;
}

std::string WithoutEndMarks(std::string text) {
    const std::size_t last = text.find_last_not_of(std::string(kEndMarks) + " ");
    text.erase(last == std::string::npos ? 0 : last + 1);
    return text;
}

/// The piece of a caption that a name takes up; empty when there is none.
std::string PieceOf(const std::string& caption, int word) {
    const std::vector<std::string> words = WordsOf(caption);
    if (word == ControlName::kWholeCaption)
        return WithoutEndMarks(Joined(words));
    const auto index = static_cast<std::size_t>(word) - 1;
    return index < words.size() ? words[index] : std::string();
}

/// The name that a row gives; empty while its condition is not met.
std::string NameBy(const ControlName& row, const Form1& form, const Control& control) {
    if (row.arrangement && row.arrangement != form.CurrentArrangement())
        return {};
    if (!row.caption.empty() && row.caption != control.Caption())
        return {};
    if (row.label.empty())
        return std::string(row.words);
    const auto& label = form.Get<Control>(row.label);
    const std::string piece = PieceOf(label.Caption(), row.word);
    if (piece.empty())
        return {};
    const bool is_in_use = label.Underlined() && &label != &control;
    return std::string(row.words) + ' ' + piece + std::string(is_in_use ? kInUse : "");
}

}  // namespace

std::string AccessibleName(const Form1& form, const Control& control) {
    std::string name;
    for (const ControlName& row : NameTable())
        if (row.name == control.Name() && name.empty())
            name = NameBy(row, form, control);
    if (name.empty())
        name = Joined(WordsOf(control.Caption()));
    return control.Underlined() ? name + std::string(kInUse) : name;
}

std::vector<Control*> NamedAfter(const Form1& form, const Control& label) {
    std::vector<Control*> named;
    for (const ControlName& row : NameTable())
        if (row.label == label.Name() && row.name != label.Name())
            named.push_back(form.Find(row.name));
    return named;
}

}  // namespace tavrelo::window
