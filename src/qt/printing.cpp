#include "qt/printing.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QTextCursor>
#include <QTextDocument>

#include "numeric/checked.h"
#include "qt/fonts.h"
#include "qt/rich_document.h"

namespace tavrelo::qt {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kProgramDotsPerInch = 96;

/// The place for text on the paper, in dots of the printer.
QRectF ColumnOf(const QPrinter& printer, const window::PageMargins& margins) {
    const double dots_per_twip = printer.resolution() / kTwipsPerInch;
    const QRectF paper = printer.pageLayout().fullRectPixels(printer.resolution());
    return paper.adjusted(margins.left * dots_per_twip, margins.top * dots_per_twip,
                          -margins.right * dots_per_twip, -margins.bottom * dots_per_twip);
}

/// Lays the text out in pages of the column's size.
void LayOut(QTextDocument& document, const text::RichText& text, QPrinter& printer, const QSizeF& column) {
    document.setDocumentMargin(0);
    document.documentLayout()->setPaintDevice(&printer);
    document.setPageSize(column);
    QTextCursor cursor(&document);
    InsertRuns(cursor, text, ScreenDotsPerInch() / kProgramDotsPerInch);
}

void DrawPage(QTextDocument& document, QPainter& painter, const QRectF& column, int page) {
    painter.save();
    painter.translate(column.left(), column.top() - page * column.height());
    document.drawContents(&painter, QRectF(0, page * column.height(), column.width(), column.height()));
    painter.restore();
}

}  // namespace

bool PrintPages(QPrinter& printer, const text::RichText& text, const window::PageMargins& margins) {
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setFullPage(true);
    QPainter painter(&printer);
    if (!painter.isActive())
        return false;
    const QRectF column = ColumnOf(printer, margins);
    QTextDocument document;
    LayOut(document, text, printer, column.size());
    for (int page = 0; page < document.pageCount(); ++page) {
        if (page > 0)
            printer.newPage();
        DrawPage(document, painter, column, page);
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
