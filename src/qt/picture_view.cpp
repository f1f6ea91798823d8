#include "qt/picture_view.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "qt/canvas.h"
#include "qt/flat_parts.h"
#include "qt/free_window.h"
#include "qt/keys.h"
#include "qt/later.h"
#include "qt/picture_menu.h"
#include "qt/pointers.h"
#include "qt/text.h"

namespace tavrelo::qt {
namespace {

constexpr QRgb kInvitationColor = qRgb(0x70, 0x70, 0x70);  // on white paper

}  // namespace

PictureView::PictureView(window::Picture& model, QWidget& parent, const ViewContext& context)
    : QWidget(&parent), m_picture(model), m_context(context) {
    setMouseTracking(true);
    if (model.HasCells())
        setFocusPolicy(Qt::TabFocus);
}

void PictureView::SetMenu(bool has_menu) {
    m_has_menu = has_menu;
    if (has_menu)
        setFocusPolicy(Qt::TabFocus);
    setContextMenuPolicy(has_menu ? Qt::DefaultContextMenu : Qt::PreventContextMenu);
}

void PictureView::ShowPointer() {
    if (m_picture.PointerShape() == window::kPointerDefault)
        unsetCursor();
    else
        setCursor(ToCursor(m_picture.PointerShape()));
}

bool PictureView::event(QEvent* event) {
    // The tooltip goes with the pointer from place to place without leaving the picture.
    if (event->type() == QEvent::ToolTipChange && underMouse() && QToolTip::isVisible())
        QToolTip::showText(QCursor::pos(), toolTip(), this);
    if (event->type() == QEvent::ToolTip && m_picture.Tooltip().empty()) {
        const auto& help = static_cast<const QHelpEvent&>(*event);
        ShowTipAt(help.pos(), help.globalPos());
        return true;
    }
    return QWidget::event(event);
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (m_has_menu)
        painter.fillRect(rect(), Qt::white);
    else if (IsDark(palette()))
        painter.fillRect(rect(), ShadeOf(kWindow, false));  // drawings are made for light paper
    PaintRecording(painter, m_picture.Canvas(), m_context.zoom, m_context.artwork, m_context.text_look);
    PaintInvitation(painter);
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (m_has_menu) {
        painter.setPen(palette().color(QPalette::Mid));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    PaintCells(painter);
}

void PictureView::PaintCells(QPainter& painter) const {
    const auto cells = Cells();
    const auto place_of = [&](int cell) {
        return m_context.Scaled(cells[static_cast<std::size_t>(cell)].bounds);
    };
    if (m_pointed_cell >= 0 && m_pointed_cell < static_cast<int>(cells.size()) && underMouse())
        DrawHover(painter, place_of(m_pointed_cell), m_context.zoom, m_is_pressed);
    if (!hasFocus())
        return;
    const int current = m_picture.CurrentCell(cells);
    const QRect place = current == window::kNoCell ? rect() : place_of(current);
    DrawFocusFrame(painter, place & rect(), m_context.zoom, m_picture.HeldWith().has_value());
}

QRect PictureView::CellOnScreen(int cell) const {
    const QRect place = m_context.Scaled(Cells()[static_cast<std::size_t>(cell)].bounds);
    return {mapToGlobal(place.topLeft()), place.size()};
}

void PictureView::FocusCell(int cell) {
    m_picture.UserGoToCell(cell);
    setFocus(Qt::OtherFocusReason);
}

void PictureView::PressCell(int cell) {
    m_picture.UserGoToCell(cell);
    m_picture.UserChooseCell({});
}

void PictureView::ShowCells() {
    update();
    TellCurrentCell();
}

void PictureView::TellCurrentCell() {
    const int current = hasFocus() && QAccessible::isActive() ? CurrentCell() : window::kNoCell;
    if (current == window::kNoCell)
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(current);
    QAccessible::updateAccessibility(&event);
}

bool PictureView::TakeKey(const QKeyEvent& event) {
    const bool asks_menu =
        event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
    if (asks_menu && m_has_menu) {
        ShowMenu(mapToGlobal(rect().center()));
        return true;
    }
    const auto stroke = ToKeyStroke(event);
    const bool chooses = (stroke && stroke->key == window::Key::Enter) || event.key() == Qt::Key_Space;
    if (m_picture.HasCells() && (asks_menu || chooses)) {
        window::CellPress press;
        press.button = asks_menu ? window::MouseButton::Right : window::MouseButton::Left;
        press.shift = !asks_menu && event.modifiers().testFlag(Qt::ShiftModifier);
        press.ctrl = event.modifiers().testFlag(Qt::ControlModifier);
        press.alt = event.modifiers().testFlag(Qt::AltModifier);
        m_picture.UserChooseCell(press);
        return true;
    }
    if (!stroke)
        return false;
    if (stroke->key == window::Key::Escape && m_picture.HeldWith()) {
        m_picture.UserLetGo();
        return true;
    }
    const bool moves = !stroke->ctrl && !stroke->alt && !stroke->shift;
    // At the edge the arrow is taken all the same: it must not turn into something else.
    return moves && m_picture.HasCells() && (m_picture.UserMoveCell(stroke->key) || IsArrow(stroke->key));
}

void PictureView::keyPressEvent(QKeyEvent* event) {
    if (!TakeKey(*event))
        event->ignore();
}

void PictureView::focusInEvent(QFocusEvent*) {
    update();
    // The widget tells its own focus first.
    Later(*this, [this] { TellCurrentCell(); });
}

void PictureView::focusOutEvent(QFocusEvent* event) {
    const bool stays =
        event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    if (!stays)
        m_picture.UserLetGo();
    update();
}

void PictureView::leaveEvent(QEvent*) { PointAt(window::kNoCell); }

void PictureView::PointAt(int cell) {
    if (cell == m_pointed_cell)
        return;
    m_pointed_cell = cell;
    update();
}

void PictureView::PaintInvitation(QPainter& painter) const {
    const std::string& line = m_picture.Canvas().Invitation();
    if (line.empty())
        return;
    constexpr int kMargin = 12;  // pixels at 100 %
    const int margin = m_context.Scaled(kMargin);
    painter.setFont(font());
    painter.setPen(kInvitationColor);
    painter.drawText(rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap, ToQString(line));
}

window::Point PictureView::ToPixels(const QPointF& place) const {
    return {place.x() / m_context.zoom, place.y() / m_context.zoom};
}

void PictureView::ShowTipAt(const QPointF& place, const QPoint& global) {
    const std::string text = m_picture.Canvas().TipAt(ToPixels(place));
    if (text.empty())
        QToolTip::hideText();
    else
        QToolTip::showText(global, ToQString(text), this);
}

window::MouseStroke PictureView::ToStroke(const QMouseEvent& event) const {
    const window::Point own = m_picture.ToOwnUnits(ToPixels(event.position()));
    const bool is_right = event.button() == Qt::RightButton || (event.buttons() & Qt::RightButton);
    return {own.x,
            own.y,
            is_right ? window::MouseButton::Right : window::MouseButton::Left,
            event.modifiers().testFlag(Qt::ShiftModifier),
            event.modifiers().testFlag(Qt::ControlModifier),
            event.modifiers().testFlag(Qt::AltModifier)};
}

bool PictureView::IsForModel(const QMouseEvent& event) const {
    return event.button() == Qt::LeftButton || (event.button() == Qt::RightButton && !m_has_menu);
}

void PictureView::mousePressEvent(QMouseEvent* event) {
    if (!IsForModel(*event))
        return;
    m_is_pressed = true;
    update();
    m_picture.UserMouseDown(ToStroke(*event));
}

void PictureView::mouseMoveEvent(QMouseEvent* event) {
    m_picture.UserMouseMove(ToStroke(*event));
    const auto cells = Cells();
    const int cell = window::CellUnder(cells, ToPixels(event->position()));
    const bool is_usable = cell != window::kNoCell && cells[static_cast<std::size_t>(cell)].enabled;
    PointAt(is_usable ? cell : window::kNoCell);
    // A tip in view goes with the pointer, so that a curve can be followed.
    if (m_has_menu && QToolTip::isVisible())
        ShowTipAt(event->position(), event->globalPosition().toPoint());
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
    if (!IsForModel(*event))
        return;
    m_is_pressed = false;
    update();
    m_picture.UserMouseUp(ToStroke(*event));
}

void PictureView::contextMenuEvent(QContextMenuEvent* event) {
    // The key has its own way.
    if (event->reason() != QContextMenuEvent::Keyboard)
        ShowMenu(event->globalPos());
}

void PictureView::ShowMenu(const QPoint& place) {
    QMenu menu(this);
    menu.setFont(font());
    AddPictureActions(menu, m_picture, m_context);
    menu.addAction(QString::fromLatin1(kOpenFreeCaption), this, [this] { m_context.open_free(m_picture); });
    menu.exec(place);
}

}  // namespace tavrelo::qt
