#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "app/program.h"
#include "qt/boxes.h"
#include "qt/clipboard.h"
#include "qt/files.h"
#include "qt/main_window.h"
#include "qt/printing.h"
#include "qt/text.h"
#include "window/guarded.h"

namespace tavrelo::window_test {

/// A fresh program in a window on the screen, at 100 %.
class TestWindow {
  public:
    TestWindow() {
        view.SetZoom(1);
        view.Show();
        QApplication::setActiveWindow(&view.Frame());
        QCoreApplication::processEvents();
        if (!QTest::qWaitFor([this] { return view.Bar().IsFilled(); }))
            QTest::qFail("the bar below the page stays empty", __FILE__, __LINE__);
    }

    /// Presses toolbar button 1 to 9.
    void PressTool(int button) {
        constexpr int kButtonWidth = 37;
        constexpr int kMiddle = 16;
        const QPoint place(button * kButtonWidth - kButtonWidth / 2, kMiddle);
        QTest::mouseClick(&Widget("Image1"), Qt::LeftButton, {}, place * view.Zoom());
    }

    window::Form1& Form() { return program.Window(); }
    QWidget& Widget(const char* name) { return view.WidgetOf(*Form().Find(name)); }
    template <class WidgetType>
    WidgetType& As(const char* name) {
        return dynamic_cast<WidgetType&>(Widget(name));
    }
    /// Name of the control that has the focus; empty for none.
    std::string FocusName() {
        const window::Control* focused = view.FocusedControl();
        return focused ? focused->Name() : std::string();
    }

  private:
    qt::FolderFiles files{TAVRELO_PROGRAM_FOLDER};
    qt::Artwork artwork{files};
    qt::WindowBoxes boxes;
    qt::SystemClipboard clipboard{artwork};
    qt::SystemPrinter printer;

  public:
    app::Program program{{boxes, clipboard, printer, files}};
    qt::MainWindow view{program.Window(), artwork};
};

/// Runs `look` on the box or menu that the next event loop waits for, which `look` has to end.
template <class WidgetType, class Look>
void WhenOpen(Look look) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, look] {
        QWidget* waiting = QApplication::activePopupWidget();
        if (!waiting)
            waiting = QApplication::activeModalWidget();
        if (auto* widget = qobject_cast<WidgetType*>(waiting)) {
            timer->deleteLater();
            timer->stop();
            look(*widget);
        }
    });
    timer->start(1);
}

}  // namespace tavrelo::window_test
