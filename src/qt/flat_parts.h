#pragma once

#include <QColor>
#include <QPalette>
#include <QStyleOption>

class QPainter;

namespace tavrelo::qt {

// The colours and the flat parts of which all widgets are drawn. `scale` is that of the widget; 1 is 100 %.
// The colours are those of the light look; ShadeOf gives them in the look that is in use.

inline constexpr QRgb kWindow = 0xffeef2f6;
inline constexpr QRgb kPage = 0xfff9fbfc;
inline constexpr QRgb kFace = 0xfffdfdfe;
inline constexpr QRgb kHoverFace = 0xffe3eefb;
inline constexpr QRgb kPressedFace = 0xffc9def5;
inline constexpr QRgb kDisabledFace = 0xfff0f2f4;
inline constexpr QRgb kEdge = 0xffa9b4c0;
inline constexpr QRgb kSoftEdge = 0xffc9d1da;
inline constexpr QRgb kHeading = 0xffe6ebf1;
inline constexpr QRgb kAccent = 0xff1d6fc4;
inline constexpr QRgb kFocus = 0xff0b3d91;
inline constexpr QRgb kChoice = 0xffbcd9f7;
inline constexpr QRgb kFadedChoice = 0xffdbe6f0;
inline constexpr QRgb kHeldSlider = 0xff7c8a99;
inline constexpr QRgb kDisabledText = 0xff8a939d;
inline constexpr QRgb kText = 0xff000000;
inline constexpr QRgb kPaper = 0xffffffff;
inline constexpr QRgb kTip = 0xfffffbe6;
inline constexpr QRgb kHint = 0xff5f6973;

/// Whether a palette is that of a dark desktop.
bool IsDark(const QPalette& palette);
/// One of the colours above as it is in the look of a palette: itself, or its twin of the dark look.
QColor ShadeOf(QRgb color, bool is_dark);
inline QColor ShadeOf(QRgb color, const QPalette& palette) { return ShadeOf(color, IsDark(palette)); }
/// The colour of the focus on a ground of any colour.
QColor FocusOn(const QColor& ground);

inline constexpr double kScrollBarExtent = 13;  // pixels at 100 %

/// Whether something that can be pressed lies below the pointer.
bool IsHovered(const QStyleOption& option);
/// The face of something to press: by itself, below the pointer, held down, disabled.
QColor FaceColor(const QStyleOption& option);
/// The colour of a palette in which edges are drawn, and the one that they have in the contrast look: seen on
/// every ground of the look.
inline constexpr QPalette::ColorRole kEdgeRole = QPalette::Dark;
QColor StrongEdge(const QPalette& look);
/// The edge of a box: by itself, with the focus, disabled.
QColor EdgeColor(const QStyleOption& option);

/// The edge of a report, a list or a table. Reports are white on a dark desktop too: with the focus the edge
/// is seen on both sides.
QColor PaperEdgeColor(const QStyleOption& option);

/// A box with round corners in the option's rectangle.
void DrawRounded(const QStyleOption& option, QPainter& painter, const QColor& face, double scale);
/// The same for something to press, whose edge is marked while it lies below the pointer.
void DrawButton(const QStyleOption& option, QPainter& painter, double scale);
/// A small triangle in the middle of a rectangle.
void DrawArrow(const QStyleOption& option, const QRect& rect, Qt::ArrowType direction, QPainter& painter,
               double scale);
/// The frame of what the keys are at, seen on any colour: dark between light lines; dashed while something is
/// held.
void DrawFocusFrame(QPainter& painter, const QRect& rect, double scale, bool is_held = false);
/// The frame around a cell of a table, on its lines, so that the text stays clear.
void DrawCellFocus(QPainter& painter, const QRect& cell, const QColor& ground);
/// A place of a drawing, which is made for light paper, that lies below the pointer or is pressed by it:
/// tinted and framed.
void DrawHover(QPainter& painter, const QRect& rect, double scale, bool is_pressed);
/// The edge of the mark of a check box or of a (round) option.
void DrawIndicatorEdge(const QStyleOption& option, QPainter& painter, bool is_round, double scale);
void DrawTab(const QStyleOptionTab& tab, QPainter& painter, double scale);
/// A bar without buttons at its ends.
void DrawScrollBar(const QStyleOptionSlider& bar, const QRect& slider, QPainter& painter);
/// The sign of a message box: a letter on a disc, drawn so large that it can be shrunk to any size.
QPixmap MessageSign(const QString& letter, const QPalette& palette);

}  // namespace tavrelo::qt
