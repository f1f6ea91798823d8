#pragma once

#include <QStringList>
#include <QWidget>

#include "qt/accessible.h"

namespace tavrelo::qt {

/// Has readers of the screen say what has just changed. The toolkit has no event for that before its version
/// 6.8, so this is a notification, never seen, in the tree of the window: it takes the sentence as its name
/// and is told to have appeared, which readers say at once, wherever the focus is. What one handler says is
/// said in one go.
class Announcer : public QWidget, public TellsOfItself {
  public:
    explicit Announcer(QWidget& window);

    void Say(const QString& sentence);

    QAccessibleInterface* NewAccessible() override;

  private:
    void SayWaiting();

    QStringList m_waiting;
};

}  // namespace tavrelo::qt
