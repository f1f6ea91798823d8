#include "frame/points_strip.h"

#include <algorithm>
#include <string>

namespace tavrelo::frame {
namespace {

using mechanics::points::Configuration;
using text::Color;
using window::Surface;

constexpr Color kLightBand = text::FromBgr(0xFFFFC0);
constexpr Color kEmptyGrey = text::Rgb(0xE0, 0xE0, 0xE0);
constexpr Color kPointGrey = text::Rgb(0xC0, 0xC0, 0xC0);
constexpr Color kEdgeColor = text::Rgb(0x80, 0x80, 0x80);

constexpr double kMiddleOfColumn = 0.5;  // in columns

constexpr double kDigitShare = 0.45;  // of the column's width, where the middle of a digit stands
constexpr double kDigitShift = 4;     // from there to the digit's left edge
constexpr double kDigitSize = 9;      // points
constexpr double kDigitTop = 2;       // pixels below the upper edge of the label

constexpr double kPromptTop = 38;                        // y of the top of a prompt
constexpr double kPromptSizes[] = {9, 8.25, 7.5, 6.75};  // points, the first that fits
constexpr double kModeTop = 39;
constexpr double kModeSize = 8.25;  // points

// The bracket: a level line with a tick down at each end.
constexpr double kBracketTop = 31;
constexpr double kBracketStart = 35;  // from the left edge of the first column
constexpr double kBracketTick = 6;
constexpr double kBoxShift = 25;  // from the middle of the bracket's columns to the box's left edge

double LeftOfColumn(int column) { return (column - 1) * kStripColumn; }

void PrintAt(Surface& strip, std::string_view text, double x, double top_y, Color color) {
    strip.CurrentX = x;
    strip.CurrentY = strip.FromBottom(top_y);
    strip.ForeColor = color;
    strip.Print(text);
}

text::Font InterfaceFont(double size, bool bold = false) {
    return text::Font{std::string(text::kInterfaceFont), size, bold};
}

void PrintDigit(Surface& strip, int column, int number, Color color) {
    PrintAt(strip, std::to_string(number), LeftOfColumn(column) + kStripColumn * kDigitShare - kDigitShift,
            kLabelTop - kDigitTop, color);
}

void OutlineLabel(Surface& strip, int column, Color color) {
    const double left = LeftOfColumn(column);
    strip.Box(left, strip.FromBottom(kLabelTop), left + kStripColumn - 1, strip.Height() - 1, color, false);
}

void FillLabel(Surface& strip, double left, double right, Color color) {
    strip.Box(left, strip.FromBottom(kLabelTop), right, strip.Height() - 1, color, true);
}

void FillBand(Surface& strip, double top_y, double bottom_y, Color color) {
    strip.Box(0, strip.FromBottom(top_y), strip.Width() - 1, strip.FromBottom(bottom_y), color, true);
}

void OutlineStrip(Surface& strip) {
    strip.Box(0, 0, strip.Width() - 1, strip.Height() - 1, kEdgeColor, false);
}

void PaintLabels(Surface& strip, std::span<const StripLabel> labels) {
    strip.CurrentFont = InterfaceFont(kDigitSize, true);
    int column = 1;
    for (const StripLabel& label : labels) {
        const double left = LeftOfColumn(column);
        FillLabel(strip, left, left + kStripColumn - 1, label.left);
        if (label.right != label.left)
            FillLabel(strip, left + kStripColumn / 2, left + kStripColumn - 1, label.right);
        OutlineLabel(strip, column, text::kWhite);
        PrintDigit(strip, column, label.number, text::kWhite);
        ++column;
    }
}

}  // namespace

StripPlace PlaceOnStrip(double x, double y) {
    if (x < 0 || x >= kPointColumns * kStripColumn || y < 0 || y > kStripTop)
        return {};
    return {y > kLabelTop ? StripBand::Grey : StripBand::Labels, static_cast<int>(x / kStripColumn) + 1};
}

window::PictureCell LabelCell(std::string name, int column, StripHalf half) {
    constexpr int kWidth = static_cast<int>(kStripColumn);
    constexpr int kTop = static_cast<int>(kStripTop - kLabelTop);
    constexpr int kHeight = static_cast<int>(kLabelTop);
    const int left = (column - 1) * kWidth + (half == StripHalf::Right ? kWidth / 2 : 0);
    const int width = half == StripHalf::Both ? kWidth : kWidth / 2;
    return {.name = std::move(name), .bounds = {left, kTop, width, kHeight}};
}

window::PictureCell GreyCell(std::string name, int column) {
    constexpr int kWidth = static_cast<int>(kStripColumn);
    constexpr int kHeight = static_cast<int>(kStripTop - kLabelTop);
    return {.name = std::move(name), .bounds = {(column - 1) * kWidth, 0, kWidth, kHeight}};
}

std::string NameOfPoint(const Configuration& configuration, int column) {
    const auto place = Locate(configuration, column - kMiddleOfColumn);
    if (!place)
        return std::to_string(column - 1);
    std::string name = std::to_string(place->point);
    if (configuration.MoverCount() > 1)
        name += " del móvil " + std::to_string(place->mover);
    return name;
}

std::vector<window::PictureCell> LabelCells(const Configuration& configuration) {
    std::vector<window::PictureCell> cells;
    for (int column = 1; column <= kPointColumns; ++column) {
        const std::string name = "Punto " + NameOfPoint(configuration, column);
        const auto earlier = Locate(configuration, column - kMiddleOfColumn);
        const auto later = Locate(configuration, column - kMiddleOfColumn / 2);
        if (!earlier || *earlier == *later) {
            cells.push_back(LabelCell(name, column));
            continue;
        }
        cells.push_back(
            LabelCell(name + ", tramo " + std::to_string(earlier->stretch), column, StripHalf::Left));
        cells.push_back(
            LabelCell(name + ", tramo " + std::to_string(later->stretch), column, StripHalf::Right));
    }
    return cells;
}

int AccelerationBoxLeft(int first_column, int points) {
    const double middle = LeftOfColumn(first_column) + points * kStripColumn / 2;
    return static_cast<int>(middle - kBoxShift);
}

void PaintEmptyStrip(Surface& strip) {
    strip.Cls();
    FillBand(strip, kStripTop, kLabelTop, kEmptyGrey);
    FillBand(strip, kLabelTop, 1, kLightBand);
    strip.CurrentFont = InterfaceFont(kDigitSize);
    for (int column = 1; column <= kPointColumns; ++column) {
        OutlineLabel(strip, column, kEdgeColor);
        PrintDigit(strip, column, column - 1, text::kBlack);
    }
    OutlineStrip(strip);
    strip.Describe("Puntos 0 a 8, sin configurar.");
}

void PaintStripPrompt(Surface& strip, std::string_view prompt, double left) {
    for (const double size : kPromptSizes) {
        strip.CurrentFont = InterfaceFont(size);
        if (left + strip.TextWidth(prompt) <= strip.Width())
            break;
    }
    PrintAt(strip, prompt, left, kPromptTop, text::kBlack);
    if (!prompt.empty())
        strip.Describe(std::string(prompt) + ".");
}

void PaintPointStrip(Surface& strip, std::span<const StripLabel> labels) {
    strip.Cls();
    FillBand(strip, kStripTop, kLabelTop, kPointGrey);
    PaintLabels(strip, labels);
    OutlineStrip(strip);
}

void PaintBracket(Surface& strip, int first_column, int points) {
    const double left = LeftOfColumn(first_column) + kBracketStart;
    const double right = left + (points - 1) * kStripColumn - 6;
    const double top = strip.FromBottom(kBracketTop);
    const double foot = strip.FromBottom(kBracketTop - kBracketTick);
    strip.Line(left, top, right, top, text::kBlack);
    strip.Line(left, top, left, foot, text::kBlack);
    strip.Line(right, top, right, foot, text::kBlack);
}

void PaintSpeedMode(Surface& strip, int column, std::string_view mode) {
    const double left = LeftOfColumn(column);
    strip.Box(left, 0, left + kStripColumn - 1, strip.FromBottom(kLabelTop) - 1, kPointGrey, true);
    strip.Box(left, 0, left + kStripColumn - 1, strip.FromBottom(kLabelTop) - 1, text::kWhite, false);
    strip.CurrentFont = InterfaceFont(kModeSize);
    PrintAt(strip, mode, left + (kStripColumn - strip.TextWidth(mode)) / 2, kModeTop, text::kBlack);
}

}  // namespace tavrelo::frame
