#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "test_window.h"
#include "tests.h"
#include "window/pagination.h"

namespace tavrelo::window_test {
namespace {

// 80, 50, 80 and 80 points.
constexpr window::PageMargins kMargins{1600, 1000, 1600, 1600};

text::RichText LongLog(int lines) {
    std::string text;
    for (int line = 0; line < lines; ++line)
        text += "Línea " + std::to_string(line) + "\r\n";
    return text::PlainRichText(text, text::kTextFont, 10);
}

/// Pages of the PDF file that a text is printed into.
int PrintedPages(const text::RichText& text) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("printed.pdf"));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setPageSize(QPageSize(QPageSize::A4));
    if (!qt::PrintPages(printer, text, kMargins))
        return 0;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return static_cast<int>(
        QString::fromLatin1(file.readAll()).count(QRegularExpression(QStringLiteral("/Type /Page\\s"))));
}

constexpr double kDotsPerTwip = 0.2;

/// The column of a page, painted at 5 twips a dot.
QImage PaintedColumn(const window::PrintedPage& page) {
    const QSizeF column(window::kA4Paper.width - kMargins.left - kMargins.right,
                        window::kA4Paper.height - kMargins.top - kMargins.bottom);
    QImage image((column * kDotsPerTwip).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    qt::PaintPage(painter, page, kDotsPerTwip);
    return image;
}

/// The smallest rectangle with all pixels of the colour.
QRect PlaceOf(const QImage& image, const QColor& color) {
    QRect place;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == color)
                place |= QRect(x, y, 1, 1);
    return place;
}

}  // namespace

void PrintingTest::LongTextsFillSeveralPages() {
    // A column of A4 is 842 - 130 = 712 points high; a line of the text font at 10 points takes 11 to 12, so
    // that 59 to 64 lines make a page, and 201 lines four.
    QCOMPARE(PrintedPages(LongLog(201)), 4);
}

void PrintingTest::ShortTextsFillOne() { QCOMPARE(PrintedPages(LongLog(3)), 1); }

void PrintingTest::PrintsThePagesThatAreLaidOut() {
    for (const int lines : {1, 64, 65, 130, 500})
        QCOMPARE(PrintedPages(LongLog(lines)),
                 static_cast<int>(window::Paginate(LongLog(lines), window::kA4Paper, kMargins).size()));
}

void PrintingTest::RunsStandWhereTheyAreLaidOut() {
    // "H" at 20 points, and behind it a red "H" at 10 points, lowered by 60 twips. The letter is 0.722 em
    // wide and 0.655 em high: at 0.2 dots a twip the first one takes 57.8 of width and 52.4 of height on a
    // base line 0.891 em, 71.3 dots, down; the second one begins at 57.8, is 26.2 high and stands 12 dots
    // lower.
    text::Run tall{"H", {}, text::kBlack, 0};
    tall.font.size = 20;
    text::Run low{"H", {}, text::Rgb(255, 0, 0), -60};
    low.font.size = 10;
    const auto pages = window::Paginate(text::RichText({tall, low}), window::kA4Paper, kMargins);
    const QImage column = PaintedColumn(pages.front());
    const QRect black = PlaceOf(column, Qt::black);
    const QRect red = PlaceOf(column, Qt::red);
    const auto stands = [](const QRect& place, double left, double top, double right, double bottom) {
        constexpr double kBearing = 4;  // left free beside a letter
        return std::abs(place.left() - left) <= kBearing && std::abs(place.top() - top) <= kBearing &&
               std::abs(place.right() - right) <= kBearing && std::abs(place.bottom() - bottom) <= kBearing;
    };
    const auto told = [](const QRect& place) {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(place.left())
            .arg(place.top())
            .arg(place.right())
            .arg(place.bottom());
    };
    QVERIFY2(stands(black, 0, 71.3 - 52.4, 57.8, 71.3), qPrintable(told(black)));
    QVERIFY2(stands(red, 57.8, 83.3 - 26.2, 57.8 + 28.9, 83.3), qPrintable(told(red)));
}

}  // namespace tavrelo::window_test
