#include "qt/canvas.h"

#include <algorithm>
#include <cmath>

#include "qt/fonts.h"
#include "qt/text.h"

namespace tavrelo::qt {
namespace {

/// Qt counts angles in sixteenths of a degree.
int Sixteenths(double degrees) { return static_cast<int>(std::lround(degrees * 16)); }

/// Straight lines along the axes keep sharp edges; all others are smoothed. Trigonometry leaves a hair in the
/// ends of upright arrows.
bool IsAlongAxis(const window::LineOp& op) {
    constexpr double kHair = 1e-6;  // pixels
    return std::abs(op.x1 - op.x2) < kHair || std::abs(op.y1 - op.y2) < kHair;
}

}  // namespace

Canvas::Canvas(QPainter& painter, QSizeF size, double zoom, Artwork& artwork, TextLook text_look)
    : m_painter(painter), m_size(size), m_zoom(zoom), m_artwork(artwork), m_text_look(text_look) {
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setRenderHint(QPainter::TextAntialiasing);
}

void TextGrounds::Note(const window::DrawOp& op) {
    if (const auto* clear = std::get_if<window::ClearOp>(&op)) {
        constexpr double kEndless = 1e6;
        m_areas.assign(1, {QRectF(-kEndless, -kEndless, 2 * kEndless, 2 * kEndless), clear->background});
    }
    const auto* box = std::get_if<window::BoxOp>(&op);
    if (box && box->filled)
        m_areas.push_back(
            {QRectF(QPointF(box->x1, box->y1), QPointF(box->x2, box->y2)).normalized(), box->color});
}

text::Color TextGrounds::Below(const window::TextOp& op, const text::PlacedRun& run,
                               text::Color paper) const {
    const QPointF middle(op.x + run.dx + text::TextWidth(run.text, run.font) / 2,
                         op.y + run.dy + text::TextHeight(run.font) / 2);
    const auto holds = [&middle](const Area& area) { return area.place.contains(middle); };
    const auto last = std::find_if(m_areas.rbegin(), m_areas.rend(), holds);
    return last == m_areas.rend() ? paper : last->color;
}

void Canvas::Draw(window::DrawOp op) {
    m_grounds.Note(op);
    std::visit([this](const auto& operation) { Paint(operation); }, op);
}

QPointF Canvas::At(double x, double y) const {
    constexpr double kHalfPixel = 0.5;
    return {(x + kHalfPixel) * m_zoom, (y + kHalfPixel) * m_zoom};
}

QRectF Canvas::CircleAt(double x, double y, double radius) const {
    const double r = radius * m_zoom;
    return {At(x, y) - QPointF(r, r), QSizeF(2 * r, 2 * r)};
}

void Canvas::SetPen(text::Color color, double width) {
    m_painter.setPen(QPen(ToQColor(color), width * m_zoom, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
}

void Canvas::Paint(const window::ClearOp& op) {
    m_painter.fillRect(QRectF(QPointF(), m_size * m_zoom), ToQColor(op.background));
}

void Canvas::Paint(const window::LineOp& op) {
    SetPen(op.color, op.width);
    m_painter.setRenderHint(QPainter::Antialiasing, !IsAlongAxis(op));
    m_painter.drawLine(At(op.x1, op.y1), At(op.x2, op.y2));
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void Canvas::Paint(const window::BoxOp& op) {
    SetPen(op.color, op.width);
    m_painter.setBrush(op.filled ? QBrush(ToQColor(op.color)) : QBrush(Qt::NoBrush));
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    m_painter.drawRect(QRectF(At(op.x1, op.y1), At(op.x2, op.y2)).normalized());
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void Canvas::Paint(const window::CircleOp& op) {
    SetPen(op.color, op.width);
    m_painter.setBrush(op.filled ? QBrush(ToQColor(op.color)) : QBrush(Qt::NoBrush));
    m_painter.drawEllipse(CircleAt(op.x, op.y, op.radius));
}

void Canvas::Paint(const window::ArcOp& op) {
    SetPen(op.color, op.width);
    double span = op.end - op.start;
    if (span < 0)
        span += 360;
    m_painter.drawArc(CircleAt(op.x, op.y, op.radius), Sixteenths(op.start), Sixteenths(span));
}

void Canvas::Paint(const window::PolygonOp& op) {
    QPolygonF polygon;
    for (const window::Point& point : op.points)
        polygon << At(point.x, point.y);
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(ToQColor(op.color));
    m_painter.drawPolygon(polygon);
}

void Canvas::Paint(const window::TextOp& op) {
    for (const text::PlacedRun& run : op.runs) {
        m_painter.setFont(ToQFont(run.font, m_zoom));
        const text::Color ground = m_grounds.Below(op, run, BackColor);
        const bool is_told = m_text_look == TextLook::Told;
        m_painter.setPen(ToQColor(is_told ? run.color : ShownOn(ground, run.color, m_text_look)));
        const double base_line = op.y + run.dy + text::TextAscent(run.font);
        const double stretch = FontStretch(run.font, m_zoom);
        m_painter.save();
        m_painter.translate((op.x + run.dx) * m_zoom, base_line * m_zoom);
        m_painter.scale(stretch, stretch);
        m_painter.drawText(QPointF(), ToQString(run.text));
        m_painter.restore();
    }
}

void Canvas::Paint(const window::ImageOp& op) {
    const QRectF source(op.source_x, op.source_y, op.width, op.height);
    const QRectF target(op.x * m_zoom, op.y * m_zoom, op.width * m_zoom, op.height * m_zoom);
    m_artwork.Paint(m_painter, op.name, source, target, m_zoom * m_painter.device()->devicePixelRatioF());
}

void PaintRecording(QPainter& painter, const window::Recorder& recording, double zoom, Artwork& artwork,
                    TextLook text_look) {
    Canvas canvas(painter, QSizeF(recording.Width(), recording.Height()), zoom, artwork, text_look);
    canvas.BackColor = recording.BackColor;
    window::Replay(recording.Operations(), canvas);
}

QImage ToImage(const window::Recorder& recording, double zoom, Artwork& artwork) {
    QImage image((QSizeF(recording.Width(), recording.Height()) * zoom).toSize(), QImage::Format_RGB32);
    image.fill(ToQColor(recording.BackColor));
    QPainter painter(&image);
    PaintRecording(painter, recording, zoom, artwork);
    return image;
}

}  // namespace tavrelo::qt
