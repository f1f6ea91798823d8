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
#include <memory>

#include "qt/accessible.h"
#include "qt/flat_parts.h"
#include "qt/fonts.h"

namespace tavrelo::qt {
namespace {

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
    {QStyle::PM_ScrollBarExtent, kScrollBarExtent},
    {QStyle::PM_ScrollBarSliderMin, 24},
    {QStyle::PM_ButtonMargin, 10},
    {QStyle::PM_HeaderMargin, 1},
    {QStyle::PM_FocusFrameHMargin, 2},
    {QStyle::PM_TabBarTabHSpace, 8},
    {QStyle::PM_MessageBoxIconSize, 36},
    {QStyle::PM_TabBarTabVSpace, 2},
};

double ScaleOf(const QWidget* widget) { return widget ? widget->font().pointSizeF() / InterfacePoints() : 1; }

/// The line of a spin box stands in the frame of the box.
bool IsInSpinBox(const QWidget* widget) {
    return widget && qobject_cast<const QAbstractSpinBox*>(widget->parent());
}

/// The row of a closed combo: one that is too long ends in dots.
QString ShownRow(const QStyleOptionComboBox& combo, const QRect& place) {
    constexpr int kMargins = 2;  // that the toolkit leaves at the ends of the text
    return combo.fontMetrics.elidedText(combo.currentText, Qt::ElideRight, place.width() - kMargins);
}

}  // namespace

Look::Look(bool is_dark) : QProxyStyle(QStringLiteral("fusion")), m_is_dark(is_dark) {}

QPalette Look::standardPalette() const {
    struct Role {
        QPalette::ColorRole role;
        QRgb color;
    };
    constexpr Role kRoles[] = {
        {QPalette::WindowText, kText},
        {QPalette::Text, kText},
        {QPalette::ButtonText, kText},
        {QPalette::Base, kPaper},
        {QPalette::AlternateBase, kPage},
        {QPalette::Mid, kSoftEdge},
        {QPalette::Highlight, kChoice},
        {QPalette::HighlightedText, kText},
        {QPalette::ToolTipBase, kTip},
        {QPalette::ToolTipText, kText},
        {QPalette::PlaceholderText, kHint},
        {QPalette::Link, kAccent},
        {kEdgeRole, kEdge},
    };
    QPalette palette(ShadeOf(kFace, m_is_dark), ShadeOf(kWindow, m_is_dark));
    for (const auto& [role, color] : kRoles)
        palette.setColor(role, ShadeOf(color, m_is_dark));
    palette.setColor(QPalette::Inactive, QPalette::Highlight, ShadeOf(kFadedChoice, m_is_dark));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, ShadeOf(kDisabledText, m_is_dark));
    palette.setColor(QPalette::Disabled, QPalette::Base, ShadeOf(kDisabledFace, m_is_dark));
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
        case SH_ComboBox_Popup:
            return 0;
        case SH_Table_GridLineColor:
            return static_cast<int>(ShadeOf(kSoftEdge, m_is_dark).rgb());
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
            DrawButton(*option, *painter, scale);
            return;
        case PE_FrameLineEdit:
            if (!IsInSpinBox(widget))
                DrawRounded(*option, *painter, Qt::transparent, scale);
            return;
        case PE_PanelLineEdit:
            if (!IsInSpinBox(widget))
                DrawRounded(*option, *painter, option->palette.color(QPalette::Base), scale);
            return;
        case PE_Frame:
            painter->setPen(qobject_cast<const QAbstractScrollArea*>(widget)
                                ? PaperEdgeColor(*option)
                                : ShadeOf(kSoftEdge, m_is_dark));  // panels stand back behind boxes
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            return;
        case PE_IndicatorArrowUp:
            DrawArrow(*option, option->rect, Qt::UpArrow, *painter, scale);
            return;
        case PE_IndicatorArrowDown:
            DrawArrow(*option, option->rect, Qt::DownArrow, *painter, scale);
            return;
        case PE_FrameFocusRect:
            // On a tinted panel the widget's own palette is light, whatever the desktop is.
            painter->setPen(QPen(ShadeOf(kFocus, option->palette), std::max(1, qRound(scale))));
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            return;
        case PE_IndicatorCheckBox:
        case PE_IndicatorRadioButton:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            DrawIndicatorEdge(*option, *painter, element == PE_IndicatorRadioButton, scale);
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
        painter->fillRect(option->rect, ShadeOf(kHeading, m_is_dark));
        painter->setPen(ShadeOf(kSoftEdge, m_is_dark));
        painter->drawLine(option->rect.topRight(), option->rect.bottomRight());
        painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
        return;
    }
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        element == CE_ComboBoxLabel && combo) {
        QStyleOptionComboBox shown(*combo);
        shown.currentText =
            ShownRow(*combo, subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget));
        QProxyStyle::drawControl(element, &shown, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_MenuItem && (option->state & State_Selected)) {
        painter->setPen(ShadeOf(kAccent, option->palette));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
}

void Look::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                              const QWidget* widget) const {
    const double scale = ScaleOf(widget);
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar) {
        DrawScrollBar(*bar, subControlRect(CC_ScrollBar, bar, SC_ScrollBarSlider, widget), *painter);
    } else if (control == CC_SpinBox) {
        DrawRounded(*option, *painter, option->palette.color(QPalette::Base), scale);
        DrawArrow(*option, subControlRect(control, option, SC_SpinBoxUp, widget), Qt::UpArrow, *painter,
                  scale);
        DrawArrow(*option, subControlRect(control, option, SC_SpinBoxDown, widget), Qt::DownArrow, *painter,
                  scale);
    } else if (control == CC_ComboBox) {
        DrawButton(*option, *painter, scale);
        DrawArrow(*option, subControlRect(control, option, SC_ComboBoxArrow, widget), Qt::DownArrow, *painter,
                  scale);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

namespace {

/// The place of a part of a scroll bar.
QRect ScrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part, int shortest_slider) {
    const bool is_wide = bar.orientation == Qt::Horizontal;
    const int length = is_wide ? bar.rect.width() : bar.rect.height();
    const int range = bar.maximum - bar.minimum;
    const int shown = std::max(1, range + bar.pageStep);
    const int proportional = static_cast<int>(qint64{length} * bar.pageStep / shown);
    const int slider = std::min(length, std::max(shortest_slider, proportional));
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - slider, bar.upsideDown);
    // Along the bar: the part in front of the slider, the slider, the part behind it.
    const auto along = [&](int first, int size) {
        const QRect rect =
            is_wide ? QRect(first, 0, size, bar.rect.height()) : QRect(0, first, bar.rect.width(), size);
        return QStyle::visualRect(bar.direction, bar.rect, rect);
    };
    switch (part) {
        case QStyle::SC_ScrollBarSlider:
            return along(start, slider);
        case QStyle::SC_ScrollBarSubPage:
            return along(0, start);
        case QStyle::SC_ScrollBarAddPage:
            return along(start + slider, length - start - slider);
        case QStyle::SC_ScrollBarGroove:
            return bar.rect;
        default:
            return {};
    }
}

/// The arrows of a spin box stand one over the other at its right end.
QRect SpinBoxPart(const QRect& box, QStyle::SubControl part, double scale) {
    constexpr double kArrowWidth = 16;
    const int width = qRound(kArrowWidth * scale);
    const int half = box.height() / 2;
    switch (part) {
        case QStyle::SC_SpinBoxUp:
            return {box.width() - width, 0, width, half};
        case QStyle::SC_SpinBoxDown:
            return {box.width() - width, half, width, box.height() - half};
        case QStyle::SC_SpinBoxEditField:
            return box.adjusted(1, 1, -width, -1);
        default:
            return box;
    }
}

/// The arrow of a combo stands at its right end.
QRect ComboPart(const QRect& box, QStyle::SubControl part, double scale) {
    constexpr double kArrowWidth = 20;
    constexpr double kMargin = 4;
    const int width = qRound(kArrowWidth * scale);
    switch (part) {
        case QStyle::SC_ComboBoxArrow:
            return {box.width() - width, 0, width, box.height()};
        case QStyle::SC_ComboBoxEditField:
            return box.adjusted(qRound(kMargin * scale), 1, -width, -1);
        default:
            return box;
    }
}

}  // namespace

QRect Look::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                           const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar)
        return ScrollBarPart(*bar, part, proxy()->pixelMetric(PM_ScrollBarSliderMin, option, widget));
    if (control == CC_SpinBox)
        return SpinBoxPart(option->rect, part, ScaleOf(widget));
    if (control == CC_ComboBox)
        return ComboPart(option->rect, part, ScaleOf(widget));
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QIcon Look::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    switch (icon) {
        case SP_MessageBoxInformation:
            return MessageSign(QStringLiteral("i"), standardPalette());
        case SP_MessageBoxQuestion:
            return MessageSign(QStringLiteral("?"), standardPalette());
        default:
            return QProxyStyle::standardIcon(icon, option, widget);
    }
}

void UseLook(bool is_dark) {
    // The application owns its style, which the linter cannot see.
    QApplication::setStyle(new Look(is_dark));
    QApplication::setPalette(QApplication::style()->standardPalette());  // NOLINT(clang-analyzer-cplusplus*)
}

DesktopLook SetUpApplication(QApplication& application) {
    const DesktopLook desktop = LookOfDesktop();
    UseLook(desktop.is_dark);
    QApplication::setFont(InterfaceFont(1));
    LetWidgetsTellOfThemselves();
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return desktop;
    QCoreApplication::installTranslator(translator.get());
    translator.release()->setParent(&application);
    return desktop;
}

}  // namespace tavrelo::qt
