#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace tavrelo::qt {

/// The command line option that ends a program when its window stands on the screen, for measuring its start.
inline constexpr const char* kQuitAfterPaint = "--quit-after-paint";

/// Ends the application after the first painting of a window.
class QuitAfterPaint : public QObject {
  public:
    explicit QuitAfterPaint(QWidget& window) : QObject(&window) { window.installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, &QApplication::quit);
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace tavrelo::qt
