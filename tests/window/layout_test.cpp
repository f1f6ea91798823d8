#include <QAbstractButton>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>
#include <QToolTip>

#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {
namespace {

void AddZooms() {
    QTest::addColumn<double>("zoom");
    for (const double zoom : {0.5, 1.0, 1.5, 2.0, 4.0})
        QTest::addRow("%g", zoom) << zoom;
}

/// The text that a widget shows in one line, and how many pixels at 100 % it needs beside it.
struct Caption {
    QString text;
    double margins = 0;
};

Caption CaptionOf(const QWidget& widget, const window::Control& control) {
    constexpr double kButtonMargins = 6;
    constexpr double kIndicator = 14 + 5;
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return {label->text()};
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return {qt::FromCaption(button->text()),
                control.Kind() == window::ControlKind::Button ? kButtonMargins : kIndicator};
    return {};
}

/// Whether anything but the background is painted between two columns of pixels, the second one excluded.
bool HasInk(const QImage& image, int from, int to) {
    constexpr int kInk = 200;  // darkest grey of a background
    for (int x = from; x < to; ++x)
        for (int y = 0; y < image.height(); ++y)
            if (qGray(image.pixel(x, y)) < kInk)
                return true;
    return false;
}

}  // namespace

void LayoutTest::CaptionsFit_data() { AddZooms(); }

void LayoutTest::CaptionsFit() {
    QFETCH(double, zoom);
    TestWindow window;
    window.view.SetZoom(zoom);
    for (window::Control* control : window.Form().Controls()) {
        const QWidget& widget = window.view.WidgetOf(*control);
        const Caption caption = CaptionOf(widget, *control);
        const double needed = widget.fontMetrics().horizontalAdvance(caption.text) + caption.margins * zoom;
        QVERIFY2(caption.text.isEmpty() || needed <= widget.width() + 1, control->Name().c_str());
    }
}

void LayoutTest::PairsStandOverTheirBoxes_data() { AddZooms(); }

void LayoutTest::PairsStandOverTheirBoxes() {
    QFETCH(double, zoom);
    TestWindow window;
    window.PressTool(3);
    window.view.SetZoom(zoom);
    window.Form().Get<window::TextBox>("txtSegm(0)").SetText("ABCDEFG");
    window.Form().Get<window::TextBox>("txtSegm(0)").UserKeyPress(window::kEnterCharacter);
    QWidget& pairs = window.Widget("lblSegm(2)");
    const QImage image = pairs.grab().toImage();
    for (int box = 2; box <= 6; ++box) {
        const QRect place =
            window.view.WidgetOf(window.Form().GetArray<window::TextBox>("txtSegm")[box]).geometry();
        const int left = place.left() - pairs.geometry().left();
        const int middle = left + place.width() / 2;
        QVERIFY(HasInk(image, left, middle));
        QVERIFY(!HasInk(image, middle, left + place.width()));
    }
}

void LayoutTest::TextsThatACellCutsAreToldWhole() {
    TestWindow window;
    window.PressTool(3);
    window.Form().Get<window::TabStrip>("tabStat").UserPick(1);
    window.Form().Get<window::Grid>("gd1").AddRow({"1", "1", "A", "c36.87x, 10.125v:/-250.75", "13.5"});
    auto& grid = window.As<QTableView>("gd1");
    const auto tip_over = [&](int col) {
        const QPoint place = grid.visualRect(grid.model()->index(0, col)).center();
        QHelpEvent event(QEvent::ToolTip, place, grid.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(grid.viewport(), &event);
        return QToolTip::text();
    };
    constexpr int kForce = 2;  // behind the fixed column of the numbers
    QCOMPARE(tip_over(kForce + 1), QString());
    QCOMPARE(tip_over(kForce), QString("c36.87x, 10.125v:/-250.75"));
}

void LayoutTest::ARowThatAComboCutsIsToldWhole() {
    TestWindow window;
    window.PressTool(5);
    window.Form().Get<window::TabStrip>("tabMrua").UserPick(2);
    auto& combo = window.As<QComboBox>("cboProcs");
    const auto tip_over = [&combo](int row) {
        combo.setCurrentIndex(row);
        QToolTip::hideText();
        const QPoint place = combo.rect().center();
        QHelpEvent event(QEvent::ToolTip, place, combo.mapToGlobal(place));
        QCoreApplication::sendEvent(&combo, &event);
        return QToolTip::text();
    };
    int cut = 0;
    for (int row = 0; row < combo.count(); ++row) {
        const bool is_long = combo.fontMetrics().horizontalAdvance(combo.itemText(row)) > combo.width();
        cut += is_long ? 1 : 0;
        if (is_long)
            QCOMPARE(tip_over(row), combo.itemText(row));
        else if (combo.fontMetrics().horizontalAdvance(combo.itemText(row)) < combo.width() / 2)
            QVERIFY(tip_over(row) != combo.itemText(row));
    }
    QVERIFY(cut > 0);
}

void LayoutTest::TabsFit_data() { AddZooms(); }

void LayoutTest::TabsFit() {
    QFETCH(double, zoom);
    TestWindow window;
    window.view.SetZoom(zoom);
    for (const char* name : {"tabCalc", "tabStat", "tabMrua"}) {
        const QWidget& strip = window.Widget(name);
        const auto* tabs = strip.findChild<QTabBar*>();
        QCOMPARE(tabs->count(), 3);
        QVERIFY2(tabs->tabRect(2).right() < strip.width(), name);
        for (int tab = 0; tab < 3; ++tab)
            QVERIFY(tabs->fontMetrics().horizontalAdvance(tabs->tabText(tab)) < tabs->tabRect(tab).width());
    }
}

void LayoutTest::MotionTableNeedsNoScrollBars_data() { AddZooms(); }

void LayoutTest::MotionTableNeedsNoScrollBars() {
    QFETCH(double, zoom);
    TestWindow window;
    window.view.SetZoom(zoom);
    for (const int tool : {4, 5}) {
        window.PressTool(tool);
        QCoreApplication::processEvents();
        const auto& table = window.As<QTableView>("Gd2");
        QVERIFY(!table.verticalScrollBar()->isVisible());
        QVERIFY(!table.horizontalScrollBar()->isVisible());
    }
}

void LayoutTest::HelpLiesOverEverything() {
    TestWindow window;
    window.PressTool(8);
    window.PressTool(4);
    QWidget& page = *window.Widget("pic").parentWidget();
    for (const QPoint place : {QPoint(200, 8), QPoint(200, 380)})
        QVERIFY(window.Widget("fraHelp").isAncestorOf(page.childAt(place)) ||
                page.childAt(place) == &window.Widget("fraHelp"));
    // The yellow strip of the motion tools stands on the foot of the table's panel.
    window.PressTool(1);
    window.PressTool(5);
    QVERIFY(page.childAt(100, 560) == &window.Widget("picArgs1") ||
            page.childAt(100, 560) == &window.Widget("picArgs2"));
}

void LayoutTest::EveryControlHasAnAccessibleName() {
    TestWindow window;
    for (window::Control* control : window.Form().Controls()) {
        const bool takes_focus = window.view.WidgetOf(*control).focusPolicy() != Qt::NoFocus;
        const bool is_picture = control->Kind() == window::ControlKind::Picture;
        const bool is_ever_shown = control->Name() != "rtbHold" && control->Name() != "picRuts" &&
                                   !control->Name().starts_with("cboUnits");
        if (is_ever_shown && (takes_focus || is_picture))
            QVERIFY2(!window.view.WidgetOf(*control).accessibleName().isEmpty(), control->Name().c_str());
    }
}

}  // namespace tavrelo::window_test
