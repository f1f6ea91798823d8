#pragma once

#include <string_view>

#include "script.h"

namespace tavrelo::transcript {

/// Reads the text of a command from left to right. What is missing, malformed or too much fails with
/// ScriptError.
class Arguments {
  public:
    explicit Arguments(std::string_view text) : m_rest(text) {}

    /// Nothing but blanks is left.
    bool AtEnd() const;
    /// The next word without taking it; empty at the end.
    std::string_view NextWord() const;
    std::string_view Word();
    int WholeNumber();
    double Number();
    /// All that is left, as it stands, behind the one blank that parts it from the word before.
    std::string_view Rest();
    void ExpectEnd() const;

  private:
    std::string_view m_rest;
};

}  // namespace tavrelo::transcript
