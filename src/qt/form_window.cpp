#include "qt/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <algorithm>

#include "qt/fonts.h"
#include "qt/pointers.h"
#include "qt/text.h"

namespace tavrelo::qt {

FormWindow::FormWindow(window::Window& model, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_model(model), m_page(this) {
    setObjectName(ToQString(model.Name()));
    // Else the first control of the window would have the focus as soon as the window is active.
    setFocus();
}

void FormWindow::ShowState(int pointer) {
    setWindowTitle(ToQString(m_model.Caption()));
    setCursor(ToCursor(pointer));
    if (m_model.Visible() && isHidden() && parentWidget())
        move(parentWidget()->geometry().center() - rect().center());
    setVisible(m_model.Visible());
}

QSize FormWindow::SizeAt(double zoom) const {
    return {qRound(m_model.Bounds().width * zoom), qRound(m_model.Bounds().height * zoom)};
}

double FormWindow::ZoomFitting(const QSizeF& size) const {
    return std::min(size.width() / m_model.Bounds().width, size.height() / m_model.Bounds().height);
}

void FormWindow::ShowZoom(double zoom) {
    setFont(InterfaceFont(zoom));
    m_page.resize(SizeAt(zoom));
    PlacePage();
}

void FormWindow::PlacePage() {
    m_page.move(std::max(0, (width() - m_page.width()) / 2), std::max(0, (height() - m_page.height()) / 2));
}

void FormWindow::closeEvent(QCloseEvent* event) {
    m_model.UserClose();
    event->setAccepted(!m_model.Visible());
}

void FormWindow::resizeEvent(QResizeEvent*) {
    if (OnResize)
        OnResize();
    PlacePage();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    const bool is_dialog = windowType() == Qt::Dialog;
    if (is_dialog && event->key() == Qt::Key_Escape)
        close();
    else
        event->ignore();
}

}  // namespace tavrelo::qt
