#include <QFontInfo>
#include <QTextEdit>
#include <QWheelEvent>

#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {
namespace {

void TurnWheel(QWidget& widget, int steps, Qt::KeyboardModifiers modifiers) {
    const QPointF place(widget.rect().center());
    QWheelEvent event(place, widget.mapToGlobal(place), {}, {0, steps * 120}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

}  // namespace

void ZoomTest::ScalesEveryControl() {
    TestWindow window;
    window.view.SetZoom(2);
    QCOMPARE(window.Widget("pic").parentWidget()->size(), QSize(1600, 1224));
    for (window::Control* control : window.Form().Controls()) {
        const QWidget& widget = window.view.WidgetOf(*control);
        // The dialog is as large as the screen allows.
        if (widget.window() != &window.view.Frame() || widget.isWindow())
            continue;
        const window::Rect& place = control->Bounds();
        QCOMPARE(widget.geometry(), QRect(2 * place.left, 2 * place.top, 2 * place.width, 2 * place.height));
    }
}

void ZoomTest::ScalesTheFonts() {
    TestWindow window;
    const double before = QFontInfo(window.Widget("cmdOK").font()).pixelSize();
    window.view.SetZoom(3);
    QCOMPARE(before, 12.0);
    QCOMPARE(QFontInfo(window.Widget("cmdOK").font()).pixelSize(), 36);
}

void ZoomTest::OptionsTakeClicksInAllTheirPlace() {
    TestWindow window;
    window.PressTool(3);
    window.Form().Get<window::TextBox>("txtSegm(0)").SetText("AB");
    window.Form().Get<window::TextBox>("txtSegm(1)").SetText("h4");
    window.Form().Get<window::Button>("cmdOK").UserClick();
    window.Form().Get<window::TabStrip>("tabStat").UserPick(2);
    window.view.SetZoom(3);
    QWidget& option = window.Widget("optShowDCL(0)");
    QTest::mouseClick(&option, Qt::LeftButton, {}, option.rect().bottomRight() - QPoint(3, 3));
    QVERIFY(window.Form().Get<window::OptionButton>("optShowDCL(0)").Checked());
    QCOMPARE(window.Form().Get<window::ListBox>("lstDCL").Items().size(), std::size_t{1});
}

void ZoomTest::FollowsTheKeys() {
    TestWindow window;
    window.PressTool(2);
    QWidget& box = window.Widget("txtVector");
    QTest::keyClick(&box, Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(window.view.Zoom(), 1.1);
    QTest::keyClick(&box, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(window.view.Zoom(), 0.9);
    QTest::keyClick(&box, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(window.view.Zoom(), 1.0);
    QCOMPARE(window.Form().Get<window::TextBox>("txtVector").Text(), std::string());
}

void ZoomTest::FollowsTheWheelOverAnyControl() {
    TestWindow window;
    window.PressTool(1);
    TurnWheel(*window.As<QTextEdit>("rtbCalc").viewport(), +2, Qt::ControlModifier);
    QCOMPARE(window.view.Zoom(), 1.25);
    TurnWheel(window.Widget("pic"), -2, Qt::ControlModifier);
    QCOMPARE(window.view.Zoom(), 1.0);
    TurnWheel(window.Widget("pic"), -2, Qt::NoModifier);
    QCOMPARE(window.view.Zoom(), 1.0);
}

void ZoomTest::StaysWithinItsLimits() {
    TestWindow window;
    window.view.SetZoom(0.01);
    QCOMPARE(window.view.Zoom(), 0.5);
    window.view.SetZoom(100);
    QCOMPARE(window.view.Zoom(), 4.0);
}

void ZoomTest::FollowsTheFrame() {
    TestWindow window;
    window.view.Frame().resize(1200, 10000);
    QCOMPARE(window.view.Zoom(), 1.5);
    // The page stands in the middle of a frame of another proportion, over a bar 30 high.
    const QWidget& page = *window.Widget("pic").parentWidget();
    QCOMPARE(page.size(), QSize(1200, 918));
    QCOMPARE(page.mapTo(&window.view.Frame(), QPoint()), QPoint(0, (10000 - 30 - 918) / 2));
}

}  // namespace tavrelo::window_test
