#pragma once

#include <QAccessibleWidget>
#include <QComboBox>

namespace tavrelo::qt {

/// A list that opens, called by its own name; the toolkit calls it by the row that is chosen. That row is
/// its value, and its text, which is what readers of the screen ask for.
class AccessibleCombo : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit AccessibleCombo(QComboBox& combo);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    /// The rows, as a list.
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

    QString text(int start, int end) const override;
    int characterCount() const override;
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int position) override;
    QString attributes(int offset, int* start, int* end) const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    int selectionCount() const override { return 0; }
    void selection(int index, int* start, int* end) const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;

  private:
    QComboBox& m_combo;
};

}  // namespace tavrelo::qt
