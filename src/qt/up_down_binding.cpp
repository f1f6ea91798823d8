#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QSpinBox>
#include <QStyleOption>
#include <QToolButton>

#include "qt/accessible.h"
#include "qt/bindings.h"

namespace tavrelo::qt {
namespace {

class Arrows;

/// The arrows as one thing with a number.
class AccessibleArrows : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    AccessibleArrows(Arrows& arrows, const window::UpDown& number);
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QString text(QAccessible::Text kind) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    QVariant currentValue() const override { return m_number.Value(); }
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override { return m_number.Maximum(); }
    QVariant minimumValue() const override { return m_number.Minimum(); }
    QVariant minimumStepSize() const override { return 1; }

  private:
    Arrows& m_arrows;
    const window::UpDown& m_number;
};

/// Two arrows beside a box that shows the number.
class Arrows : public QWidget, public TellsOfItself {
  public:
    Arrows(QWidget& parent, const window::UpDown& number)
        : QWidget(&parent), m_number(number), m_up(this), m_down(this) {
        setFocusPolicy(Qt::StrongFocus);
        SetUp(m_up, Qt::UpArrow, +1);
        SetUp(m_down, Qt::DownArrow, -1);
    }
    std::function<void(int step)> OnStep;

    QAccessibleInterface* NewAccessible() override { return new AccessibleArrows(*this, m_number); }

  protected:
    void resizeEvent(QResizeEvent*) override {
        m_up.setGeometry(0, 0, width(), height() / 2);
        m_down.setGeometry(0, height() / 2, width(), height() - height() / 2);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Up)
            OnStep(+1);
        else if (event->key() == Qt::Key_Down)
            OnStep(-1);
        else
            event->ignore();
    }

  private:
    void SetUp(QToolButton& button, Qt::ArrowType arrow, int step) {
        button.setArrowType(arrow);
        button.setAutoRepeat(true);
        button.setFocusPolicy(Qt::NoFocus);
        connect(&button, &QToolButton::clicked, this, [this, step] { OnStep(step); });
    }

    const window::UpDown& m_number;
    QToolButton m_up;
    QToolButton m_down;
};

AccessibleArrows::AccessibleArrows(Arrows& arrows, const window::UpDown& number)
    : QAccessibleWidget(&arrows, QAccessible::SpinBox), m_arrows(arrows), m_number(number) {}

QString AccessibleArrows::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value ? QString::number(m_number.Value()) : QAccessibleWidget::text(kind);
}

void* AccessibleArrows::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

void AccessibleArrows::setCurrentValue(const QVariant& value) {
    m_arrows.OnStep(value.toInt() - m_number.Value());
}

class ArrowsBinding : public Binding {
  public:
    ArrowsBinding(window::UpDown& number, Arrows& widget, ViewContext& context)
        : Binding(number, widget, context), m_number(number) {
        widget.OnStep = [this](int step) { Report([this, step] { Step(step); }); };
    }

  protected:
    void ShowSelection() override {
        QAccessibleValueChangeEvent event(&Widget(), m_number.Value());
        QAccessible::updateAccessibility(&event);
    }

  private:
    void Step(int step) {
        const int value = m_number.Value() + step;
        if (value >= m_number.Minimum() && value <= m_number.Maximum())
            m_number.UserSpin(value);
    }

    window::UpDown& m_number;
};

/// A box that shows its number itself.
class SpinBinding : public Binding {
  public:
    SpinBinding(window::UpDown& number, QSpinBox& widget, ViewContext& context)
        : Binding(number, widget, context), m_number(number), m_widget(widget) {
        connect(&widget, &QSpinBox::valueChanged, this,
                [this](int value) { Report([this, value] { m_number.UserSpin(value); }); });
    }

  protected:
    void ShowState() override {
        Binding::ShowState();
        ShowSelection();
    }
    void ShowSelection() override {
        m_widget.setRange(m_number.Minimum(), m_number.Maximum());
        m_widget.setValue(m_number.Value());
    }
    QPalette::ColorRole BackRole() const override { return QPalette::Base; }

  private:
    window::UpDown& m_number;
    QSpinBox& m_widget;
};

}  // namespace

std::unique_ptr<Binding> NewUpDownBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& number = dynamic_cast<window::UpDown&>(control);
    if (number.buddy)
        return std::make_unique<ArrowsBinding>(number, *new Arrows(parent, number), context);
    return std::make_unique<SpinBinding>(number, *new QSpinBox(&parent), context);
}

}  // namespace tavrelo::qt
