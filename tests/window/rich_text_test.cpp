#include <QAccessible>
#include <QClipboard>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>

#include "qt/rich_document.h"
#include "qt/rich_text_view.h"
#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {
namespace {

text::Run MakeRun(std::string text, double size = 10, int offset = 0) {
    text::Run run;
    run.text = std::move(text);
    run.font.size = size;
    run.offset = offset;
    return run;
}

/// "v" with subscript 0, a bold red F, and a second line in the sign font.
text::RichText Report() {
    text::Run bold = MakeRun("F");
    bold.font.bold = true;
    bold.color = text::Rgb(255, 0, 0);
    text::Run sign = MakeRun("\r\nθ");
    sign.font.name = text::kSymbolFont;
    sign.font.italic = true;
    return text::RichText({MakeRun("v"), MakeRun("0", 7, -45), bold, sign, MakeRun("2", 7, 60)});
}

QString Described(const text::RichText& text) {
    QStringList runs;
    for (const text::Run& run : text.Runs())
        runs << QStringLiteral("%1|%2|%3|%4%5%6|%7|%8")
                    .arg(qt::ToQString(run.text), qt::ToQString(run.font.name))
                    .arg(run.font.size)
                    .arg(run.font.bold)
                    .arg(run.font.italic)
                    .arg(run.font.underline)
                    .arg(run.color.rgb, 0, 16)
                    .arg(run.offset);
    return runs.join(QLatin1Char('\n'));
}

/// The calculator with the report in its box of results.
struct ReportWindow : TestWindow {
    ReportWindow() {
        PressTool(1);
        Form().Get<window::RichTextBox>("rtbCalc").SetContent(Report());
    }
    qt::RichTextView& Box() { return As<qt::RichTextView>("rtbCalc"); }
};

}  // namespace

void RichTextTest::RunsCanBeReadBackAtAnyZoom() {
    ReportWindow window;
    QCOMPARE(Described(qt::ReadRuns(*window.Box().document())), Described(Report()));
    window.view.SetZoom(1.75);
    QCOMPARE(Described(qt::ReadRuns(*window.Box().document())), Described(Report()));
}

void RichTextTest::AppendingKeepsWhatStands() {
    ReportWindow window;
    window.Form().Get<window::RichTextBox>("rtbCalc").AppendContent(Report());
    text::RichText twice = Report();
    twice.Append(Report());
    QCOMPARE(Described(qt::ReadRuns(*window.Box().document())), Described(twice));
    QCOMPARE(window.Box().textCursor().position(), window.Box().document()->characterCount() - 1);
}

void RichTextTest::CopyGivesRichText() {
    ReportWindow window;
    window.Box().selectAll();
    window.Box().copy();
    const QMimeData* data = QApplication::clipboard()->mimeData();
    QCOMPARE(data->text(), QStringLiteral("v0F\nθ2"));
    QVERIFY(data->html().contains(QLatin1String("vertical-align:sub")));
    QVERIFY(data->html().contains(QLatin1String("vertical-align:super")));
    QVERIFY(data->html().contains(QLatin1String("#ff0000")));
    QVERIFY(data->html().contains(QLatin1String("Times New Roman")));
}

void RichTextTest::CopyGivesTheSizesOfTheProgramAtAnyZoom() {
    ReportWindow window;
    window.view.SetZoom(2);
    window.Box().selectAll();
    window.Box().copy();
    const QString html = QApplication::clipboard()->mimeData()->html();
    QVERIFY(html.contains(QLatin1String("font-size:10pt")));
    QVERIFY(!html.contains(QLatin1String("font-size:20pt")));
}

void RichTextTest::MenuIsSpanish() {
    ReportWindow window;
    QStringList captions;
    WhenOpen<QMenu>([&captions](QMenu& menu) {
        for (const QAction* action : menu.actions())
            captions << action->text();
        menu.close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, window.Box().mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(window.Box().viewport(), &event);
    QCOMPARE(captions, QStringList({QStringLiteral("Copiar"), QStringLiteral("Seleccionar todo"),
                                    QStringLiteral("Ver en otra ventana\tF9")}));
}

void RichTextTest::SelectionCountsLineEndsAsTheModelDoes() {
    ReportWindow window;
    window.Box().selectAll();
    // v, 0, F, the two characters of the line end, theta, 2.
    QCOMPARE(window.Form().Get<window::RichTextBox>("rtbCalc").Selection(), (window::TextSelection{0, 7}));
    window.Form().Get<window::RichTextBox>("rtbCalc").Select({5, 1});
    QCOMPARE(window.Box().textCursor().selectedText(), QStringLiteral("θ"));
}

void RichTextTest::BackwardSelectionStays() {
    ReportWindow window;
    QTextCursor cursor(window.Box().document());
    cursor.setPosition(3);
    cursor.setPosition(1, QTextCursor::KeepAnchor);
    window.Box().setTextCursor(cursor);
    QCOMPARE(window.Form().Get<window::RichTextBox>("rtbCalc").Selection(), (window::TextSelection{1, 2}));
    QCOMPARE(window.Box().textCursor().position(), 1);
}

void RichTextTest::IsReadAloudLineByLine() {
    ReportWindow window;
    QAccessibleInterface* page = QAccessible::queryAccessibleInterface(&window.Box());
    const QString spoken = QStringLiteral("v sub 0 vector F\ntheta al cuadrado");
    QCOMPARE(page->text(QAccessible::Value), spoken);
    QAccessibleTextInterface* text = page->textInterface();
    QVERIFY(text);
    QCOMPARE(text->characterCount(), spoken.size());
    QCOMPARE(text->text(0, text->characterCount()), spoken);
    QVERIFY(page->state().readOnly);
    // What is copied are the signs.
    QCOMPARE(window.Box().toPlainText(), QStringLiteral("v0F\nθ2"));
}

void RichTextTest::TheCaretStandsInTheSpokenLineOfItsLine() {
    ReportWindow window;
    QAccessibleTextInterface* text = QAccessible::queryAccessibleInterface(&window.Box())->textInterface();
    window.Form().Get<window::RichTextBox>("rtbCalc").Select({5, 0});
    QCoreApplication::processEvents();
    int start = 0;
    int end = 0;
    QCOMPARE(text->textAtOffset(text->cursorPosition(), QAccessible::LineBoundary, &start, &end).trimmed(),
             QStringLiteral("theta al cuadrado"));
    text->setCursorPosition(0);
    QCOMPARE(window.Box().textCursor().blockNumber(), 0);
    QCOMPARE(text->cursorPosition(), 0);
}

void RichTextTest::AFormulaIsReadAloudBesideItsSigns() {
    TestWindow window;
    window.PressTool(1);
    window.Form().Get<window::RichTextBox>("rtbExpr").SetText("R(3^2+4^2)");
    QCoreApplication::processEvents();
    QCOMPARE(window.Widget("rtbExpr").accessibleDescription(),
             QStringLiteral("raíz de 3 al cuadrado más 4 al cuadrado fin de raíz"));
}

}  // namespace tavrelo::window_test
