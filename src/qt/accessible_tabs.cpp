#include "qt/accessible_tabs.h"

#include <QPointer>

#include "qt/text.h"

namespace tavrelo::qt {
namespace {

/// One tab, by its index.
class AccessibleTab : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    AccessibleTab(QTabBar& bar, int index) : m_bar(&bar), m_index(index) {}

    bool isValid() const override { return m_bar && m_index < m_bar->count(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_bar ? m_bar->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_bar); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}

    QAccessible::Role role() const override { return QAccessible::PageTab; }
    QString text(QAccessible::Text kind) const override {
        return isValid() && kind == QAccessible::Name ? FromCaption(m_bar->tabText(m_index)) : QString();
    }
    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect place = m_bar->tabRect(m_index);
        return {m_bar->mapToGlobal(place.topLeft()), place.size()};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const bool is_in_front = m_bar->currentIndex() == m_index;
        state.invisible = !m_bar->isVisible();
        state.disabled = !m_bar->isEnabled();
        state.focusable = true;
        state.selectable = true;
        state.selected = is_in_front;
        state.active = is_in_front;
        state.focused = is_in_front && m_bar->hasFocus();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (isValid() && m_bar->isEnabled() && action == pressAction())
            m_bar->setCurrentIndex(m_index);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    QPointer<QTabBar> m_bar;
    int m_index;
};

}  // namespace

AccessibleTabs::AccessibleTabs(QTabBar& bar)
    : QAccessibleWidget(&bar, QAccessible::PageTabList), m_bar(bar) {}

AccessibleTabs::~AccessibleTabs() {
    for (const QAccessible::Id id : m_tabs)
        QAccessible::deleteAccessibleInterface(id);
}

QString AccessibleTabs::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? m_bar.parentWidget()->accessibleName() : QAccessibleWidget::text(kind);
}

int AccessibleTabs::childCount() const { return m_bar.count(); }

QAccessibleInterface* AccessibleTabs::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    // The toolkit owns what is registered, which the linter cannot see.
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks)
    while (static_cast<int>(m_tabs.size()) <= index)
        m_tabs.push_back(QAccessible::registerAccessibleInterface(
            new AccessibleTab(m_bar, static_cast<int>(m_tabs.size()))));
    // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
    return QAccessible::accessibleInterface(m_tabs[static_cast<std::size_t>(index)]);
}

int AccessibleTabs::indexOfChild(const QAccessibleInterface* wanted) const {
    for (int index = 0; index < childCount(); ++index)
        if (child(index) == wanted)
            return index;
    return -1;
}

QAccessibleInterface* AccessibleTabs::childAt(int x, int y) const {
    return child(m_bar.tabAt(m_bar.mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface* AccessibleTabs::focusChild() const {
    return m_bar.hasFocus() ? child(m_bar.currentIndex()) : nullptr;
}

AccessiblePage::AccessiblePage(QWidget& page, const QTabBar& bar)
    : QAccessibleWidget(&page, QAccessible::Grouping), m_bar(bar) {}

QString AccessiblePage::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name)
        return QAccessibleWidget::text(kind);
    return QStringLiteral("Ficha ") + FromCaption(m_bar.tabText(m_bar.currentIndex()));
}

}  // namespace tavrelo::qt
