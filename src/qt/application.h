#pragma once

#include <QApplication>

namespace tavrelo::qt {

/// The application with a net under its event loop: a failure that a handler let through ends in a box, and
/// the program goes on with the next event.
class Application : public QApplication {
  public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace tavrelo::qt
