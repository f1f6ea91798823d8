#include "recorded_host.h"

#include <cmath>
#include <fstream>
#include <iterator>
#include <utility>

#include "numeric/checked.h"
#include "text_lines.h"

namespace tavrelo::transcript {
namespace {

std::string_view ButtonNames(window::Buttons buttons) {
    switch (buttons) {
        case window::Buttons::OkCancel:
            return "OK Cancel";
        case window::Buttons::YesNo:
            return "Yes No";
        case window::Buttons::Ok:
            break;
    }
    return "OK";
}

bool HasAnswer(window::Buttons buttons, window::Answer answer) {
    const bool asks_yes_or_no = buttons == window::Buttons::YesNo;
    const bool says_yes_or_no = answer == window::Answer::Yes || answer == window::Answer::No;
    return asks_yes_or_no == says_yes_or_no;
}

/// What a box answers when it is left without a choice.
window::Answer Refusal(window::Buttons buttons) {
    return buttons == window::Buttons::YesNo ? window::Answer::No : window::Answer::Cancel;
}

std::string Quoted(std::string_view text) { return "\"" + std::string(text) + "\""; }

/// A file's name without the leading backslash or slash that the program may put in front.
std::string_view BareName(std::string_view name) {
    if (name.starts_with('\\') || name.starts_with('/'))
        name.remove_prefix(1);
    return name;
}

int Rounded(double pixels) { return static_cast<int>(std::lround(pixels)); }

}  // namespace

window::Answer BoxLog::Message(std::string_view text, std::string_view title, window::Buttons buttons) {
    const std::string heading = "box " + Quoted(title) + " " + std::string(ButtonNames(buttons));
    Show(heading, text);
    if (buttons == window::Buttons::Ok)
        return window::Answer::Ok;
    if (m_answers.empty() && m_improviser.choice)
        return m_improviser.choice(buttons);
    const auto queued = NextAnswer(heading);
    if (!queued)
        return Refusal(buttons);
    const auto* answer = std::get_if<window::Answer>(&*queued);
    if (answer && HasAnswer(buttons, *answer))
        return *answer;
    Fail("the queued answer does not fit " + heading);
    return Refusal(buttons);
}

std::optional<std::string> BoxLog::Input(std::string_view prompt, std::string_view title) {
    const std::string heading = "input " + Quoted(title);
    Show(heading, prompt);
    if (m_answers.empty() && m_improviser.text)
        return m_improviser.text();
    const auto queued = NextAnswer(heading);
    if (!queued)
        return std::nullopt;
    if (const auto* text = std::get_if<std::string>(&*queued))
        return *text;
    const auto answer = std::get<window::Answer>(*queued);
    if (answer == window::Answer::Ok)
        return std::string();
    if (answer != window::Answer::Cancel)
        Fail("the queued answer does not fit " + heading);
    return std::nullopt;
}

void BoxLog::Show(const std::string& heading, std::string_view text) {
    m_lines.push_back(heading);
    for (const std::string& line : TextLines(text))
        m_lines.push_back("| " + line);
}

std::optional<BoxLog::QueuedAnswer> BoxLog::NextAnswer(const std::string& heading) {
    if (m_answers.empty()) {
        Fail("no answer is queued for " + heading);
        return std::nullopt;
    }
    QueuedAnswer answer = std::move(m_answers.front());
    m_answers.pop_front();
    return answer;
}

void BoxLog::Fail(std::string reason) {
    if (m_failure.empty())
        m_failure = std::move(reason);
}

std::vector<std::string> BoxLog::TakeLines() { return std::exchange(m_lines, {}); }

window::Answer RecordedBoxes::ShowMessage(std::string_view text, std::string_view title,
                                          window::Buttons buttons) {
    return m_log.Message(text, title, buttons);
}

std::optional<std::string> RecordedBoxes::AskText(std::string_view prompt, std::string_view title) {
    return m_log.Input(prompt, title);
}

void RecordedClipboard::SetText(std::string_view text) {
    m_text = text;
    m_width = m_height = 0;
}

void RecordedClipboard::SetPicture(const window::Recorder& picture) {
    m_text.clear();
    m_width = Rounded(picture.Width());
    m_height = Rounded(picture.Height());
}

bool RecordedPrinter::Print(const text::RichText& text, const window::PageMargins& margins) {
    for (window::PrintedPage& page : window::Paginate(text, window::kA4Paper, margins))
        m_pages.push_back(std::move(page));
    return true;
}

std::string RecordedFiles::Read(std::string_view name) const {
    const std::string_view bare_name = BareName(name);
    if (const auto found = m_files.find(bare_name); found != m_files.end())
        return found->second;
    std::ifstream file;
    if (!m_folder_is_empty)
        file.open(m_folder / bare_name, std::ios::binary);
    if (!file.is_open())
        throw numeric::RuntimeFailure(numeric::FailureCode::FileNotFound, std::string(name));
    return {std::istreambuf_iterator<char>(file), {}};
}

void RecordedFiles::RemoveAll() {
    m_folder_is_empty = true;
    m_files.clear();
}

void RecordedFiles::Put(std::string_view name, std::string bytes) {
    m_files.insert_or_assign(std::string(BareName(name)), std::move(bytes));
}

RecordedHost::RecordedHost() : files(TAVRELO_PROGRAM_FOLDER) {}

}  // namespace tavrelo::transcript
