#pragma once

#include <QPainter>
#include <QPrinter>

#include "window/host.h"
#include "window/pagination.h"

namespace tavrelo::qt {

/// Paints a page whose column begins at the painter's origin.
void PaintPage(QPainter& painter, const window::PrintedPage& page, double dots_per_twip);

/// Prints the text on upright pages of the printer's paper. False when the printer could not be started.
bool PrintPages(QPrinter& printer, const text::RichText& text, const window::PageMargins& margins);

/// A printer that the user chooses in the system's print dialogue.
class SystemPrinter : public window::Printer {
  public:
    bool Print(const text::RichText& text, const window::PageMargins& margins) override;
};

}  // namespace tavrelo::qt
