#pragma once

#include "window/host.h"

namespace tavrelo::qt {

/// Message and input boxes on the desktop, over the active window.
class WindowBoxes : public window::Boxes {
  public:
    window::Answer ShowMessage(std::string_view text, std::string_view title,
                               window::Buttons buttons) override;
    std::optional<std::string> AskText(std::string_view prompt, std::string_view title) override;
};

}  // namespace tavrelo::qt
