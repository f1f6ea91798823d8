#include "qt/flat_parts.h"

#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <iterator>

#include "qt/fonts.h"
#include "qt/text_colors.h"
#include "text/contrast.h"

namespace tavrelo::qt {
namespace {

constexpr double kCornerRadius = 3;

/// Half a pixel in, so that a line of one pixel is sharp.
QRectF Inside(const QRect& rect) { return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5); }

struct Twins {
    QRgb light;
    QRgb dark;
};
constexpr Twins kTwins[] = {
    {kWindow, 0xff24282d},      {kPage, 0xff2b3036},        {kFace, 0xff353b42},
    {kHoverFace, 0xff3f4955},   {kPressedFace, 0xff28527f}, {kDisabledFace, 0xff2a2e33},
    {kEdge, 0xff74808c},        {kSoftEdge, 0xff454d56},    {kHeading, 0xff30363d},
    {kAccent, 0xff5ea6ee},      {kFocus, 0xff9ccbff},       {kChoice, 0xff245486},
    {kFadedChoice, 0xff33475c}, {kHeldSlider, 0xff9aa6b2},  {kDisabledText, 0xffa0aab4},
    {kText, 0xffe8ecf0},        {kPaper, 0xff1c2024},       {kTip, 0xff3a3b2c},
    {kHint, 0xffa9b3bd},
};

constexpr double kStrongEdge = 2;

struct Edge {
    QColor color;
    double width;
};

void FillRounded(const QRect& rect, QPainter& painter, const Edge& edge, const QColor& face, double scale) {
    const double radius = kCornerRadius * scale;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge.color, edge.width));
    painter.setBrush(face);
    painter.drawRoundedRect(Inside(rect), radius, radius);
    painter.restore();
}

/// The edge of a rectangle, inside it.
void FillFrame(QPainter& painter, const QRect& outer, int thickness, const QBrush& brush) {
    painter.fillRect(outer.left(), outer.top(), outer.width(), thickness, brush);
    painter.fillRect(outer.left(), outer.bottom() + 1 - thickness, outer.width(), thickness, brush);
    painter.fillRect(outer.left(), outer.top(), thickness, outer.height(), brush);
    painter.fillRect(outer.right() + 1 - thickness, outer.top(), thickness, outer.height(), brush);
}

}  // namespace

bool IsDark(const QPalette& palette) {
    return qGray(palette.color(QPalette::Active, QPalette::Window).rgb()) <
           qGray(palette.color(QPalette::Active, QPalette::WindowText).rgb());
}

QColor ShadeOf(QRgb color, bool is_dark) {
    const auto* twins = std::ranges::find(kTwins, color, &Twins::light);
    return QColor::fromRgb(is_dark && twins != std::end(kTwins) ? twins->dark : color);
}

QColor FocusOn(const QColor& ground) {
    const QColor focus = ShadeOf(kFocus, text::IsDark(ToColor(ground)));
    return ToQColor(text::VisibleOn(ToColor(focus), ToColor(ground)));
}

bool IsHovered(const QStyleOption& option) {
    return (option.state & QStyle::State_Enabled) && (option.state & QStyle::State_MouseOver);
}

QColor FaceColor(const QStyleOption& option) {
    if (!(option.state & QStyle::State_Enabled))
        return ShadeOf(kDisabledFace, option.palette);
    if (option.state & (QStyle::State_Sunken | QStyle::State_On))
        return ShadeOf(kPressedFace, option.palette);
    if (IsHovered(option))
        return ShadeOf(kHoverFace, option.palette);
    return option.palette.color(QPalette::Button);
}

QColor StrongEdge(const QPalette& look) {
    text::Color edge = ToColor(ShadeOf(kEdge, look));
    for (const QRgb ground : {kHeading, kFace})
        edge = text::VisibleOn(edge, ToColor(ShadeOf(ground, look)));
    return ToQColor(edge);
}

QColor EdgeColor(const QStyleOption& option) {
    if (!(option.state & QStyle::State_Enabled))
        return ShadeOf(kSoftEdge, option.palette);
    return option.state & QStyle::State_HasFocus ? ShadeOf(kAccent, option.palette)
                                                 : option.palette.color(kEdgeRole);
}

QColor PaperEdgeColor(const QStyleOption& option) {
    if (!(option.state & QStyle::State_HasFocus) || !(option.state & QStyle::State_Enabled))
        return EdgeColor(option);
    const QColor accent = ShadeOf(kAccent, text::IsDark(ToColor(option.palette.color(QPalette::Base))));
    return ToQColor(text::VisibleOn(ToColor(accent), ToColor(option.palette.color(QPalette::Window))));
}

void DrawRounded(const QStyleOption& option, QPainter& painter, const QColor& face, double scale) {
    const bool has_focus = (option.state & QStyle::State_HasFocus) && (option.state & QStyle::State_Enabled);
    FillRounded(option.rect, painter, {EdgeColor(option), has_focus ? kStrongEdge * scale : 1}, face, scale);
}

void DrawButton(const QStyleOption& option, QPainter& painter, double scale) {
    const bool is_pressed = (option.state & QStyle::State_Sunken) && (option.state & QStyle::State_Enabled);
    if (!is_pressed && !IsHovered(option))
        return DrawRounded(option, painter, FaceColor(option), scale);
    const bool is_strong = is_pressed || (option.state & QStyle::State_HasFocus);
    const Edge edge{ShadeOf(kAccent, option.palette), is_strong ? kStrongEdge * scale : 1};
    FillRounded(option.rect, painter, edge, FaceColor(option), scale);
}

void DrawIndicatorEdge(const QStyleOption& option, QPainter& painter, bool is_round, double scale) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, is_round);
    const QColor color = IsHovered(option) ? ShadeOf(kAccent, option.palette) : EdgeColor(option);
    painter.setPen(QPen(color, std::max(1, qRound(scale))));
    painter.setBrush(Qt::NoBrush);
    const QRect edge = option.rect.adjusted(0, 0, -1, -1);
    if (is_round)
        painter.drawEllipse(edge);
    else
        painter.drawRect(edge);
    painter.restore();
}

void DrawTab(const QStyleOptionTab& tab, QPainter& painter, double scale) {
    const bool is_front = tab.state & QStyle::State_Selected;
    const bool is_hovered = IsHovered(tab);
    painter.save();
    painter.setPen(ShadeOf(kSoftEdge, tab.palette));
    painter.setBrush(ShadeOf(is_front ? kPage : is_hovered ? kHoverFace : kHeading, tab.palette));
    // The front tab runs into the page below it.
    painter.drawRect(
        tab.rect.adjusted(0, is_front ? 0 : qRound(2 * scale), is_front ? -1 : 0, is_front ? 1 : -1));
    if (is_front) {
        const int height = qRound(2 * scale);
        painter.fillRect(tab.rect.left(), tab.rect.top(), tab.rect.width(), height,
                         tab.palette.color(QPalette::WindowText));
    }
    if (is_hovered && !is_front)
        FillFrame(painter, tab.rect.adjusted(0, qRound(2 * scale), 1, 0), std::max(1, qRound(scale)),
                  ShadeOf(kAccent, tab.palette));
    if (tab.state & QStyle::State_HasFocus) {
        constexpr int kInset = 3;
        DrawFocusFrame(painter, tab.rect.adjusted(kInset, kInset, -kInset, -kInset), scale);
    }
    painter.restore();
}

void DrawFocusFrame(QPainter& painter, const QRect& rect, double scale, bool is_held) {
    const int width = std::max(2, qRound(2 * scale));
    FillFrame(painter, rect, width + 2, Qt::white);
    const QColor dark = QColor::fromRgb(kFocus);
    FillFrame(painter, rect.adjusted(1, 1, -1, -1), width,
              is_held ? QBrush(dark, Qt::Dense4Pattern) : QBrush(dark));
}

void DrawCellFocus(QPainter& painter, const QRect& cell, const QColor& ground) {
    constexpr int kWidth = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(FocusOn(ground), kWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell.adjusted(0, 0, -1, -1));
    painter.restore();
}

void DrawHover(QPainter& painter, const QRect& rect, double scale, bool is_pressed) {
    constexpr int kHoverStrength = 40;  // of 255
    constexpr int kPressStrength = 90;
    const int width = std::max(1, qRound(scale)) * (is_pressed ? 2 : 1);
    const QColor accent = QColor::fromRgb(kAccent);
    QColor tint = accent;
    tint.setAlpha(is_pressed ? kPressStrength : kHoverStrength);
    painter.fillRect(rect, tint);
    FillFrame(painter, rect, width, accent);
}

void DrawScrollBar(const QStyleOptionSlider& bar, const QRect& slider, QPainter& painter) {
    constexpr double kInset = 3;
    const bool is_held = bar.state & (QStyle::State_Sunken | QStyle::State_MouseOver);
    painter.save();
    painter.fillRect(bar.rect, ShadeOf(kHeading, bar.palette));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(is_held ? ShadeOf(kHeldSlider, bar.palette) : bar.palette.color(kEdgeRole));
    const bool is_wide = bar.orientation == Qt::Horizontal;
    const double inset = kInset * (is_wide ? bar.rect.height() : bar.rect.width()) / kScrollBarExtent;
    const QRectF handle = QRectF(slider).adjusted(inset, inset, -inset, -inset);
    const double radius = std::min(handle.width(), handle.height()) / 2;
    painter.drawRoundedRect(handle, radius, radius);
    painter.restore();
}

void DrawArrow(const QStyleOption& option, const QRect& rect, Qt::ArrowType direction, QPainter& painter,
               double scale) {
    constexpr double kHalfWidth = 3.5;
    constexpr double kHalfHeight = 2;
    const double y = direction == Qt::UpArrow ? -kHalfHeight : kHalfHeight;
    const QPointF corners[] = {
        {-kHalfWidth * scale, -y * scale}, {kHalfWidth * scale, -y * scale}, {0, y * scale}};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect).center());
    painter.setPen(Qt::NoPen);
    painter.setBrush(option.palette.color(
        option.state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    painter.drawPolygon(corners, static_cast<int>(std::size(corners)));
    painter.restore();
}

QPixmap MessageSign(const QString& letter, const QPalette& palette) {
    constexpr int kSize = 192;
    constexpr int kEdgeWidth = 8;
    QPixmap sign(kSize, kSize);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ShadeOf(kAccent, palette));
    painter.drawEllipse(sign.rect().adjusted(kEdgeWidth, kEdgeWidth, -kEdgeWidth, -kEdgeWidth));
    QFont font = InterfaceFont(kSize * 0.7 / kInterfacePixels);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(IsDark(palette) ? Qt::black : Qt::white);
    painter.drawText(sign.rect(), Qt::AlignCenter, letter);
    return sign;
}

}  // namespace tavrelo::qt
