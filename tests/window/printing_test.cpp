#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {
namespace {

// 80, 50, 80 and 80 points.
constexpr window::PageMargins kMargins{1600, 1000, 1600, 1600};

int PrintedPages(int lines) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("printed.pdf"));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setPageSize(QPageSize(QPageSize::A4));
    std::string text;
    for (int line = 0; line < lines; ++line)
        text += "Línea " + std::to_string(line) + "\r\n";
    if (!qt::PrintPages(printer, text::PlainRichText(text, text::kTextFont, 10), kMargins))
        return 0;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return static_cast<int>(
        QString::fromLatin1(file.readAll()).count(QRegularExpression(QStringLiteral("/Type /Page\\s"))));
}

}  // namespace

void PrintingTest::LongTextsFillSeveralPages() {
    // A column of A4 is 842 - 130 = 712 points high; a line of the text font at 10 points takes 11 to 12, so
    // that 59 to 64 lines make a page, and 201 lines four.
    QCOMPARE(PrintedPages(201), 4);
}

void PrintingTest::ShortTextsFillOne() { QCOMPARE(PrintedPages(3), 1); }

}  // namespace tavrelo::window_test
