#pragma once

#include <QPrinter>

#include "shell/host.h"

namespace tavrelo::qt {

/// Prints the text on upright pages, each filled from where the previous one ended; lines break at the width
/// of the column on paper. False when the printer could not be started.
bool PrintPages(QPrinter& printer, const shell::RichText& text, const shell::PageMargins& margins);

/// A printer that the user chooses in the system's print dialogue.
class SystemPrinter : public shell::Printer {
  public:
    bool Print(const shell::RichText& text, const shell::PageMargins& margins) override;
};

}  // namespace tavrelo::qt
