#include "frame/points_strip.h"

#include <gtest/gtest.h>

#include <vector>

namespace tavrelo::frame {
namespace {

constexpr double kWidth = 576;

struct PlaceCase {
    const char* name;
    double x, y;
    StripBand band;
    int column;
};
const PlaceCase kPlaces[] = {
    {"middle of the first label", 32, 10, StripBand::Labels, 1},
    {"the left edge of a column is its own", 64, 10, StripBand::Labels, 2},
    {"last column", 575.9, 10, StripBand::Labels, 9},
    {"upper edge of the labels", 32, 19, StripBand::Labels, 1},
    {"grey band", 320, 19.1, StripBand::Grey, 6},
    {"upper edge of the strip", 320, 42, StripBand::Grey, 6},
    {"above", 320, 42.1, StripBand::Outside, 0},
    {"below", 320, -0.1, StripBand::Outside, 0},
    {"left", -0.1, 30, StripBand::Outside, 0},
    {"right", kWidth, 30, StripBand::Outside, 0},
};

TEST(PointsStripTest, FindsBandAndColumn) {
    for (const PlaceCase& row : kPlaces) {
        const StripPlace place = PlaceOnStrip(row.x, row.y);
        EXPECT_EQ(place.band, row.band) << row.name;
        EXPECT_EQ(place.column, row.column) << row.name;
    }
}

TEST(PointsStripTest, CentresTheBoxOverItsColumns) {
    // Nine columns: the middle at 288. Columns 3 to 6: 128 to 384, the middle at 256.
    EXPECT_EQ(AccelerationBoxLeft(1, 9), 263);
    EXPECT_EQ(AccelerationBoxLeft(3, 4), 231);
}

TEST(PointsStripTest, PrintsEveryDigitOnce) {
    window::Recorder strip(kWidth, 42);
    PaintEmptyStrip(strip);
    PaintStripPrompt(strip, "Haz un clic", 100);
    const std::vector<StripLabel> labels = {{0, {}, {}}, {1, {}, {}}, {0, {}, {}}};
    PaintPointStrip(strip, labels);
    PaintPointStrip(strip, labels);
    EXPECT_EQ(strip.VisibleTexts(), (std::vector<std::string>{"0", "1", "0"}));
}

TEST(PointsStripTest, ReplacesAModeByTheNextOne) {
    window::Recorder strip(kWidth, 42);
    PaintSpeedMode(strip, 2, "md");
    PaintSpeedMode(strip, 2, "cs");
    EXPECT_EQ(strip.VisibleTexts(), std::vector<std::string>{"cs"});
}

TEST(PointsStripTest, ColoursASharedLabelByHalves) {
    constexpr text::Color kBlue = text::Rgb(0, 0, 255);
    constexpr text::Color kGreen = text::Rgb(0, 255, 0);
    window::Recorder strip(kWidth, 42);
    PaintPointStrip(strip, std::vector<StripLabel>{{0, kBlue, kGreen}});
    std::vector<window::BoxOp> filled;
    for (const window::DrawOp& op : strip.Operations())
        if (const auto* box = std::get_if<window::BoxOp>(&op); box && box->filled)
            filled.push_back(*box);
    // The grey band comes first.
    ASSERT_EQ(filled.size(), 3u);
    EXPECT_EQ(filled[1].color, kBlue);
    EXPECT_EQ(filled[1].x1, 0);
    EXPECT_EQ(filled[2].color, kGreen);
    EXPECT_EQ(filled[2].x1, 32);
}

TEST(PointsStripTest, KeepsTheLongestPromptInside) {
    window::Recorder strip(kWidth, 42);
    constexpr std::string_view kPrompt =
        "A lo más 3 clics en este espacio, el primero para separar los dos móviles "
        "y los demás para definir los tramos del primero";
    PaintStripPrompt(strip, kPrompt, 10);
    EXPECT_LE(strip.CurrentX, kWidth);
}

}  // namespace
}  // namespace tavrelo::frame
