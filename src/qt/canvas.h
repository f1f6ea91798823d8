#pragma once

#include <QPainter>
#include <vector>

#include "qt/artwork.h"
#include "qt/text_colors.h"
#include "window/surface.h"

namespace tavrelo::qt {

/// Follows a recording and knows what colour a text stands on: that of the last filled box or page below it.
class TextGrounds {
  public:
    /// Whether an operation fills an area is seen from the operation alone; others change nothing.
    void Note(const window::DrawOp& op);
    /// The colour below a piece of a text that begins at (x, y) of the picture; `paper` where nothing is
    /// filled.
    text::Color Below(const window::TextOp& op, const text::PlacedRun& run, text::Color paper) const;

  private:
    struct Area {
        QRectF place;  // pixels at 100 %
        text::Color color;
    };
    std::vector<Area> m_areas;
};

/// A surface that paints each operation at once, `zoom` times its size, at the true resolution of the
/// painter's device.
class Canvas : public window::Surface {
  public:
    /// `size` is that of the surface at 100 %.
    Canvas(QPainter& painter, QSizeF size, double zoom, Artwork& artwork, TextLook text_look);

    double Width() const override { return m_size.width(); }
    double Height() const override { return m_size.height(); }
    void Draw(window::DrawOp op) override;

  private:
    void Paint(const window::ClearOp& op);
    void Paint(const window::LineOp& op);
    void Paint(const window::BoxOp& op);
    void Paint(const window::CircleOp& op);
    void Paint(const window::ArcOp& op);
    void Paint(const window::PolygonOp& op);
    void Paint(const window::TextOp& op);
    void Paint(const window::ImageOp& op);

    void SetPen(text::Color color, double width);
    /// The middle of a pixel at 100 %, in device-independent pixels.
    QPointF At(double x, double y) const;
    QRectF CircleAt(double x, double y, double radius) const;

    QPainter& m_painter;
    QSizeF m_size;
    double m_zoom;
    Artwork& m_artwork;
    TextLook m_text_look;
    TextGrounds m_grounds;
};

/// Paints a recording in the rectangle of `size` times `zoom` at the painter's origin.
void PaintRecording(QPainter& painter, const window::Recorder& recording, double zoom, Artwork& artwork,
                    TextLook text_look = TextLook::Told);

/// A recording as an image of `zoom` times its size.
QImage ToImage(const window::Recorder& recording, double zoom, Artwork& artwork);

}  // namespace tavrelo::qt
