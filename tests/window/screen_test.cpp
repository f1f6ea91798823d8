#include <QAbstractItemView>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "qt/form_window.h"
#include "qt/zoom.h"
#include "qt/zoom_bar.h"
#include "test_window.h"
#include "tests.h"

// What the window does on screens of several sizes; screens.json names them.

namespace tavrelo::window_test {
namespace {

constexpr int kLastTool = 6;

QScreen& ScreenOf(const QString& name) {
    const auto screens = QGuiApplication::screens();
    return **std::ranges::find(screens, name, &QScreen::name);
}

void AddScreens() {
    QTest::addColumn<QString>("screen");
    for (const char* name : {"netbook", "laptop", "monitor", "wall"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

/// A window on one of the screens.
struct WindowOnScreen : TestWindow {
    explicit WindowOnScreen(const QString& name) : screen(ScreenOf(name)) {
        Frame().setScreen(&screen);
        Frame().move(screen.geometry().topLeft() + QPoint(40, 30));
        Frame().show();
        QCoreApplication::processEvents();
    }

    qt::FormWindow& Frame() { return view.Frame(); }
    QWidget& Page() { return *Widget("pic").parentWidget(); }
    QScrollArea& Area() { return *Frame().findChild<QScrollArea*>(); }
    qt::ZoomBar& Bar() { return view.Bar(); }
    QRect Available() const { return screen.availableGeometry(); }

    void Maximise() {
        Frame().setWindowState(Qt::WindowMaximized);
        QCoreApplication::processEvents();
    }
    void PressKey(Qt::Key key, int times = 1) {
        for (int i = 0; i < times; ++i)
            QTest::keyClick(&Frame(), key, Qt::ControlModifier);
        QCoreApplication::processEvents();
    }
    bool IsWhole() {
        return Area().horizontalScrollBar()->maximum() == 0 && Area().verticalScrollBar()->maximum() == 0;
    }
    /// Whether a widget of the page is seen whole in the frame.
    bool IsInView(const QWidget& widget) {
        const QRect place(widget.mapTo(Area().viewport(), QPoint()), widget.size());
        return Area().viewport()->rect().contains(place);
    }

    QScreen& screen;
};

}  // namespace

void ScreenTest::MaximisingScalesThePageEvenly_data() { AddScreens(); }

void ScreenTest::MaximisingScalesThePageEvenly() {
    QFETCH(QString, screen);
    WindowOnScreen window(screen);
    QCOMPARE(window.Frame().screen(), &window.screen);
    window.Maximise();
    QVERIFY(window.Available().contains(window.Frame().geometry()));
    QVERIFY(window.IsWhole());
    const double zoom = window.view.Zoom();
    QCOMPARE(window.Page().size(), QSize(qRound(800 * zoom), qRound(612 * zoom)));
    // Nothing larger would fit: with one pixel in each direction more the page and its bar leave no room.
    const QSize frame = window.Frame().size();
    const int bar = window.Bar().height();
    QVERIFY(zoom == qt::kLargestZoom || frame.width() - window.Page().width() <= 1 ||
            frame.height() - window.Page().height() - bar <= 1);
    QVERIFY(window.Bar().isVisible());
    QVERIFY(window.Frame().rect().contains(window.Bar().geometry()));
    const window::Rect& place = window.Form().Find("rtbCalc")->Bounds();
    const QRect scaled = window.Widget("rtbCalc").geometry();
    QVERIFY(std::abs(scaled.width() - place.width * zoom) <= 1);
    QVERIFY(std::abs(scaled.height() - place.height * zoom) <= 1);
}

void ScreenTest::GrowsOnlyAsFarAsTheScreenHolds_data() { AddScreens(); }

void ScreenTest::GrowsOnlyAsFarAsTheScreenHolds() {
    QFETCH(QString, screen);
    WindowOnScreen window(screen);
    double zoom = window.view.Zoom();
    while (zoom < qt::kLargestZoom) {
        window.PressKey(Qt::Key_Plus);
        QVERIFY(window.view.Zoom() > zoom);
        zoom = window.view.Zoom();
        QVERIFY(window.Available().contains(window.Frame().frameGeometry()));
        QCOMPARE(window.Page().size(), QSize(qRound(800 * zoom), qRound(612 * zoom)));
        // What the screen holds is not scrolled.
        const QRect room = window.Frame().Room();
        const QSize needed = window.Page().size() + QSize(0, qt::BarHeight(zoom));
        QCOMPARE(window.IsWhole(), needed.boundedTo(room.size()) == needed);
    }
}

void ScreenTest::EverythingIsReachedByScrolling_data() { AddScreens(); }

void ScreenTest::EverythingIsReachedByScrolling() {
    QFETCH(QString, screen);
    WindowOnScreen window(screen);
    window.PressTool(1);
    window.view.SetZoom(qt::kLargestZoom);
    QScrollBar& across = *window.Area().horizontalScrollBar();
    QScrollBar& down = *window.Area().verticalScrollBar();
    // The last control of the page stands at its foot, the exit of the toolbar at its upper right.
    down.setValue(down.maximum());
    across.setValue(across.maximum());
    QVERIFY(window.IsInView(window.Widget("picOpt")));
    down.setValue(0);
    QWidget& toolbar = window.Widget("Image1");
    const QPoint exit = toolbar.mapTo(window.Area().viewport(), toolbar.rect().bottomRight());
    QVERIFY(window.Area().viewport()->rect().contains(exit));
    across.setValue(0);
    QVERIFY(
        window.Area().viewport()->rect().contains(window.Page().mapTo(window.Area().viewport(), QPoint())));
    // The frame with its button to close is on the screen all the while, and so is the bar.
    QVERIFY(window.Available().contains(window.Frame().frameGeometry()));
    QVERIFY(window.Frame().rect().contains(window.Bar().geometry()));
}

void ScreenTest::AMaximisedWindowStaysAsLargeAsItIs() {
    WindowOnScreen window(QStringLiteral("laptop"));
    window.Maximise();
    const QRect frame = window.Frame().geometry();
    window.PressKey(Qt::Key_Plus, 3);
    QVERIFY(window.view.Zoom() > 1.5);
    QCOMPARE(window.Frame().geometry(), frame);
    QVERIFY(!window.IsWhole());
    window.PressKey(Qt::Key_0);
    QCOMPARE(window.view.Zoom(), 1.0);
    QCOMPARE(window.Frame().geometry(), frame);
    QVERIFY(window.IsWhole());
    window.view.FitToFrame();
    QVERIFY(window.view.Zoom() > 1.1);
    QVERIFY(window.IsWhole());
    window.Frame().setWindowState(Qt::WindowNoState);
    QCoreApplication::processEvents();
    QVERIFY(window.IsWhole());
    QVERIFY(window.Frame().size() != frame.size());
}

void ScreenTest::ZoomingBackShowsThePageWhole() {
    WindowOnScreen window(QStringLiteral("laptop"));
    const QSize frame = window.Frame().size();
    window.PressKey(Qt::Key_Plus, 4);
    QVERIFY(!window.IsWhole());
    window.PressKey(Qt::Key_0);
    QCOMPARE(window.view.Zoom(), 1.0);
    QVERIFY(window.IsWhole());
    QCOMPARE(window.Frame().size(), frame);
}

void ScreenTest::TheFocusIsScrolledIntoView() {
    WindowOnScreen window(QStringLiteral("laptop"));
    window.PressTool(2);
    window.view.SetZoom(3);
    window.Area().verticalScrollBar()->setValue(0);
    QWidget& line = window.Widget("rtbExpr");
    QVERIFY(!window.IsInView(line));
    window.Form().SetFocus(*window.Form().Find("rtbExpr"));
    QVERIFY(window.IsInView(line));
    // A press of the mouse moves nothing away from below it.
    window.Area().verticalScrollBar()->setValue(window.Area().verticalScrollBar()->maximum() - 30);
    QTest::mousePress(&line, Qt::LeftButton, {}, QPoint(20, 5));
    QCOMPARE(window.Area().verticalScrollBar()->value(), window.Area().verticalScrollBar()->maximum() - 30);
    QTest::mouseRelease(&line, Qt::LeftButton, {}, QPoint(20, 5));
}

void ScreenTest::ThePlaceUnderThePointerStays() {
    WindowOnScreen window(QStringLiteral("laptop"));
    window.view.SetZoom(2);
    window.Area().verticalScrollBar()->setValue(200);
    const QPointF place(500, 300);  // in the frame, whose page shows there (500, 500) of 1600 by 1224
    QWheelEvent turn(place, window.Frame().mapToGlobal(place), {}, {0, 120}, Qt::NoButton,
                     Qt::ControlModifier, Qt::NoScrollPhase, false);
    const QPoint before = window.Page().mapFrom(&window.Frame(), place.toPoint());
    QCoreApplication::sendEvent(&window.Frame(), &turn);
    QCOMPARE(window.view.Zoom(), 2.5);
    const QPointF after = window.Page().mapFrom(&window.Frame(), place.toPoint()) / 2.5;
    QVERIFY((after - QPointF(before) / 2).manhattanLength() < 2);
}

void ScreenTest::ThePercentageIsShownAndOpensAMenu() {
    WindowOnScreen window(QStringLiteral("monitor"));
    QToolButton& percentage = window.Bar().Percentage();
    QCOMPARE(percentage.text(), QStringLiteral("100 %"));
    window.PressKey(Qt::Key_Plus);
    QCOMPARE(percentage.text(), QStringLiteral("110 %"));
    QVERIFY(percentage.isVisible());
    QVERIFY(percentage.fontMetrics().horizontalAdvance(percentage.text()) < percentage.width());

    const auto choose = [&](const QString& caption) {
        bool is_on_screen = false;
        percentage.click();
        auto* menu = window.Bar().findChild<QMenu*>();
        QVERIFY(menu);
        is_on_screen = window.Available().contains(menu->geometry());
        const auto actions = menu->actions();
        const auto action = std::ranges::find(actions, caption, &QAction::text);
        QVERIFY(action != actions.end());
        (*action)->trigger();
        menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(is_on_screen);
    };
    choose(QStringLiteral("150 %"));
    QCOMPARE(window.view.Zoom(), 1.5);
    window.Maximise();
    choose(QStringLiteral("50 %"));
    QCOMPARE(window.view.Zoom(), 0.5);
    choose(QStringLiteral("Ajustar a la ventana"));
    QVERIFY(window.view.Zoom() > 1.6);
    QVERIFY(window.IsWhole());
}

void ScreenTest::TheDialogStaysOnTheScreen_data() { AddScreens(); }

void ScreenTest::TheDialogStaysOnTheScreen() {
    QFETCH(QString, screen);
    WindowOnScreen window(screen);
    window.view.SetZoom(qt::kLargestZoom);
    window.PressTool(7);
    QCoreApplication::processEvents();
    QWidget& close = window.Widget("cmdCloseForm2");
    QVERIFY(close.isVisible());
    QVERIFY(window.Available().contains(close.window()->frameGeometry()));
    QVERIFY(close.window()->rect().contains(QRect(close.mapTo(close.window(), QPoint()), close.size())));
}

void ScreenTest::BoxesStayOnTheScreen_data() { AddScreens(); }

void ScreenTest::BoxesStayOnTheScreen() {
    QFETCH(QString, screen);
    WindowOnScreen window(screen);
    window.view.SetZoom(qt::kLargestZoom);
    QRect place;
    WhenOpen<QMessageBox>([&place](QMessageBox& box) {
        place = box.frameGeometry();
        box.button(QMessageBox::Ok)->click();
    });
    window.Form().boxes.Tell("La cuerda de la izquierda tendría que empujar: el problema no tiene solución.");
    QVERIFY(place.isValid());
    QVERIFY(window.Available().contains(place));
}

namespace {

/// A box or a list as it stands on the screen.
struct Shown {
    QRect place;
    bool is_whole = false;

    template <class Box>
    void Look(Box& box, const char* label_name) {
        place = box.frameGeometry();
        const auto* label = box.template findChild<QLabel*>(QString::fromLatin1(label_name));
        const QRect needed = label->fontMetrics().boundingRect(
            label->contentsRect(), label->wordWrap() ? Qt::TextWordWrap : 0, label->text());
        is_whole = label->contentsRect().size().expandedTo(needed.size()) == label->contentsRect().size();
    }
};

}  // namespace

void ScreenTest::BoxesHoldLongTexts_data() { AddScreens(); }

void ScreenTest::BoxesHoldLongTexts() {
    QFETCH(QString, screen);
    WindowOnScreen window(screen);
    window.view.SetZoom(qt::kLargestZoom);
    const QString line =
        QStringLiteral("La suma de los momentos respecto del apoyo de la izquierda da ").repeated(4);
    const std::string text = qt::ToUtf8((line + QLatin1Char('\n')).repeated(6));
    Shown message;
    WhenOpen<QMessageBox>([&message](QMessageBox& box) {
        message.Look(box, "qt_msgbox_label");
        box.button(QMessageBox::Ok)->click();
    });
    window.Form().boxes.Tell(text);
    QVERIFY(message.is_whole);
    QVERIFY(window.Available().contains(message.place));
    Shown input;
    WhenOpen<QInputDialog>([&input](QInputDialog& box) {
        input.Look(box, "");
        box.reject();
    });
    window.Form().boxes.AskText(text, "Tavrelo");
    QVERIFY(input.is_whole);
    QVERIFY(window.Available().contains(input.place));
}

void ScreenTest::ListsStayOnTheScreen_data() { AddScreens(); }

void ScreenTest::ListsStayOnTheScreen() {
    QFETCH(QString, screen);
    WindowOnScreen window(screen);
    window.PressTool(1);
    window.PressTool(8);
    window.view.SetZoom(qt::kLargestZoom);
    auto& combo = window.As<QComboBox>("cboHelp");
    constexpr int kRows = 60;
    for (int row = 0; row < kRows; ++row)
        combo.addItem(QStringLiteral("Encontrar el centro y el radio de la circunferencia por tres puntos ")
                          .repeated(3));
    combo.showPopup();
    QCoreApplication::processEvents();
    const QWidget& list = *combo.view()->window();
    QVERIFY(list.isVisible());
    QVERIFY(window.Available().contains(list.frameGeometry()));
    // Its last row and the ends of its rows are reached by scrolling.
    QVERIFY(combo.view()->verticalScrollBar()->maximum() > 0);
    combo.view()->scrollToBottom();
    const QRect last = combo.view()->visualRect(combo.model()->index(combo.count() - 1, 0));
    QVERIFY(last.bottom() <= combo.view()->viewport()->rect().bottom());
    const int longest = combo.view()->sizeHintForColumn(0);
    const int seen = combo.view()->viewport()->width() + combo.view()->horizontalScrollBar()->maximum();
    QVERIFY(longest <= seen);
    combo.hidePopup();
}

void ScreenTest::TheTitleNamesTheTool() {
    TestWindow window;
    QCOMPARE(window.view.Frame().windowTitle(), QStringLiteral("Tavrelo"));
    const char* const titles[kLastTool] = {"Calculadora científica",
                                           "Estática de la partícula",
                                           "Estática del cuerpo rígido",
                                           "Movimiento rectilíneo uniformemente acelerado",
                                           "Tiro parabólico",
                                           "Cinemática plana general"};
    for (int tool = 1; tool <= kLastTool; ++tool) {
        window.PressTool(tool);
        QCOMPARE(window.view.Frame().windowTitle(), QStringLiteral("Tavrelo – ") + titles[tool - 1]);
    }
    // Help and preferences leave the tool in use.
    window.PressTool(8);
    QCOMPARE(window.view.Frame().windowTitle(), QStringLiteral("Tavrelo – ") + titles[kLastTool - 1]);
    QCOMPARE(window.Form().Find("Form1")->Caption(), std::string("Tavrelo"));
}

}  // namespace tavrelo::window_test
