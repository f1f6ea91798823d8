#pragma once

#include <QPrinter>

#include "window/host.h"

namespace tavrelo::qt {

/// Prints the text on upright pages, each filled from where the previous one ended; lines break at the width
/// of the column on paper. False when the printer could not be started.
bool PrintPages(QPrinter& printer, const text::RichText& text, const window::PageMargins& margins);

/// A printer that the user chooses in the system's print dialogue.
class SystemPrinter : public window::Printer {
  public:
    bool Print(const text::RichText& text, const window::PageMargins& margins) override;
};

}  // namespace tavrelo::qt
