#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "text/rich_text.h"
#include "window/surface.h"

namespace tavrelo::window {

/// The title of the program's window and of nearly all its boxes.
inline constexpr std::string_view kProgramTitle = "Tavrelo";

enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };

/// Message and input boxes. The view shows real ones and waits; a transcript run records them.
class Boxes {
  public:
    virtual ~Boxes() = default;
    /// Lines of the text are parted by "\n".
    virtual Answer ShowMessage(std::string_view text, std::string_view title, Buttons buttons) = 0;
    /// Nothing when the box was cancelled.
    virtual std::optional<std::string> AskText(std::string_view prompt, std::string_view title) = 0;

    /// A message with OK under the program's title.
    void Tell(std::string_view text) { ShowMessage(text, kProgramTitle, Buttons::Ok); }
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual std::string Text() const = 0;
    virtual void SetText(std::string_view text) = 0;
    virtual void SetPicture(const Recorder& picture) = 0;
};

/// Margins of a printed page from the paper's edge, in twips.
struct PageMargins {
    int left, top, right, bottom;
};

class Printer {
  public:
    virtual ~Printer() = default;
    /// Prints the text on pages; false when the user gave it up in the print dialogue.
    virtual bool Print(const text::RichText& text, const PageMargins& margins) = 0;
};

/// The read-only files beside the program.
class Files {
  public:
    virtual ~Files() = default;
    /// The bytes of the file of that name (with or without a leading "\"); fails with FileNotFound.
    virtual std::string Read(std::string_view name) const = 0;
};

/// What the window model needs of the world around it.
struct Host {
    Boxes& boxes;
    Clipboard& clipboard;
    Printer& printer;
    Files& files;
};

}  // namespace tavrelo::window
