#include "qt/application.h"

#include <exception>

#include "qt/boxes.h"
#include "text/refusal.h"

namespace tavrelo::qt {

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception&) {
        WindowBoxes().Tell(text::kCommandFailed);
        return true;
    }
}

}  // namespace tavrelo::qt
