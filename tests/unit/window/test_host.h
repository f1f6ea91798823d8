#pragma once

#include <string>
#include <string_view>

#include "numeric/checked.h"
#include "window/form1.h"

namespace tavrelo::window {

/// A world without boxes, printer and files, for tests of the window model alone.
struct TestHost : Boxes, Clipboard, Printer, Files {
    Answer ShowMessage(std::string_view text, std::string_view, Buttons) override {
        last_message = text;
        return Answer::Ok;
    }
    std::optional<std::string> AskText(std::string_view, std::string_view) override { return std::nullopt; }
    std::string Text() const override { return {}; }
    void SetText(std::string_view) override {}
    void SetPicture(const Recorder&) override {}
    bool Print(const text::RichText&, const PageMargins&) override { return false; }
    std::string Read(std::string_view name) const override {
        throw numeric::RuntimeFailure(numeric::FailureCode::FileNotFound, std::string(name));
    }

    std::string last_message;
    Host host{*this, *this, *this, *this};
};

}  // namespace tavrelo::window
