#pragma once

#include <QObject>
#include <functional>

namespace tavrelo::qt {

/// Does something once the handler under way has ended; never, if the context is gone by then.
void Later(QObject& context, const std::function<void()>& action);

}  // namespace tavrelo::qt
