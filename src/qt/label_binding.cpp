#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include "qt/accessible.h"
#include "qt/bindings.h"
#include "qt/fonts.h"
#include "qt/text.h"

namespace tavrelo::qt {
namespace {

constexpr QRgb kAttentionColor = qRgb(255, 221, 87);  // dark letters stand out on it

/// A label that tells when it was clicked.
class ClickLabel : public QLabel, public TellsOfItself {
  public:
    using QLabel::QLabel;
    std::function<void()> OnClick;
    int word_pitch = 0;  // pixels on the screen
    bool calls_attention = false;

    QAccessibleInterface* NewAccessible() override { return new AccessibleText(*this); }

  protected:
    void paintEvent(QPaintEvent* event) override {
        if (calls_attention)
            QPainter(this).fillRect(rect(), kAttentionColor);
        if (word_pitch == 0)
            return QLabel::paintEvent(event);
        QPainter painter(this);
        const QStringList words = text().split(u' ', Qt::SkipEmptyParts);
        for (qsizetype i = 0; i < words.size(); ++i)
            painter.drawText(rect().translated(static_cast<int>(i) * word_pitch, 0),
                             static_cast<int>(alignment()), words[i]);
    }
    void mousePressEvent(QMouseEvent* event) override { event->accept(); }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
            OnClick();
    }
};

class LabelBinding : public Binding {
  public:
    LabelBinding(window::Label& label, ClickLabel& widget, ViewContext& context)
        : Binding(label, widget, context), m_label(label), m_widget(widget) {
        widget.setTextFormat(Qt::PlainText);
        widget.OnClick = [this] { Report([this] { m_label.UserClick(); }); };
    }

  protected:
    void ShowState() override {
        Binding::ShowState();
        m_widget.setText(ToQString(m_label.Caption()));
        m_widget.calls_attention = m_label.CallsAttention();
        m_widget.update();
        m_widget.word_pitch = Context().Scaled(m_label.WordPitch());
        if (m_label.OnClick)
            m_widget.setCursor(Qt::PointingHandCursor);
    }

  private:
    window::Label& m_label;
    ClickLabel& m_widget;
};

}  // namespace

std::unique_ptr<Binding> NewLabelBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    return std::make_unique<LabelBinding>(dynamic_cast<window::Label&>(control), *new ClickLabel(&parent),
                                          context);
}

}  // namespace tavrelo::qt
