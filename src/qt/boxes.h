#pragma once

#include "shell/host.h"

namespace tavrelo::qt {

/// Message and input boxes on the desktop, over the active window.
class WindowBoxes : public shell::Boxes {
  public:
    shell::Answer ShowMessage(std::string_view text, std::string_view title, shell::Buttons buttons) override;
    std::optional<std::string> AskText(std::string_view prompt, std::string_view title) override;
};

}  // namespace tavrelo::qt
