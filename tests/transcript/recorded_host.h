#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "window/host.h"
#include "window/pagination.h"

namespace tavrelo::transcript {

/// The boxes of a run: what opened, as the lines that a transcript shows, and the answers queued for them. A
/// driver with real boxes tells them here and asks here for the answer to give.
class BoxLog {
  public:
    void Queue(window::Answer answer) { m_answers.emplace_back(answer); }
    void QueueText(std::string text) { m_answers.emplace_back(std::move(text)); }
    /// Who answers a box for which nothing is queued: a choice, or a text (nothing: cancelled).
    struct Improviser {
        std::function<window::Answer(window::Buttons)> choice;
        std::function<std::optional<std::string>()> text;
    };
    void Improvise(Improviser improviser) { m_improviser = std::move(improviser); }

    /// Records a message box and takes its answer. A box with OK alone needs none. With no fitting answer
    /// queued the run has failed (see Failure) and the box is cancelled.
    window::Answer Message(std::string_view text, std::string_view title, window::Buttons buttons);
    /// Records an input box and takes its answer; nothing when it was cancelled.
    std::optional<std::string> Input(std::string_view prompt, std::string_view title);

    /// The lines of the boxes that opened since the last call.
    std::vector<std::string> TakeLines();
    /// Why the run cannot go on; empty while all is well.
    const std::string& Failure() const { return m_failure; }

  private:
    using QueuedAnswer = std::variant<window::Answer, std::string>;
    void Show(const std::string& heading, std::string_view text);
    std::optional<QueuedAnswer> NextAnswer(const std::string& heading);
    void Fail(std::string reason);

    Improviser m_improviser;

    std::deque<QueuedAnswer> m_answers;
    std::vector<std::string> m_lines;
    std::string m_failure;
};

class RecordedBoxes : public window::Boxes {
  public:
    explicit RecordedBoxes(BoxLog& log) : m_log(log) {}
    window::Answer ShowMessage(std::string_view text, std::string_view title,
                               window::Buttons buttons) override;
    std::optional<std::string> AskText(std::string_view prompt, std::string_view title) override;

  private:
    BoxLog& m_log;
};

/// A clipboard of the run's own.
class RecordedClipboard : public window::Clipboard {
  public:
    std::string Text() const override { return m_text; }
    void SetText(std::string_view text) override;
    void SetPicture(const window::Recorder& picture) override;

    // Size of the picture held, pixels at 100 %; 0 when it is a text.
    int PictureWidth() const { return m_width; }
    int PictureHeight() const { return m_height; }

  private:
    std::string m_text;
    int m_width = 0;
    int m_height = 0;
};

/// Keeps what was printed, page by page, as lines on A4 paper.
class RecordedPrinter : public window::Printer {
  public:
    bool Print(const text::RichText& text, const window::PageMargins& margins) override;
    const std::vector<window::PrintedPage>& Pages() const { return m_pages; }

  private:
    std::vector<window::PrintedPage> m_pages;
};

/// The files beside the program, from a folder until a transcript says what stands in it.
class RecordedFiles : public window::Files {
  public:
    explicit RecordedFiles(std::filesystem::path folder) : m_folder(std::move(folder)) {}
    std::string Read(std::string_view name) const override;

    /// The folder is empty from here on.
    void RemoveAll();
    /// A file of that name stands in it; bytes as a program would read them.
    void Put(std::string_view name, std::string bytes);

  private:
    std::filesystem::path m_folder;
    bool m_folder_is_empty = false;
    std::map<std::string, std::string, std::less<>> m_files;
};

/// All that a program needs of the world around it, recorded.
struct RecordedHost {
    /// The files are those beside the built program.
    RecordedHost();
    RecordedHost(const RecordedHost&) = delete;
    RecordedHost& operator=(const RecordedHost&) = delete;

    window::Host AsHost() { return {boxes, clipboard, printer, files}; }

    BoxLog box_log;
    RecordedBoxes boxes{box_log};
    RecordedClipboard clipboard;
    RecordedPrinter printer;
    RecordedFiles files;
};

}  // namespace tavrelo::transcript
