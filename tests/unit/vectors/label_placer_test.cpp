#include "vectors/label_placer.h"

#include <gtest/gtest.h>

#include "shell/markup.h"
#include "vectors/draw_engine.h"

namespace tavrelo::vectors {
namespace {

constexpr double kWidth = 400;
constexpr double kHeight = 300;

struct Area {
    double left, top, right, bottom;
    bool Meets(const Area& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

std::vector<Area> LabelAreas(const shell::Recorder& picture) {
    std::vector<Area> areas;
    for (const shell::DrawOp& operation : picture.Operations())
        if (const auto* text = std::get_if<shell::TextOp>(&operation))
            areas.push_back({text->x, text->y,
                             text->x + shell::MarkupWidth(text->PlainText(), LabelFont()),
                             text->y + shell::TextHeight(LabelFont())});
    return areas;
}

TEST(LabelPlacer, KeepsOffALevelLine) {
    shell::Recorder picture(kWidth, kHeight);
    LabelPlacer labels(picture);
    labels.AddLine({0, 100}, {kWidth, 100});
    labels.Place("V!1", {200, 100}, {1, 0}, shell::kBlack);
    const auto areas = LabelAreas(picture);
    ASSERT_EQ(areas.size(), 1U);
    EXPECT_TRUE(areas[0].bottom < 100 || areas[0].top > 100);
}

TEST(LabelPlacer, LabelsOfOnePlaceDoNotCoverEachOther) {
    shell::Recorder picture(kWidth, kHeight);
    LabelPlacer labels(picture);
    for (const char* name : {"(1, 2)", "(1, 3)", "(1, 4)", "(1, 5)"})
        labels.Place(name, {200, 150}, {0, -1}, shell::kBlack);
    const auto areas = LabelAreas(picture);
    ASSERT_EQ(areas.size(), 4U);
    for (std::size_t i = 0; i < areas.size(); ++i)
        for (std::size_t k = i + 1; k < areas.size(); ++k)
            EXPECT_FALSE(areas[i].Meets(areas[k])) << i << " and " << k;
}

TEST(LabelPlacer, StaysInsideThePicture) {
    shell::Recorder picture(kWidth, kHeight);
    LabelPlacer labels(picture);
    labels.Place("(123.456, 78.9)", {kWidth - 2, 2}, {1, -1}, shell::kBlack);
    const auto areas = LabelAreas(picture);
    ASSERT_EQ(areas.size(), 1U);
    EXPECT_GE(areas[0].top, 0);
    EXPECT_LE(areas[0].right, kWidth);
}

}  // namespace
}  // namespace tavrelo::vectors
