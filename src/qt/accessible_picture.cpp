#include "qt/accessible_picture.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <vector>

#include "qt/picture_view.h"
#include "qt/text.h"

namespace tavrelo::qt {
namespace {

QAccessible::Role RoleOf(window::CellRole role) {
    switch (role) {
        case window::CellRole::Choice:
            return QAccessible::RadioButton;
        case window::CellRole::Switch:
            return QAccessible::CheckBox;
        case window::CellRole::Button:
            break;
    }
    return QAccessible::PushButton;
}

/// One cell of a picture, by its index.
class AccessibleCell : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    AccessibleCell(PictureView& view, int index) : m_view(&view), m_index(index) {}

    bool isValid() const override { return m_view && m_index < m_view->CellCount(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    void setText(QAccessible::Text, const QString&) override {}

    QAccessible::Role role() const override { return isValid() ? RoleOf(Cell().role) : QAccessible::NoRole; }
    QRect rect() const override { return isValid() ? m_view->CellOnScreen(m_index) : QRect(); }
    QString text(QAccessible::Text kind) const override {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return ToQString(Cell().name);
        return kind == QAccessible::Description ? ToQString(Cell().tip) : QString();
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        const window::PictureCell cell = Cell();
        state.checkable = cell.role != window::CellRole::Button;
        state.checked = cell.checked;
        state.disabled = !cell.enabled || !m_view->isEnabled();
        state.focusable = !state.disabled;
        state.focused = m_view->hasFocus() && m_view->CurrentCell() == m_index;
        state.invisible = !m_view->isVisible();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (!isValid() || !Cell().enabled)
            return;
        if (action == setFocusAction())
            m_view->FocusCell(m_index);
        else if (action == pressAction())
            m_view->PressCell(m_index);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    window::PictureCell Cell() const { return m_view->Cells()[static_cast<std::size_t>(m_index)]; }

    QPointer<PictureView> m_view;
    int m_index;
};

/// A picture: its cells first, then the controls that lie on it.
class AccessiblePicture : public QAccessibleWidget {
  public:
    explicit AccessiblePicture(PictureView& view)
        : QAccessibleWidget(&view, view.CellCount() > 0 ? QAccessible::ToolBar : QAccessible::Graphic),
          m_view(view) {}
    ~AccessiblePicture() override {
        for (const QAccessible::Id id : m_cells)
            QAccessible::deleteAccessibleInterface(id);
    }

    QAccessible::Role role() const override {
        return m_view.CellCount() > 0 ? QAccessible::ToolBar : QAccessible::Graphic;
    }
    int childCount() const override { return m_view.CellCount() + QAccessibleWidget::childCount(); }
    QAccessibleInterface* child(int index) const override {
        const int cells = m_view.CellCount();
        if (index < 0 || index >= cells)
            return QAccessibleWidget::child(index - cells);
        // The toolkit owns what is registered, which the linter cannot see.
        // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks)
        while (static_cast<int>(m_cells.size()) <= index)
            m_cells.push_back(QAccessible::registerAccessibleInterface(
                new AccessibleCell(m_view, static_cast<int>(m_cells.size()))));
        // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
        return QAccessible::accessibleInterface(m_cells[static_cast<std::size_t>(index)]);
    }
    int indexOfChild(const QAccessibleInterface* wanted) const override {
        for (int index = 0; index < m_view.CellCount(); ++index)
            if (child(index) == wanted)
                return index;
        const int index = QAccessibleWidget::indexOfChild(wanted);
        return index < 0 ? index : index + m_view.CellCount();
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int index = 0; index < m_view.CellCount(); ++index)
            if (m_view.CellOnScreen(index).contains(x, y))
                return child(index);
        return QAccessibleWidget::childAt(x, y);
    }
    QAccessibleInterface* focusChild() const override {
        const int current = m_view.hasFocus() ? m_view.CurrentCell() : window::kNoCell;
        return current == window::kNoCell ? QAccessibleWidget::focusChild() : child(current);
    }

  private:
    PictureView& m_view;
    mutable std::vector<QAccessible::Id> m_cells;
};

QAccessibleInterface* NewAccessible(const QString&, QObject* object) {
    auto* view = dynamic_cast<PictureView*>(object);
    return view ? new AccessiblePicture(*view) : nullptr;
}

}  // namespace

void InstallAccessiblePictures() { QAccessible::installFactory(&NewAccessible); }

}  // namespace tavrelo::qt
