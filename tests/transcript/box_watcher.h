#pragma once

#include <QObject>

#include "recorded_host.h"

class QDialog;
class QInputDialog;
class QMessageBox;

namespace tavrelo::transcript {

/// Sees every box that opens on the screen, records what it shows and presses the button that the queued
/// answer asks for. A box that nobody expected is closed and fails the run, so that none waits for ever.
class BoxWatcher : public QObject {
  public:
    explicit BoxWatcher(BoxLog& log);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Answer(QDialog& box);
    void AnswerMessage(QMessageBox& box);
    void AnswerInput(QInputDialog& box);

    BoxLog& m_log;
};

}  // namespace tavrelo::transcript
