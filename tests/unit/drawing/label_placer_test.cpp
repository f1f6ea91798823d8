#include "drawing/label_placer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "drawing/draw_engine.h"
#include "text/picture_markup.h"

namespace tavrelo::drawing {
namespace {

constexpr double kWidth = 400;
constexpr double kHeight = 300;

struct Area {
    double left, top, right, bottom;
    bool Meets(const Area& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

std::vector<Area> LabelAreas(const window::Recorder& picture) {
    std::vector<Area> areas;
    for (const window::DrawOp& operation : picture.Operations())
        if (const auto* text = std::get_if<window::TextOp>(&operation))
            areas.push_back({text->x, text->y, text->x + text::MarkupWidth(text->PlainText(), LabelFont()),
                             text->y + text::TextHeight(LabelFont())});
    return areas;
}

TEST(LabelPlacer, KeepsOffALevelLine) {
    window::Recorder picture(kWidth, kHeight);
    LabelPlacer labels(picture);
    labels.AddLine({0, 100}, {kWidth, 100});
    PrintLabel(picture, labels.Place("V!1", {200, 100}, {1, 0}, text::kBlack));
    const auto areas = LabelAreas(picture);
    ASSERT_EQ(areas.size(), 1U);
    EXPECT_TRUE(areas[0].bottom < 100 || areas[0].top > 100);
}

TEST(LabelPlacer, LabelsOfOnePlaceDoNotCoverEachOther) {
    window::Recorder picture(kWidth, kHeight);
    LabelPlacer labels(picture);
    for (const char* name : {"(1, 2)", "(1, 3)", "(1, 4)", "(1, 5)"})
        PrintLabel(picture, labels.Place(name, {200, 150}, {0, -1}, text::kBlack));
    const auto areas = LabelAreas(picture);
    ASSERT_EQ(areas.size(), 4U);
    for (std::size_t i = 0; i < areas.size(); ++i)
        for (std::size_t k = i + 1; k < areas.size(); ++k)
            EXPECT_FALSE(areas[i].Meets(areas[k])) << i << " and " << k;
}

TEST(LabelPlacer, StaysInsideThePicture) {
    window::Recorder picture(kWidth, kHeight);
    LabelPlacer labels(picture);
    PrintLabel(picture, labels.Place("(123.456, 78.9)", {kWidth - 2, 2}, {1, -1}, text::kBlack));
    const auto areas = LabelAreas(picture);
    ASSERT_EQ(areas.size(), 1U);
    EXPECT_GE(areas[0].top, 0);
    EXPECT_LE(areas[0].right, kWidth);
}

TEST(LabelPlacer, KeepsItsMarginAndRadius) {
    constexpr double kMargin = 3;
    constexpr double kRadius = 20;
    window::Recorder picture(kWidth, kHeight);
    LabelPlacer labels(picture, kMargin);
    labels.AddLine({200 + kRadius, 0}, {200 + kRadius, kHeight});
    PrintLabel(picture, labels.Place("A", {200, 150}, {1, 0}, text::kBlack));
    PrintLabel(picture, labels.Place("B", {200, 150}, {0, 1}, text::kBlack, kRadius));
    const auto areas = LabelAreas(picture);
    ASSERT_EQ(areas.size(), 2U);
    EXPECT_LE(areas[0].right, 200 + kRadius - kMargin);
    EXPECT_GE(areas[1].top, 150 + kRadius);
}

/// A label beside a faint line stays off it while it can, and stands on it in a narrow lane.
TEST(LabelPlacer, CrossesFaintLinesOnlyWhereItMust) {
    for (const bool is_narrow : {false, true}) {
        window::Recorder picture(kWidth, kHeight);
        LabelPlacer labels(picture);
        labels.AddFaintLine({0, 150}, {kWidth, 150});
        if (is_narrow)
            for (const double y : {140.0, 160.0})
                for (double row = 0; row < 60; row += 5)
                    labels.AddLine({0, y < 150 ? y - row : y + row}, {kWidth, y < 150 ? y - row : y + row});
        PrintLabel(picture, labels.Place("A", {200, 150}, {1, 0}, text::kBlack));
        const auto areas = LabelAreas(picture);
        ASSERT_EQ(areas.size(), 1U);
        EXPECT_EQ(areas[0].top < 150 && areas[0].bottom > 150, is_narrow);
        EXPECT_TRUE(!is_narrow || (areas[0].top > 140 && areas[0].bottom < 160));
    }
}

/// A level line through the place and one upward from it; one that passes far away does not count.
TEST(LabelPlacer, DirectionsOfTheLinesAtAPlace) {
    window::Recorder picture(kWidth, kHeight);
    LabelPlacer labels(picture);
    labels.AddLine({100, 150}, {300, 150});
    labels.AddLine({200, 150}, {200, 50});
    labels.AddLine({0, 200}, {kWidth, 200});
    EXPECT_EQ(labels.DirectionsFrom({200, 150}), (std::vector<double>{0, 90, 180}));
    EXPECT_EQ(labels.DirectionsFrom({100, 150}), (std::vector<double>{0}));
    EXPECT_TRUE(labels.DirectionsFrom({50, 100}).empty());
}

TEST(LabelPlacer, TheFreeSideLiesInTheWidestAngle) {
    struct Row {
        std::vector<window::Point> ends;  // of lines from the place
        window::Point side;
    };
    const double half = std::sqrt(0.5);
    const Row rows[] = {{{}, {0, 1}},
                        {{{1, 0}}, {-1, 0}},
                        {{{1, 0}, {-1, 0}}, {0, 1}},
                        {{{1, 0}, {0, -1}}, {-half, half}},
                        {{{1, 0}, {-1, 0}, {0, 1}}, {0, -1}},
                        {{{-1, 0}, {0, 1}}, {half, -half}}};
    for (const Row& row : rows) {
        window::Recorder picture(kWidth, kHeight);
        LabelPlacer labels(picture);
        for (const window::Point end : row.ends)
            labels.AddLine({200, 150}, {200 + 50 * end.x, 150 + 50 * end.y});
        const window::Point side = labels.FreeSide({200, 150});
        EXPECT_NEAR(side.x, row.side.x, 1e-9) << row.ends.size();
        EXPECT_NEAR(side.y, row.side.y, 1e-9) << row.ends.size();
    }
}

/// Without a side of its own a label stands above its place.
TEST(LabelPlacer, StandsAboveWhenNoSideIsGiven) {
    window::Recorder picture(kWidth, kHeight);
    LabelPlacer labels(picture);
    PrintLabel(picture, labels.Place("A", {200, 150}, {0, 0}, text::kBlack));
    const auto areas = LabelAreas(picture);
    ASSERT_EQ(areas.size(), 1U);
    EXPECT_LE(areas[0].bottom, 150);
    EXPECT_NEAR((areas[0].left + areas[0].right) / 2, 200, 0.5);
}
}  // namespace
}  // namespace tavrelo::drawing
