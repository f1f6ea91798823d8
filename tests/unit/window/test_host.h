#pragma once

#include <string>
#include <string_view>

#include "numeric/checked.h"
#include "window/form1.h"

namespace tavrelo::window {

/// A world without printer and files, for tests of the window model alone: its boxes give the answers set for
/// them and keep what they showed last.
struct TestHost : Boxes, Clipboard, Printer, Files {
    Answer ShowMessage(std::string_view text, std::string_view title, Buttons) override {
        ++messages;
        last_message = text;
        last_title = title;
        return answer;
    }
    std::optional<std::string> AskText(std::string_view prompt, std::string_view) override {
        last_prompt = prompt;
        return typed_answer;
    }
    std::string Text() const override { return clipboard_text; }
    void SetText(std::string_view text) override { clipboard_text = text; }
    void SetPicture(const Recorder&) override {}
    bool Print(const text::RichText&, const PageMargins&) override { return false; }
    std::string Read(std::string_view name) const override {
        throw numeric::RuntimeFailure(numeric::FailureCode::FileNotFound, std::string(name));
    }

    Answer answer = Answer::Ok;
    std::optional<std::string> typed_answer;
    std::string clipboard_text;

    int messages = 0;
    std::string last_message;
    std::string last_title;
    std::string last_prompt;
    Host host{*this, *this, *this, *this};
};

}  // namespace tavrelo::window
