#include "qt/printing.h"

#include <QApplication>
#include <QPrintDialog>
#include <algorithm>

#include "numeric/checked.h"
#include "qt/fonts.h"
#include "qt/text.h"
#include "window/geometry.h"

namespace tavrelo::qt {
namespace {

constexpr double kTwipsPerInch = 1440;

window::Paper PaperOf(const QPrinter& printer) {
    constexpr double kMillimetersPerInch = 25.4;
    const QRectF paper = printer.pageLayout().fullRect(QPageLayout::Millimeter);
    return {paper.width() * kTwipsPerInch / kMillimetersPerInch,
            paper.height() * kTwipsPerInch / kMillimetersPerInch};
}

/// The machine's font in dots of the device, of which the toolkit takes whole ones only.
QFont PrintFont(const text::Font& font, double dots) {
    QFont result = ToQFont(font, 1);
    result.setPixelSize(std::max(1, qRound(dots)));
    return result;
}

}  // namespace

void PaintPage(QPainter& painter, const window::PrintedPage& page, double dots_per_twip) {
    const double dots_per_pixel = window::kTwipsPerPixel * dots_per_twip;
    for (const window::PrintedLine& line : page.lines)
        for (const window::PrintedRun& printed : line.runs) {
            const text::Run& run = printed.run;
            const double dots = text::PixelsOf(run.font.size) * dots_per_pixel;
            const QFont font = PrintFont(run.font, dots);
            const double stretch = dots / font.pixelSize();
            painter.save();
            painter.setFont(font);
            painter.setPen(ToQColor(run.color));
            painter.translate(printed.left * dots_per_twip, (line.base_line - run.offset) * dots_per_twip);
            painter.scale(stretch, stretch);
            painter.drawText(QPointF(), ToQString(run.text));
            painter.restore();
        }
}

bool PrintPages(QPrinter& printer, const text::RichText& text, const window::PageMargins& margins) {
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setFullPage(true);
    const auto pages = window::Paginate(text, PaperOf(printer), margins);
    QPainter painter(&printer);
    if (!painter.isActive())
        return false;
    const double dots_per_twip = printer.resolution() / kTwipsPerInch;
    painter.translate(margins.left * dots_per_twip, margins.top * dots_per_twip);
    for (const window::PrintedPage& page : pages) {
        if (&page != &pages.front())
            printer.newPage();
        PaintPage(painter, page, dots_per_twip);
    }
    return true;
}

bool SystemPrinter::Print(const text::RichText& text, const window::PageMargins& margins) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (!PrintPages(printer, text, margins))
        throw numeric::RuntimeFailure(numeric::FailureCode::Internal, "printer");
    return true;
}

}  // namespace tavrelo::qt
