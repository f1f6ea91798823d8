#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QScreen>
#include <QStyleOption>
#include <QToolTip>
#include <QWheelEvent>
#include <utility>

#include "qt/accessible.h"
#include "qt/accessible_combo.h"
#include "qt/bindings.h"
#include "qt/text.h"

namespace tavrelo::qt {
namespace {

/// A combo whose list opens as wide as its longest row, as far as the screen holds it, and which the wheel
/// moves only while it has the focus.
class WideCombo : public QComboBox, public TellsOfItself {
  public:
    explicit WideCombo(QWidget& parent) : QComboBox(&parent) {
        connect(this, &QComboBox::currentTextChanged, this, [this](const QString& text) { TellRow(text); });
    }

    QAccessibleInterface* NewAccessible() override { return new AccessibleCombo(*this); }

    void showPopup() override {
        const QMargins margins = view()->contentsMargins();
        const int scroll_bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        ShowRowsOf(view()->sizeHintForColumn(0) + margins.left() + margins.right() + scroll_bar);
        QComboBox::showPopup();
        // The bar at its foot is added to a list that already ends with the screen.
        QWidget& list = *view()->parentWidget();
        list.setGeometry(list.geometry() & screen()->availableGeometry());
        // Without the bar the view took its rows to be as wide as itself.
        view()->doItemsLayout();
    }

  protected:
    /// A row that the box cuts short is told whole under the pointer.
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ToolTip && IsCut()) {
            QToolTip::showText(static_cast<const QHelpEvent&>(*event).globalPos(), currentText(), this);
            return true;
        }
        return QComboBox::event(event);
    }
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus())
            QComboBox::wheelEvent(event);
        else
            event->ignore();
    }

  private:
    bool IsCut() const {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const QRect place =
            style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
        return fontMetrics().horizontalAdvance(currentText()) > place.width();
    }
    /// Makes the list that wide; rows wider than the screen are scrolled.
    void ShowRowsOf(int needed) {
        const QMargins frame = view()->parentWidget()->contentsMargins();
        const int widest = screen()->availableSize().width() - frame.left() - frame.right();
        const bool is_scrolled = needed > widest;
        view()->setMinimumWidth(std::min(std::max(width(), needed), widest));
        view()->setHorizontalScrollBarPolicy(is_scrolled ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        view()->setTextElideMode(is_scrolled ? Qt::ElideNone : Qt::ElideRight);
    }

    void TellRow(const QString& text) {
        QAccessibleTextUpdateEvent event(this, 0, std::exchange(m_told, text), text);
        QAccessible::updateAccessibility(&event);
    }

    QString m_told;
};

class ComboBinding : public Binding {
  public:
    ComboBinding(window::ComboBox& combo, QComboBox& widget, ViewContext& context)
        : Binding(combo, widget, context), m_combo(combo), m_widget(widget) {
        connect(&widget, &QComboBox::activated, this,
                [this](int row) { Report([this, row] { m_combo.UserPick(row); }); });
    }

  protected:
    void ShowContent() override {
        QStringList rows;
        for (const std::string& item : m_combo.Items())
            rows << ToQString(item);
        m_widget.clear();
        m_widget.addItems(rows);
        ShowSelection();
    }
    void ShowSelection() override { m_widget.setCurrentIndex(m_combo.Index()); }
    QPalette::ColorRole BackRole() const override { return QPalette::Base; }

  private:
    window::ComboBox& m_combo;
    QComboBox& m_widget;
};

}  // namespace

std::unique_ptr<Binding> NewComboBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto* widget = new WideCombo(parent);
    widget->setMaxVisibleItems(20);
    // The list is measured when it opens, not when it is filled.
    widget->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return std::make_unique<ComboBinding>(dynamic_cast<window::ComboBox&>(control), *widget, context);
}

}  // namespace tavrelo::qt
