#include "qt/picture_view.h"

#include <QContextMenuEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "qt/canvas.h"
#include "qt/clipboard.h"
#include "qt/pointers.h"

namespace tavrelo::qt {

PictureView::PictureView(window::Picture& model, QWidget& parent, const ViewContext& context)
    : QWidget(&parent), m_picture(model), m_context(context) {
    setMouseTracking(true);
}

void PictureView::SetMenu(bool has_menu) {
    m_has_menu = has_menu;
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
    return QWidget::event(event);
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (m_has_menu)
        painter.fillRect(rect(), Qt::white);
    PaintRecording(painter, m_picture.Canvas(), m_context.zoom, m_context.artwork);
    if (!m_has_menu)
        return;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

window::MouseStroke PictureView::ToStroke(const QMouseEvent& event) const {
    const QPointF pixels = event.position() / m_context.zoom;
    const window::Point own = m_picture.ToOwnUnits({pixels.x(), pixels.y()});
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
    if (IsForModel(*event))
        m_picture.UserMouseDown(ToStroke(*event));
}

void PictureView::mouseMoveEvent(QMouseEvent* event) { m_picture.UserMouseMove(ToStroke(*event)); }

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
    if (IsForModel(*event))
        m_picture.UserMouseUp(ToStroke(*event));
}

void PictureView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.setFont(font());
    menu.addAction(QStringLiteral("Copiar imagen"), this, &PictureView::CopyImage);
    menu.addAction(QStringLiteral("Guardar imagen..."), this, &PictureView::SaveImage);
    menu.exec(event->globalPos());
}

void PictureView::CopyImage() const { SystemClipboard(m_context.artwork).SetPicture(m_picture.Canvas()); }

void PictureView::SaveImage() {
    const QString path =
        QFileDialog::getSaveFileName(window(), QStringLiteral("Guardar imagen"),
                                     QStringLiteral("pizarron.png"), QStringLiteral("Imagen PNG (*.png)"));
    if (path.isEmpty())
        return;
    const bool saved = ToImage(m_picture.Canvas(), kExportScale, m_context.artwork).save(path, "PNG");
    if (!saved)
        m_context.form.boxes.Tell("No pude guardar la imagen.");
}

}  // namespace tavrelo::qt
