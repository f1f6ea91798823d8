#include "qt/binding.h"

#include <QApplication>
#include <QEvent>
#include <QFocusEvent>
#include <QPalette>
#include <QScopedValueRollback>

#include "qt/fonts.h"
#include "qt/text.h"
#include "window/control_names.h"

namespace tavrelo::qt {

QRect ViewContext::Scaled(const window::Rect& rect) const {
    const int left = Scaled(rect.left);
    const int top = Scaled(rect.top);
    return {left, top, Scaled(rect.left + rect.width) - left, Scaled(rect.top + rect.height) - top};
}

Binding::Binding(window::Control& control, QWidget& widget, ViewContext& context)
    : m_control(control), m_widget(widget), m_context(context) {
    widget.setObjectName(ToQString(control.Name()));
    if (widget.focusPolicy() != Qt::NoFocus)
        widget.installEventFilter(this);
}

void Binding::Refresh(window::Change change) {
    const QScopedValueRollback refreshing(m_refreshing, m_refreshing + 1);
    switch (change) {
        case window::Change::State:
            ShowState();
            break;
        case window::Change::Content:
            ShowContent();
            break;
        case window::Change::Selection:
            ShowSelection();
            break;
        case window::Change::Focus:
            m_widget.setFocus(Qt::OtherFocusReason);
            break;
    }
}

void Binding::RefreshAll() {
    const QScopedValueRollback refreshing(m_refreshing, m_refreshing + 1);
    ShowState();
    ShowContent();
    ShowSelection();
}

bool Binding::IsPageInFront() const {
    const auto* strip = dynamic_cast<const window::TabStrip*>(m_control.Parent());
    return !strip || m_control.Page() == window::Control::kAllPages || m_control.Page() == strip->Current();
}

void Binding::ShowState() {
    m_widget.setGeometry(m_context.Scaled(m_control.Bounds()));
    const QString tooltip = ToQString(m_control.Tooltip());
    if (m_widget.toolTip() != tooltip)
        m_widget.setToolTip(tooltip);
    ShowName();
    ShowColors();
    ShowUnderline();
    m_widget.setEnabled(m_control.Enabled());
    const bool visible = m_control.Visible() && IsPageInFront();
    if (m_widget.isHidden() == visible)
        m_widget.setVisible(visible);
}

void Binding::ShowName() {
    const QString name = ToQString(window::AccessibleName(Form(), m_control));
    if (m_widget.accessibleName() != name)
        m_widget.setAccessibleName(name);
}

void Binding::ShowUnderline() {
    if (m_widget.font().underline() == m_control.Underlined())
        return;
    QFont font;
    font.setUnderline(m_control.Underlined());
    m_widget.setFont(font);
}

QColor Binding::BehindTexts() const {
    const QPalette look = QApplication::palette();
    if (!m_control.HasBackColor() && BackRole() != QPalette::Window)
        return look.color(BackRole());
    for (const window::Control* panel = &m_control; panel; panel = panel->Parent()) {
        if (panel->HasBackColor())
            return ToQColor(panel->BackColor());
        if (panel->Kind() == window::ControlKind::TabStrip)
            return look.color(QPalette::AlternateBase);
    }
    return look.color(QPalette::Window);
}

void Binding::ShowColors() {
    const bool has_own_text = m_control.ForeColor() != text::kBlack || m_control.HasBackColor();
    const text::Color shown =
        has_own_text ? ShownOn(ToColor(BehindTexts()), m_control.ForeColor(), m_context.text_look)
                     : text::kBlack;
    const Colors colors{shown, m_control.BackColor()};
    if (colors == m_colors)
        return;
    m_colors = colors;
    QPalette palette = OwnPalette();
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        for (const auto role : TextRoles())
            palette.setColor(group, role, ToQColor(shown));
    if (m_control.HasBackColor())
        palette.setColor(BackRole(), ToQColor(m_control.BackColor()));
    m_widget.setPalette(palette);
    m_widget.setAutoFillBackground(m_control.HasBackColor() && BackRole() == QPalette::Window);
}

std::vector<QPalette::ColorRole> Binding::TextRoles() const {
    if (m_control.ForeColor() != text::kBlack)
        return {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
    if (!m_control.HasBackColor())
        return {};
    // Boxes and buttons on a panel of its own colour keep the look's colours, texts and all.
    switch (BackRole()) {
        case QPalette::Base:
            return {QPalette::Text};
        case QPalette::Button:
            return {QPalette::ButtonText};
        default:
            return {QPalette::WindowText};
    }
}

void Binding::Rest() {
    m_is_resting = true;
    m_widget.setFocus(Qt::OtherFocusReason);
}

void Binding::Wake() {
    m_is_resting = false;
    if (m_control.IsUsable())
        Form().UserFocused(m_control);
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn && !m_is_resting && m_control.IsUsable())
        Form().UserFocused(m_control);
    if (event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        m_is_resting =
            m_is_resting && (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason);
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace tavrelo::qt
