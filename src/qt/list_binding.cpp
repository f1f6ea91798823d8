#include <QKeyEvent>
#include <QListWidget>
#include <algorithm>

#include "qt/bindings.h"
#include "qt/text.h"

namespace tavrelo::qt {
namespace {

std::vector<int> ChosenRows(const QListWidget& list) {
    std::vector<int> rows;
    for (const QModelIndex& index : list.selectionModel()->selectedIndexes())
        rows.push_back(index.row());
    std::ranges::sort(rows);
    return rows;
}

/// A list that tells each choice of the user's, also of a row that was chosen already.
class ChoiceList : public QListWidget {
  public:
    using QListWidget::QListWidget;
    std::function<void()> OnChoice;

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override {
        const bool is_choice = event->button() == Qt::LeftButton && itemAt(event->position().toPoint());
        QListWidget::mouseReleaseEvent(event);
        if (is_choice)
            OnChoice();
    }
    void keyPressEvent(QKeyEvent* event) override {
        const std::vector<int> before = ChosenRows(*this);
        QListWidget::keyPressEvent(event);
        if (ChosenRows(*this) != before)
            OnChoice();
    }
    void focusInEvent(QFocusEvent*) override {
        // The list's own handler would make a row current that nobody chose.
        viewport()->update();
    }
};

class ListBinding : public Binding {
  public:
    ListBinding(window::ListBox& list, ChoiceList& widget, ViewContext& context)
        : Binding(list, widget, context), m_list(list), m_widget(widget) {
        widget.setSelectionMode(list.multiple ? QAbstractItemView::ExtendedSelection
                                              : QAbstractItemView::SingleSelection);
        widget.OnChoice = [this] { Report([this] { m_list.UserPick(ChosenRows(m_widget)); }); };
    }

  protected:
    void ShowContent() override {
        m_widget.clear();
        for (const std::string& item : m_list.Items())
            m_widget.addItem(ToQString(item));
        ShowSelection();
    }
    void ShowSelection() override {
        for (int row = 0; row < m_widget.count(); ++row)
            if (m_widget.item(row)->isSelected() != m_list.IsChosen(row))
                m_widget.item(row)->setSelected(m_list.IsChosen(row));
    }
    QPalette::ColorRole BackRole() const override { return QPalette::Base; }

  private:
    window::ListBox& m_list;
    ChoiceList& m_widget;
};

}  // namespace

std::unique_ptr<Binding> NewListBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    return std::make_unique<ListBinding>(dynamic_cast<window::ListBox&>(control), *new ChoiceList(&parent),
                                         context);
}

}  // namespace tavrelo::qt
