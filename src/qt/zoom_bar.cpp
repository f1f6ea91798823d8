#include "qt/zoom_bar.h"

#include <QMenu>
#include <chrono>
#include <utility>

#include "qt/later.h"
#include "qt/zoom.h"

namespace tavrelo::qt {
namespace {

QString PercentText(double zoom) {
    constexpr double kPercent = 100;
    return QStringLiteral("%1 %").arg(qRound(zoom * kPercent));
}

void SetUp(QToolButton& button, const QString& tip) {
    button.setToolTip(tip);
    button.setAutoRaise(true);
    button.setFocusPolicy(Qt::TabFocus);
    button.setToolButtonStyle(Qt::ToolButtonTextOnly);
    // Given a size, even none, it does not measure its text when it is shown.
    button.resize(0, 0);
}

}  // namespace

ZoomBar::ZoomBar(QWidget& parent) : QWidget(&parent), m_contrast(this), m_percentage(this) {
    SetUp(m_contrast, QStringLiteral("Textos con más contraste"));
    m_contrast.setText(QStringLiteral("Contraste"));
    m_contrast.setAccessibleName(QStringLiteral("Más contraste"));
    m_contrast.setCheckable(true);
    SetUp(m_percentage, QStringLiteral("Tamaño (Ctrl +, Ctrl −, Ctrl 0)"));
    connect(&m_contrast, &QToolButton::toggled, this, [this](bool is_on) {
        if (OnContrast)
            OnContrast(is_on);
    });
    connect(&m_percentage, &QToolButton::clicked, this, &ZoomBar::OpenMenu);
}

void ZoomBar::ShowZoom(double zoom) {
    m_zoom = zoom;
    m_percentage.setText(PercentText(zoom));
    m_percentage.setAccessibleName(QStringLiteral("Tamaño: ") + PercentText(zoom));
    PlaceButtons();
}

void ZoomBar::ShowContrast(bool is_on) { m_contrast.setChecked(is_on); }

void ZoomBar::FollowByTab(QWidget* widget) {
    if (widget)
        setTabOrder(widget, &m_contrast);
    setTabOrder(&m_contrast, &m_percentage);
}

void ZoomBar::paintEvent(QPaintEvent*) {
    constexpr std::chrono::milliseconds kFrame{16};
    if (std::exchange(m_was_painted, true))
        return;
    Later(
        *this, [this] { PlaceButtons(); }, kFrame);
}

void ZoomBar::resizeEvent(QResizeEvent*) { PlaceButtons(); }

void ZoomBar::PlaceButtons() {
    if (!m_was_painted)
        return;
    const int blank = fontMetrics().averageCharWidth();
    int right = width() - blank;
    for (QToolButton* button : {&m_percentage, &m_contrast}) {
        const int button_width = button->fontMetrics().horizontalAdvance(button->text()) + 2 * blank;
        button->setGeometry(right - button_width, 0, button_width, height());
        right -= button_width + blank;
    }
}

void ZoomBar::OpenMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(font());
    menu->addAction(QStringLiteral("Ajustar a la ventana"), this, [this] { OnFit(); });
    menu->addSeparator();
    for (const double zoom : ZoomSteps()) {
        QAction* action = menu->addAction(PercentText(zoom), this, [this, zoom] { OnZoom(zoom); });
        action->setCheckable(true);
        action->setChecked(zoom == m_zoom);
    }
    menu->popup(m_percentage.mapToGlobal(QPoint(0, 0)) - QPoint(0, menu->sizeHint().height()));
}

}  // namespace tavrelo::qt
