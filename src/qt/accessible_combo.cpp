#include "qt/accessible_combo.h"

#include <QAbstractItemView>
#include <algorithm>

namespace tavrelo::qt {

AccessibleCombo::AccessibleCombo(QComboBox& combo)
    : QAccessibleWidget(&combo, QAccessible::ComboBox), m_combo(combo) {}

void* AccessibleCombo::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleCombo::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    const bool is_open = m_combo.view()->isVisible();
    state.expandable = true;
    state.expanded = is_open;
    state.collapsed = !is_open;
    state.hasPopup = true;
    return state;
}

QString AccessibleCombo::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value ? m_combo.currentText() : QAccessibleWidget::text(kind);
}

QAccessibleInterface* AccessibleCombo::child(int index) const {
    return index == 0 ? QAccessible::queryAccessibleInterface(m_combo.view()) : nullptr;
}

int AccessibleCombo::indexOfChild(const QAccessibleInterface* wanted) const {
    return wanted && wanted == child(0) ? 0 : -1;
}

QStringList AccessibleCombo::actionNames() const { return {showMenuAction(), pressAction()}; }

void AccessibleCombo::doAction(const QString& action) {
    if ((action != showMenuAction() && action != pressAction()) || !m_combo.isEnabled())
        return;
    if (m_combo.view()->isVisible())
        m_combo.hidePopup();
    else
        m_combo.showPopup();
}

QString AccessibleCombo::text(int start, int end) const {
    return m_combo.currentText().mid(start, std::max(end - start, 0));
}

int AccessibleCombo::characterCount() const { return static_cast<int>(m_combo.currentText().size()); }

void AccessibleCombo::setCursorPosition(int /*position*/) {}

QString AccessibleCombo::attributes(int /*offset*/, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

QRect AccessibleCombo::characterRect(int /*offset*/) const { return rect(); }

int AccessibleCombo::offsetAtPoint(const QPoint& /*point*/) const { return 0; }

void AccessibleCombo::scrollToSubstring(int /*start*/, int /*end*/) {}

void AccessibleCombo::selection(int /*index*/, int* start, int* end) const { *start = *end = 0; }

void AccessibleCombo::addSelection(int /*start*/, int /*end*/) {}

void AccessibleCombo::removeSelection(int /*index*/) {}

void AccessibleCombo::setSelection(int /*index*/, int /*start*/, int /*end*/) {}

}  // namespace tavrelo::qt
