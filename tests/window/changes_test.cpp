#include <QMessageBox>
#include <QSignalSpy>
#include <QTextEdit>

#include "numeric/checked.h"
#include "qt/grid_view.h"
#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {
namespace {

constexpr int kManyLines = 20;

/// Clicks a button of the calculator whose handler does `work`.
void RunInHandler(TestWindow& window, const std::function<void()>& work) {
    window.PressTool(1);
    window::OnClick(window.Form(), window.Form().Get<window::Button>("cmdCalculate"), work);
    QTest::mouseClick(&window.Widget("cmdCalculate"), Qt::LeftButton);
}

}  // namespace

void ChangesTest::ABlockOfCellsIsShownOnce() {
    TestWindow window;
    window.PressTool(1);
    const QAbstractItemModel& table = *window.As<qt::GridView>("gd").model();
    const QSignalSpy changes(&table, &QAbstractItemModel::dataChanged);
    RunInHandler(window, [&grid = window.Form().Get<window::Grid>("gd")] {
        for (int row = 1; row < grid.Rows(); ++row)
            for (int col = 1; col < grid.Cols(); ++col)
                grid.SetCell(row, col, std::to_string(row * col));
    });
    QCoreApplication::processEvents();
    QCOMPARE(changes.count(), 1);
    QCOMPARE(table.index(1, 1).data().toString(), QStringLiteral("4"));
}

void ChangesTest::LinesOfOneHandlerAreShownOnce() {
    TestWindow window;
    window.PressTool(1);
    const auto& page = window.As<QTextEdit>("rtbCalc");
    const QSignalSpy changes(page.document(), &QTextDocument::contentsChange);
    RunInHandler(window, [&box = window.Form().Get<window::RichTextBox>("rtbCalc")] {
        box.SetContent(text::PlainRichText("Línea\r\n", text::kTextFont, 10));
        for (int line = 0; line < kManyLines; ++line)
            box.AppendContent(text::PlainRichText("Otra\r\n", text::kTextFont, 10));
    });
    QCoreApplication::processEvents();
    // What stood there goes, margin and font are set, the new text comes.
    QVERIFY2(changes.count() < kManyLines / 2, qPrintable(QString::number(changes.count())));
    QCOMPARE(page.document()->blockCount(), kManyLines + 2);
}

void ChangesTest::AFailureOfAHandlerEndsInABoxAndTheProgramGoesOn() {
    TestWindow window;
    QString shown;
    WhenOpen<QMessageBox>([&shown](QMessageBox& box) {
        shown = box.text();
        box.accept();
    });
    RunInHandler(window, [] { throw numeric::RuntimeFailure(numeric::FailureCode::Internal, "bare"); });
    QCOMPARE(shown, QStringLiteral("Error en el comando."));
    bool was_clicked = false;
    RunInHandler(window, [&was_clicked] { was_clicked = true; });
    QVERIFY(was_clicked);
}

}  // namespace tavrelo::window_test
