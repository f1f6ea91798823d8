#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "text/font.h"
#include "text/picture_markup.h"
#include "window/geometry.h"
#include "window/picture_tips.h"

namespace tavrelo::window {

// The drawing operations, pixels at 100 % counted downward from the top left corner.

struct ClearOp {
    text::Color background;
};
struct LineOp {
    double x1, y1, x2, y2;
    text::Color color;
    double width;
};
/// A rectangle between two opposite corners.
struct BoxOp {
    double x1, y1, x2, y2;
    text::Color color;
    bool filled;
    double width;
};
/// A circle outline, or a disc when `filled`.
struct CircleOp {
    double x, y, radius;
    text::Color color;
    bool filled;
    double width;
};
/// An arc of a circle from angle `start` to `end`, degrees counter-clockwise from +x.
struct ArcOp {
    double x, y, radius, start, end;
    text::Color color;
    double width;
};
struct PolygonOp {
    std::vector<Point> points;
    text::Color color;
};
/// One whole text as it was printed; (x, y) is the top left corner where printing began.
struct TextOp {
    double x, y;
    std::vector<text::PlacedRun> runs;

    std::string PlainText() const;
};
/// A piece of one of the program's bitmaps: from (source_x, source_y) of the bitmap at 100 % to (x, y).
struct ImageOp {
    std::string name;
    double source_x, source_y, width, height;
    double x, y;
};

using DrawOp = std::variant<ClearOp, LineOp, BoxOp, CircleOp, ArcOp, PolygonOp, TextOp, ImageOp>;

/// What the tools draw on. It keeps the pen (position, font, colours) and hands every finished operation to
/// its maker: a recorder keeps them, the view's canvas paints them. Pixels at 100 % count downward from the
/// top left; places told with y growing upward are converted by FromBottom.
class Surface {
  public:
    virtual ~Surface() = default;

    virtual double Width() const = 0;
    virtual double Height() const = 0;
    /// Takes one finished operation.
    virtual void Draw(DrawOp op) = 0;
    /// Says in whole Spanish sentences what was just drawn, for those who do not see it; said in pieces, they
    /// go on behind one another. The words stand and fall with the drawing: the next Cls takes both away. A
    /// surface that only paints keeps none.
    virtual void Describe(std::string_view /*sentences*/) {}
    /// The drawing is a page of texts, and they are its words. Ends with the next Cls, too.
    virtual void DescribeByTexts() {}
    /// Keeps what is told to who points at a place of the drawing, until the next Cls.
    virtual void AddTip(const PictureTip& /*tip*/) {}
    /// One line that says how to begin, for a board on which nothing was put yet. It is no part of the
    /// drawing: it is neither copied nor printed, and the next operation takes it away.
    virtual void Invite(std::string_view /*line*/) {}

    /// y counted from the bottom upward, as y counted from the top downward; the one place that converts.
    double FromBottom(double y) const { return Height() - y; }

    /// Clears to the background and puts the pen at (0, 0).
    void Cls();
    /// The pen ends at the second point. The shape takes `DrawWidth`.
    void Line(double x1, double y1, double x2, double y2, text::Color color);
    void Box(double x1, double y1, double x2, double y2, text::Color color, bool filled);
    /// An outline in `color`; a disc in `FillColor` when `Filled`.
    void Circle(double x, double y, double radius, text::Color color);
    void Arc(double x, double y, double radius, double start_degrees, double end_degrees, text::Color color);
    /// A filled polygon in `FillColor`.
    void Polygon(std::vector<Point> points);
    /// Writes the text with its top left corner at the pen; the pen moves past it. Marks are not interpreted.
    void Print(std::string_view text);
    void Image(std::string_view name, double source_x, double source_y, double width, double height, double x,
               double y);

    double TextWidth(std::string_view text) const { return text::TextWidth(text, CurrentFont); }
    double TextHeight() const { return text::TextHeight(CurrentFont); }

    double CurrentX = 0;
    double CurrentY = 0;
    text::Font CurrentFont;
    text::Color ForeColor = text::kBlack;
    text::Color BackColor = text::kWhite;
    text::Color FillColor = text::kBlack;
    bool Filled = false;
    double DrawWidth = 1;
};

/// What a recorder has kept: the drawing, the words for it and what it tells to a pointer.
struct Recording {
    std::vector<DrawOp> operations;
    std::string words;
    bool is_page = false;  // whose texts are its words
    std::vector<PictureTip> tips;
    std::string invitation;
};

/// A surface that keeps its operations, from which a picture is repainted at any scale.
class Recorder : public Surface {
  public:
    Recorder(double width, double height) : m_width(width), m_height(height) {}

    double Width() const override { return m_width; }
    double Height() const override { return m_height; }
    void Draw(DrawOp op) override;
    void Describe(std::string_view sentences) override;
    void DescribeByTexts() override;
    void AddTip(const PictureTip& tip) override;
    void Invite(std::string_view line) override;
    void Resize(double width, double height);

    const std::vector<DrawOp>& Operations() const { return m_recording.operations; }
    /// All that was described since the last Cls; of a page the texts that stand on it, as they are read
    /// aloud, from the top downward.
    std::string Words() const;
    /// What the drawing tells at a place; empty where nothing stands.
    std::string TipAt(Point place) const { return window::TipAt(m_recording.tips, place); }
    const std::string& Invitation() const { return m_recording.invitation; }
    /// Nothing is drawn and nobody is invited to begin.
    bool IsBlank() const;
    /// Drawing and words, to be put back in view by Restore.
    const Recording& Kept() const { return m_recording; }
    void Restore(Recording recording);

    /// The texts that stand on the picture, in the order of printing; one painted over by a later filled box
    /// is gone.
    std::vector<std::string> VisibleTexts() const;

    /// Told after every change.
    std::function<void()> OnChange;

  private:
    void Changed() const;
    std::vector<const TextOp*> VisibleTextOps() const;

    double m_width;
    double m_height;
    Recording m_recording;
};

/// Hands every operation of a recording to another surface.
void Replay(const std::vector<DrawOp>& operations, Surface& target);

}  // namespace tavrelo::window
