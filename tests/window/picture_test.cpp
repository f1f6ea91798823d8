#include <QClipboard>
#include <QMenu>

#include "qt/canvas.h"
#include "qt/fonts.h"
#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {
namespace {

void AskForMenu(QWidget& widget) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, widget.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&widget, &event);
}

}  // namespace

void PictureTest::BlackboardHasAMenu() {
    TestWindow window;
    QStringList captions;
    WhenOpen<QMenu>([&captions](QMenu& menu) {
        for (const QAction* action : menu.actions())
            captions << action->text();
        menu.close();
    });
    AskForMenu(window.Widget("pic"));
    QCOMPARE(captions, QStringList({QStringLiteral("Copiar imagen"), QStringLiteral("Guardar imagen..."),
                                    QStringLiteral("Ver en otra ventana\tF9")}));
}

void PictureTest::RightButtonReachesOtherPictures() {
    TestWindow window;
    window.PressTool(4);
    std::vector<window::MouseStroke> strokes;
    for (const char* name : {"picAccel", "pic"})
        window::On(window.Form(), window.Form().Get<window::Picture>(name).OnMouseDown,
                   [&](const window::MouseStroke& stroke) { strokes.push_back(stroke); });
    QTest::mouseClick(&window.Widget("picAccel"), Qt::RightButton, Qt::ShiftModifier, QPoint(70, 10));
    QTest::mouseClick(&window.Widget("pic"), Qt::RightButton, {}, QPoint(70, 10));
    QCOMPARE(strokes.size(), std::size_t{1});
    QVERIFY(strokes.front().button == window::MouseButton::Right);
    QVERIFY(strokes.front().shift && !strokes.front().ctrl);
}

void PictureTest::PlacesAreInTheUnitsOfThePictureAtAnyZoom() {
    TestWindow window;
    window.PressTool(4);
    window.view.SetZoom(2);
    window::MouseStroke stroke;
    const auto keep = [&stroke](const window::MouseStroke& told) { stroke = told; };
    // y grows upward from the foot of a picture 42 high.
    window::On(window.Form(), window.Form().Get<window::Picture>("picAccel").OnMouseDown, keep);
    QTest::mouseClick(&window.Widget("picAccel"), Qt::LeftButton, {}, QPoint(100, 20));
    QCOMPARE(stroke.x, 50.0);
    QCOMPARE(stroke.y, 32.0);
    // Fifteen twips make a pixel.
    window::On(window.Form(), window.Form().Get<window::Picture>("imgProcs").OnMouseDown, keep);
    window.Form().Get<window::TabStrip>("tabMrua").SetCurrent(1);
    QTest::mouseClick(&window.Widget("imgProcs"), Qt::LeftButton, {}, QPoint(20, 40));
    QCOMPARE(stroke.x, 150.0);
    QCOMPARE(stroke.y, 300.0);
}

void PictureTest::CopiedImageIsTwiceTheSize() {
    TestWindow window;
    window.Form().clipboard.SetPicture(window.Form().Get<window::Picture>("pic1").Canvas());
    QCOMPARE(QApplication::clipboard()->image().size(), QSize(2 * 397, 2 * 385));
}

void PictureTest::CanvasPaintsWhatWasDrawn() {
    TestWindow window;
    window::Recorder& drawing = window.Form().Get<window::Picture>("pic").Canvas();
    drawing.Cls();
    drawing.Box(10, 10, 19, 19, text::Rgb(0, 0, 255), true);
    drawing.Line(30, 50, 60, 50, text::Rgb(255, 0, 0));
    window.view.SetZoom(3);
    const QImage image = window.Widget("pic").grab().toImage();
    // The box covers the pixels 10 to 19 of 100 %, each three wide here; so does the line.
    QCOMPARE(image.pixelColor(30, 30), QColor(0, 0, 255));
    QCOMPARE(image.pixelColor(59, 59), QColor(0, 0, 255));
    QCOMPARE(image.pixelColor(60, 60), QColor(Qt::white));
    for (int y = 150; y < 153; ++y)
        QCOMPARE(image.pixelColor(120, y), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(120, 149), QColor(Qt::white));
    QCOMPARE(image.pixelColor(120, 153), QColor(Qt::white));
}

void PictureTest::TextIsAsWideAsTheModelMeasures() {
    // The model measures by the advance widths of the same families.
    const char* text = "ΣFx = 0.866 F1 − 100";
    for (const std::string_view name : {text::kTextFont, text::kSmallFont, text::kInterfaceFont})
        for (const double scale : {1.0, 1.5, 3.0}) {
            const text::Font font{std::string(name), 10, false, false, false};
            const double measured = text::TextWidth(text, font) * scale;
            const QFontMetricsF metrics(qt::ToQFont(font, scale));
            const double painted =
                metrics.horizontalAdvance(QString::fromUtf8(text)) * qt::FontStretch(font, scale);
            QVERIFY2(std::abs(painted - measured) < scale,
                     qPrintable(QStringLiteral("%1 at %2: %3 against %4")
                                    .arg(qt::ToQString(name))
                                    .arg(scale)
                                    .arg(painted)
                                    .arg(measured)));
        }
}

/// The words of the particle's diagram stand with the widget, for every force that is added.
void PictureTest::DescriptionFollowsTheDrawing() {
    TestWindow window;
    QVERIFY(
        window.Widget("pic").accessibleDescription().startsWith(QStringLiteral("BIENVENIDO AL PROGRAMA")));
    window.PressTool(2);
    QCoreApplication::processEvents();
    QCOMPARE(window.Widget("pic").accessibleDescription(), QString());
    QCOMPARE(window.Widget("pic1").accessibleDescription(),
             QStringLiteral("Fuerzas sobre un punto, con ejes x, y. Sin fuerzas."));
    window.Form().Get<window::TextBox>("txtVector").SetText("v-100");
    QTest::keyClick(&window.Widget("txtVector"), Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(window.Widget("pic1").accessibleDescription(),
             QStringLiteral("Fuerzas sobre un punto, con ejes x, y. Una fuerza: 100 hacia abajo."));
}

}  // namespace tavrelo::window_test
