#include "qt/look.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QLibraryInfo>
#include <QPainter>
#include <QStyleOption>
#include <QTranslator>
#include <QWidget>
#include <algorithm>
#include <iterator>

#include "qt/fonts.h"

namespace tavrelo::qt {
namespace {

// The palette.
constexpr QRgb kWindow = 0xffeef2f6;
constexpr QRgb kPage = 0xfff9fbfc;
constexpr QRgb kFace = 0xfffdfdfe;
constexpr QRgb kHoverFace = 0xffe3eefb;
constexpr QRgb kPressedFace = 0xffc9def5;
constexpr QRgb kDisabledFace = 0xfff0f2f4;
constexpr QRgb kEdge = 0xffa9b4c0;
constexpr QRgb kSoftEdge = 0xffc9d1da;
constexpr QRgb kHeading = 0xffe6ebf1;
constexpr QRgb kAccent = 0xff1d6fc4;
constexpr QRgb kChoice = 0xffbcd9f7;
constexpr QRgb kFadedChoice = 0xffdbe6f0;
constexpr QRgb kDisabledText = 0xff8a939d;

constexpr double kCornerRadius = 3;

struct Measure {
    QStyle::PixelMetric metric;
    double pixels;  // at 100 %
};

constexpr Measure kMeasures[] = {
    {QStyle::PM_IndicatorWidth, 14},
    {QStyle::PM_IndicatorHeight, 14},
    {QStyle::PM_ExclusiveIndicatorWidth, 14},
    {QStyle::PM_ExclusiveIndicatorHeight, 14},
    {QStyle::PM_CheckBoxLabelSpacing, 5},
    {QStyle::PM_RadioButtonLabelSpacing, 5},
    {QStyle::PM_ScrollBarExtent, 14},
    {QStyle::PM_ScrollBarSliderMin, 24},
    {QStyle::PM_ButtonMargin, 4},
    {QStyle::PM_HeaderMargin, 1},
    {QStyle::PM_FocusFrameHMargin, 2},
    {QStyle::PM_TabBarTabHSpace, 8},
    {QStyle::PM_TabBarTabVSpace, 2},
};

double ScaleOf(const QWidget* widget) {
    return widget ? widget->font().pointSizeF() / InterfaceFont(1).pointSizeF() : 1;
}

/// The line of a spin box stands in the frame of the box.
bool IsInSpinBox(const QWidget* widget) {
    return widget && qobject_cast<const QAbstractSpinBox*>(widget->parent());
}

/// Half a pixel in, so that a line of one pixel is sharp.
QRectF Inside(const QRect& rect) { return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5); }

QColor FaceColor(const QStyleOption& option) {
    if (!(option.state & QStyle::State_Enabled))
        return QColor::fromRgb(kDisabledFace);
    if (option.state & (QStyle::State_Sunken | QStyle::State_On))
        return QColor::fromRgb(kPressedFace);
    if (option.state & QStyle::State_MouseOver)
        return QColor::fromRgb(kHoverFace);
    return option.palette.color(QPalette::Button);
}

QColor EdgeColor(const QStyleOption& option) {
    if (!(option.state & QStyle::State_Enabled))
        return QColor::fromRgb(kSoftEdge);
    return QColor::fromRgb(option.state & QStyle::State_HasFocus ? kAccent : kEdge);
}

void DrawRounded(const QStyleOption& option, QPainter& painter, const QColor& face, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(EdgeColor(option));
    painter.setBrush(face);
    painter.drawRoundedRect(Inside(option.rect), radius, radius);
    painter.restore();
}

void DrawTab(const QStyleOptionTab& tab, QPainter& painter, double scale) {
    const bool is_front = tab.state & QStyle::State_Selected;
    const bool is_hovered = tab.state & QStyle::State_MouseOver;
    painter.save();
    painter.setPen(QColor::fromRgb(kSoftEdge));
    painter.setBrush(QColor::fromRgb(is_front ? kPage : is_hovered ? kHoverFace : kHeading));
    // The front tab runs into the page below it.
    painter.drawRect(
        tab.rect.adjusted(0, is_front ? 0 : qRound(2 * scale), is_front ? -1 : 0, is_front ? 1 : -1));
    if (is_front) {
        const int height = qRound(2 * scale);
        painter.fillRect(tab.rect.left(), tab.rect.top(), tab.rect.width(), height,
                         tab.palette.color(QPalette::WindowText));
    }
    painter.restore();
}

}  // namespace

Look::Look() : QProxyStyle(QStringLiteral("fusion")) {}

QPalette Look::standardPalette() const {
    QPalette palette(QColor::fromRgb(kFace), QColor::fromRgb(kWindow));
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor::fromRgb(kPage));
    palette.setColor(QPalette::Mid, QColor::fromRgb(kSoftEdge));
    palette.setColor(QPalette::Highlight, QColor::fromRgb(kChoice));
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor::fromRgb(kFadedChoice));
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::ToolTipBase, QColor::fromRgb(0xfffffbe6));
    palette.setColor(QPalette::ToolTipText, Qt::black);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(kDisabledText));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor::fromRgb(kDisabledFace));
    return palette;
}

int Look::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const auto* measure = std::ranges::find(kMeasures, metric, &Measure::metric);
    if (measure != std::end(kMeasures))
        return qRound(measure->pixels * ScaleOf(widget));
    if (metric == PM_ButtonShiftHorizontal || metric == PM_ButtonShiftVertical)
        return 0;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int Look::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                    QStyleHintReturn* data) const {
    switch (hint) {
        case SH_EtchDisabledText:
        case SH_DitherDisabledText:
            return 0;
        case SH_ComboBox_Popup:
            return 0;
        case SH_ToolTip_WakeUpDelay:
            return 400;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

void Look::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                         const QWidget* widget) const {
    const double scale = ScaleOf(widget);
    switch (element) {
        case PE_PanelButtonCommand:
        case PE_PanelButtonTool:
            DrawRounded(*option, *painter, FaceColor(*option), kCornerRadius * scale);
            return;
        case PE_FrameLineEdit:
            if (!IsInSpinBox(widget))
                DrawRounded(*option, *painter, Qt::transparent, kCornerRadius * scale);
            return;
        case PE_PanelLineEdit:
            if (!IsInSpinBox(widget))
                DrawRounded(*option, *painter, option->palette.color(QPalette::Base), kCornerRadius * scale);
            return;
        case PE_Frame:
            // Panels stand back behind the boxes that lie on them.
            painter->setPen(qobject_cast<const QAbstractScrollArea*>(widget) ? EdgeColor(*option)
                                                                             : QColor::fromRgb(kSoftEdge));
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            return;
        case PE_FrameFocusRect:
            painter->setPen(QPen(QColor::fromRgb(kAccent), std::max(1, qRound(scale))));
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            return;
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Look::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const {
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (element == CE_TabBarTabShape && tab) {
        DrawTab(*tab, *painter, ScaleOf(widget));
        return;
    }
    if (element == CE_HeaderSection || element == CE_HeaderEmptyArea) {
        painter->fillRect(option->rect, QColor::fromRgb(kHeading));
        painter->setPen(QColor::fromRgb(kSoftEdge));
        painter->drawLine(option->rect.topRight(), option->rect.bottomRight());
        painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void SetUpApplication(QApplication& application) {
    application.setStyle(new Look);
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(InterfaceFont(1));
    auto* translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
}

}  // namespace tavrelo::qt
