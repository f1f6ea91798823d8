#pragma once

#include <QObject>
#include <chrono>
#include <functional>

namespace tavrelo::qt {

/// Does something once the handler under way has ended, and a while after it; never, if the context is gone
/// by then.
void Later(QObject& context, const std::function<void()>& action, std::chrono::milliseconds while_after = {});

}  // namespace tavrelo::qt
