#pragma once

#include <QAccessibleWidget>
#include <QTabBar>
#include <vector>

namespace tavrelo::qt {

/// A row of tabs with a name of its own; each tab tells whether it is the one in front, which the toolkit
/// does not say.
class AccessibleTabs : public QAccessibleWidget {
  public:
    explicit AccessibleTabs(QTabBar& bar);
    ~AccessibleTabs() override;

    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    /// The tab in front, while the keys are there.
    QAccessibleInterface* focusChild() const override;

  private:
    QTabBar& m_bar;
    mutable std::vector<QAccessible::Id> m_tabs;
};

/// The page below the tabs, called after the tab in front.
class AccessiblePage : public QAccessibleWidget {
  public:
    AccessiblePage(QWidget& page, const QTabBar& bar);

    QString text(QAccessible::Text kind) const override;

  private:
    const QTabBar& m_bar;
};

}  // namespace tavrelo::qt
