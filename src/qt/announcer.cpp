#include "qt/announcer.h"

#include <utility>

#include "qt/later.h"

namespace tavrelo::qt {

Announcer::Announcer(QWidget& window) : QWidget(&window) { hide(); }

QAccessibleInterface* Announcer::NewAccessible() {
    return new QAccessibleWidget(this, QAccessible::Notification);
}

void Announcer::Say(const QString& sentence) {
    if (sentence.trimmed().isEmpty())
        return;
    m_waiting << sentence.trimmed();
    if (m_waiting.size() == 1)
        Later(*this, [this] { SayWaiting(); });
}

void Announcer::SayWaiting() {
    setAccessibleName(std::exchange(m_waiting, {}).join(u'\n'));
    QAccessibleEvent event(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

}  // namespace tavrelo::qt
