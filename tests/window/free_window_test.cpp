#include "qt/free_window.h"

#include <QAccessible>
#include <QMenu>
#include <QTextBlock>
#include <QTextEdit>

#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {
namespace {

/// How many pixels of an image have a colour.
int CountOf(const QImage& image, const QColor& color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color;
    return count;
}

/// The window that an action opened; null when it opened none.
template <class Action>
qt::FreeWindow* Opened(Action action) {
    action();
    QCoreApplication::processEvents();
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = dynamic_cast<qt::FreeWindow*>(widget); window && window->isVisible())
            return window;
    return nullptr;
}

}  // namespace

void FreeWindowTest::ADoubleClickOpensTheBoard() {
    TestWindow window;
    window.PressTool(2);
    qt::FreeWindow* free = Opened([&] { QTest::mouseDClick(&window.Widget("pic1"), Qt::LeftButton); });
    QVERIFY(free);
    QCOMPARE(free->windowTitle(), QStringLiteral("Pizarrón – Tavrelo"));
    QTest::keyClick(free, Qt::Key_Escape);
    QVERIFY(!free->isVisible());
}

void FreeWindowTest::ADoubleClickOnAStripIsTheModels() {
    TestWindow window;
    window.PressTool(2);
    int presses = 0;
    window::On(window.Form(), window.Form().Get<window::Picture>("picClock").OnMouseDown,
               [&presses](const window::MouseStroke&) { ++presses; });
    QVERIFY(!Opened([&] { QTest::mouseDClick(&window.Widget("picClock"), Qt::LeftButton); }));
    QVERIFY(presses > 0);
}

void FreeWindowTest::AKeyOpensWhatIsInUse() {
    TestWindow window;
    window.PressTool(2);
    qt::FreeWindow* board = Opened([&] { QTest::keyClick(&window.Widget("txtVector"), Qt::Key_F9); });
    QVERIFY(board);
    QCOMPARE(board->windowTitle(), QStringLiteral("Pizarrón – Tavrelo"));
    board->close();
    QApplication::setActiveWindow(&window.view.Frame());
    window.Widget("rtbCalc").setFocus();
    qt::FreeWindow* report = Opened([&] { QTest::keyClick(&window.Widget("rtbCalc"), Qt::Key_F9); });
    QVERIFY(report);
    QVERIFY(report != board);
    QVERIFY(report->findChild<QTextEdit*>());
}

void FreeWindowTest::PicturesScaleAndFollow() {
    TestWindow window;
    const auto& picture = window.Form().Get<window::Picture>("pic");
    window::Recorder& drawing = window.Form().Get<window::Picture>("pic").Canvas();
    drawing.Cls();
    qt::FreeWindow& free = window.view.OpenFree(picture);
    free.resize(3 * 397, 3 * 385 + 100);
    QCoreApplication::processEvents();
    const QColor color(0, 0, 200);
    QCOMPARE(CountOf(free.grab().toImage(), color), 0);
    drawing.Box(10, 10, 19, 19, text::Rgb(0, 0, 200), true);
    QCoreApplication::processEvents();
    const QImage image = free.grab().toImage();
    QCOMPARE(CountOf(image, color), 30 * 30);
    // In the middle of a taller window.
    QCOMPARE(image.pixelColor(30, 50 + 30), color);
    QCOMPARE(image.pixelColor(29, 50 + 30), QColor(Qt::white));
}

/// Who does not see the picture is told the same in its own window, and what becomes of it.
void FreeWindowTest::PicturesAreToldAndFollow() {
    TestWindow window;
    window.PressTool(2);
    const auto& picture = window.Form().Get<window::Picture>("pic1");
    qt::FreeWindow& free = window.view.OpenFree(picture);
    QApplication::setActiveWindow(&free);
    QCoreApplication::processEvents();
    QWidget* paper = QApplication::focusWidget();
    QVERIFY(paper && paper->window() == &free);
    const QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(paper);
    QCOMPARE(told.role(), QAccessible::Graphic);
    QCOMPARE(told.text(QAccessible::Name), QStringLiteral("Pizarrón"));
    QCOMPARE(told.text(QAccessible::Description),
             QStringLiteral("Fuerzas sobre un punto, con ejes x, y. Sin fuerzas."));
    auto& box = window.Form().Get<window::TextBox>("txtVector");
    box.SetText("v-100");
    box.UserKeyPress(window::kEnterCharacter);
    QTRY_VERIFY(told.text(QAccessible::Description).contains(QStringLiteral("100 hacia abajo")));
    QCOMPARE(told.text(QAccessible::Description), window.Widget("pic1").accessibleDescription());
}

void FreeWindowTest::ReportsGrowAndFollow() {
    TestWindow window;
    auto& box = window.Form().Get<window::RichTextBox>("rtbSolve");
    box.SetContent(text::PlainRichText("Primera", "Times New Roman", 10));
    qt::FreeWindow& free = window.view.OpenFree(box);
    free.resize(520, 400);
    QTRY_COMPARE(free.findChild<QTextEdit*>()->toPlainText(), QStringLiteral("Primera"));
    auto& view = *free.findChild<QTextEdit*>();
    const auto letter_size = [&view] {
        return view.document()->begin().begin().fragment().charFormat().fontPointSize();
    };
    QTRY_COMPARE(letter_size(), 10.0);
    box.AppendContent(text::PlainRichText("\r\nSegunda", "Times New Roman", 10));
    QTRY_COMPARE(view.toPlainText(), QStringLiteral("Primera\nSegunda"));
    free.resize(1040, 800);
    QTRY_COMPARE(letter_size(), 20.0);
    QTest::keyClick(&view, Qt::Key_Plus, Qt::ControlModifier);
    QTRY_COMPARE(letter_size(), 24.0);
    QTest::keyClick(&view, Qt::Key_0, Qt::ControlModifier);
    QTRY_COMPARE(letter_size(), 20.0);
    box.SetContent({});
    QTRY_COMPARE(view.toPlainText(), QString());
}

void FreeWindowTest::TheirMenusAreThoseOfTheSource() {
    TestWindow window;
    const auto captions_of = [](QWidget& widget) {
        QStringList captions;
        WhenOpen<QMenu>([&captions](QMenu& menu) {
            for (const QAction* action : menu.actions())
                captions << action->text();
            menu.close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, widget.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&widget, &event);
        return captions;
    };
    QCOMPARE(captions_of(window.view.OpenFree(*window.Form().Find("pic"))),
             QStringList({QStringLiteral("Copiar imagen"), QStringLiteral("Guardar imagen...")}));
    qt::FreeWindow& report = window.view.OpenFree(*window.Form().Find("rtbSolve"));
    QCOMPARE(captions_of(*report.findChild<QTextEdit*>()->viewport()),
             QStringList({QStringLiteral("Copiar"), QStringLiteral("Seleccionar todo")}));
}

void FreeWindowTest::TheyCloseWithTheProgram() {
    TestWindow window;
    qt::FreeWindow& free = window.view.OpenFree(*window.Form().Find("pic"));
    QVERIFY(free.isVisible());
    window.view.Frame().close();
    QVERIFY(!free.isVisible());
}

}  // namespace tavrelo::window_test
