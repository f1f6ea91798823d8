#include "qt/later.h"

#include <QTimer>

namespace tavrelo::qt {

void Later(QObject& context, const std::function<void()>& action, std::chrono::milliseconds while_after) {
    auto* timer = new QTimer(&context);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, &context, [timer, action] {
        timer->deleteLater();
        action();
    });
    timer->start(while_after);
}

}  // namespace tavrelo::qt
