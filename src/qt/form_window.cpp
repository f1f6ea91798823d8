#include "qt/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>

#include "qt/fonts.h"
#include "qt/pointers.h"
#include "qt/text.h"
#include "qt/zoom.h"

namespace tavrelo::qt {

namespace {

/// The part of the screen that is left for what is inside the frame of a window.
QRect RoomInFrame(const QWidget& window) {
    const QRect inside = window.geometry();
    const QRect outside = window.frameGeometry();
    return window.screen()->availableGeometry().adjusted(
        inside.left() - outside.left(), inside.top() - outside.top(), inside.right() - outside.right(),
        inside.bottom() - outside.bottom());
}

}  // namespace

PageArea::PageArea(QWidget& parent) : QScrollArea(&parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setAlignment(Qt::AlignCenter);
}

void PageArea::keyPressEvent(QKeyEvent* event) {
    if (horizontalScrollBar()->maximum() > 0 || verticalScrollBar()->maximum() > 0)
        QScrollArea::keyPressEvent(event);
    else
        event->ignore();
}

FormWindow::FormWindow(window::Window& model, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_model(model), m_area(*this), m_page(*new QWidget) {
    setObjectName(ToQString(model.Name()));
    m_area.setWidget(&m_page);
    // Else the first control of the window would have the focus as soon as the window is active.
    setFocus();
}

void FormWindow::SetBar(QWidget& bar) {
    m_bar = &bar;
    bar.setParent(this);
    PlaceParts();
}

void FormWindow::ShowState(int pointer) {
    const QString caption = ToQString(m_model.Caption());
    const QString subtitle = ToQString(m_model.Subtitle());
    setWindowTitle(subtitle.isEmpty() ? caption : QStringLiteral("%1 – %2").arg(caption, subtitle));
    setCursor(ToCursor(pointer));
    if (m_model.Visible() && isHidden() && parentWidget()) {
        QRect place = rect();
        place.moveCenter(parentWidget()->geometry().center());
        // The frame of a window that was never shown is not known; that of its parent is the same.
        const QRect room = RoomInFrame(*parentWidget());
        move(MovedInside(place, room).topLeft() - room.topLeft() + screen()->availableGeometry().topLeft());
    }
    setVisible(m_model.Visible());
}

QSizeF FormWindow::OwnSize() const {
    return {static_cast<double>(m_model.Bounds().width), static_cast<double>(m_model.Bounds().height)};
}

QSize FormWindow::SizeAt(double zoom) const { return PageSize(OwnSize(), zoom); }

QRect FormWindow::Room() const { return RoomInFrame(*this); }

QSize FormWindow::SizeFor(double zoom) const {
    const int scroll_bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &m_area);
    return FrameSize(OwnSize(), zoom, Room().size(), scroll_bar);
}

void FormWindow::ResizeFor(double zoom) {
    resize(SizeFor(zoom));
    const QRect place = MovedInside(geometry(), Room());
    if (isVisible() && place != geometry())
        setGeometry(place);
}

void FormWindow::ShowZoom(double zoom) {
    m_page.setFont(InterfaceFont(zoom));
    m_page.resize(SizeAt(zoom));
    PlaceParts();
}

QAccessibleInterface* FormWindow::NewAccessible() {
    const bool is_dialog = windowType() == Qt::Dialog;
    return new QAccessibleWidget(this, is_dialog ? QAccessible::Dialog : QAccessible::Window);
}

void FormWindow::PlaceParts() {
    // Scroll bars, boxes and the bar below are as large as the frame, however far the page is zoomed in it.
    const double scale = m_bar ? FittingZoom(OwnSize(), size()) : m_page.width() / OwnSize().width();
    setFont(InterfaceFont(scale));
    int bar_height = m_bar ? BarHeight(scale) : 0;
    // Sizes are whole pixels: what rounding leaves is the bar's.
    const int rest = height() - m_page.height();
    if (m_bar && std::abs(rest - bar_height) == 1)
        bar_height = rest;
    const QSize room(width(), height() - bar_height);
    const bool is_whole = m_page.size().boundedTo(room) == m_page.size();
    m_area.setHorizontalScrollBarPolicy(is_whole ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    m_area.setVerticalScrollBarPolicy(is_whole ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    m_area.setGeometry(QRect(QPoint(), room));
    if (m_bar)
        m_bar->setGeometry(0, height() - bar_height, width(), bar_height);
}

FormWindow::Anchor FormWindow::AnchorAt(const QPointF& place) const {
    const QPointF on_page = m_page.mapFrom(this, place);
    return {{on_page.x() / m_page.width(), on_page.y() / m_page.height()}, place};
}

void FormWindow::ScrollTo(const Anchor& anchor) {
    const auto scroll = [](QScrollBar& bar, double part, int page, double place) {
        bar.setValue(qRound(part * page - place));
    };
    scroll(*m_area.horizontalScrollBar(), anchor.part.x(), m_page.width(), anchor.place.x());
    scroll(*m_area.verticalScrollBar(), anchor.part.y(), m_page.height(), anchor.place.y());
}

void FormWindow::BringIntoView(QWidget& widget) {
    constexpr int kMargin = 8;
    if (!m_page.isAncestorOf(&widget))
        return;
    // Of a widget larger than the view its beginning is shown.
    const QRect place(widget.mapTo(&m_page, QPoint()), widget.size());
    m_area.ensureVisible(place.right(), place.bottom(), kMargin, kMargin);
    m_area.ensureVisible(place.left(), place.top(), kMargin, kMargin);
}

void FormWindow::closeEvent(QCloseEvent* event) {
    m_model.UserClose();
    event->setAccepted(!m_model.Visible());
}

void FormWindow::resizeEvent(QResizeEvent*) {
    if (OnResize)
        OnResize();
    PlaceParts();
}

void FormWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange && OnWindowState)
        OnWindowState();
    QWidget::changeEvent(event);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool is_dialog = windowType() == Qt::Dialog;
    if (is_dialog && event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_Escape && OnEscape)
        OnEscape();
    else
        event->ignore();
}

bool FormWindow::focusNextPrevChild(bool next) {
    if (OnTab)
        OnTab();
    return QWidget::focusNextPrevChild(next);
}

}  // namespace tavrelo::qt
