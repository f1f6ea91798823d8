#include "window/picture_tips.h"

#include <gtest/gtest.h>

#include <limits>

#include "window/surface.h"

namespace tavrelo::window {
namespace {

const PictureTip kAcross = ArrowTip{{100, 100}, {200, 100}, "a la derecha"};
const PictureTip kUp = ArrowTip{{100, 100}, {100, 0}, "hacia arriba"};
const PictureTip kTurn = RingTip{{300, 100}, 20, "par"};
// x from 0 to 10 between the pixels 50 and 250, y from -1 to 1 between 350 and 150.
PictureTip NotedGraph() {
    GraphTip graph;
    graph.across = {"x", 50, 250, 0, 10};
    graph.upward.push_back({"y", 350, 150, -1, 1});
    graph.decimals = 2;
    graph.note = "Una nota.";
    return graph;
}

TEST(PictureTips, TheNearestArrowSpeaks) {
    const std::vector<PictureTip> tips = {kAcross, kUp, kTurn};
    EXPECT_EQ(TipAt(tips, {150, 103}), "a la derecha");
    EXPECT_EQ(TipAt(tips, {97, 50}), "hacia arriba");
    EXPECT_EQ(TipAt(tips, {204, 100}), "a la derecha");  // just beyond its tip
    EXPECT_EQ(TipAt(tips, {150, 120}), "");
    EXPECT_EQ(TipAt({}, {0, 0}), "");
}

TEST(PictureTips, ARingSpeaksOnItsCircleAndNotInside) {
    const std::vector<PictureTip> tips = {kTurn};
    EXPECT_EQ(TipAt(tips, {320, 102}), "par");
    EXPECT_EQ(TipAt(tips, {300, 100}), "");
}

/// (150, 200): half way across, three quarters of the way up.
TEST(PictureTips, AGraphTellsItsValues) {
    const std::vector<PictureTip> tips(1, NotedGraph());
    EXPECT_EQ(TipAt(tips, {150, 200}), "x = 5, y = 0.5\nUna nota.");
    EXPECT_EQ(TipAt(tips, {50, 350}), "x = 0, y = -1\nUna nota.");
    EXPECT_EQ(TipAt(tips, {49, 200}), "");
    EXPECT_EQ(TipAt(tips, {150, 149}), "");
}

TEST(PictureTips, AnArrowOverAGraphSpeaksFirst) {
    std::vector<PictureTip> tips(1, NotedGraph());
    tips.push_back(ArrowTip{{150, 160}, {150, 260}, "R"});
    EXPECT_EQ(TipAt(tips, {150, 200}), "R");
    EXPECT_EQ(TipAt(tips, {200, 250}), "x = 7.5, y = 0\nUna nota.");
}

TEST(PictureTips, CurvesWithScalesOfTheirOwnTellEachTheirs) {
    GraphTip graph;
    graph.across = {"t", 0, 100, 0, 1};
    graph.upward.push_back({"x", 100, 0, 0, 8});
    graph.upward.push_back({"v", 100, 0, -2, 2});
    graph.decimals = 2;
    const std::vector<PictureTip> tips(1, graph);
    EXPECT_EQ(TipAt(tips, {25, 50}), "t = 0.25, x = 4, v = 0");
}

/// The extent of the largest numbers has no value, yet every place of the graph has one.
TEST(PictureTips, TheLargestNumbersHaveValues) {
    constexpr double kMost = std::numeric_limits<double>::max();
    const TipScale scale{"y", 0, 100, -kMost, kMost};
    EXPECT_EQ(scale.ValueAt(50), 0);
    EXPECT_EQ(scale.ValueAt(100), kMost);
    EXPECT_EQ((TipScale{"y", 7, 7, 3, 3}.ValueAt(7)), 3);
}

TEST(PictureTips, TipsAndInvitationGoWithTheDrawing) {
    Recorder canvas(300, 300);
    canvas.Invite("Empieza así.");
    EXPECT_EQ(canvas.Invitation(), "Empieza así.");
    EXPECT_TRUE(canvas.Operations().empty());
    canvas.Line(0, 0, 10, 10, text::kBlack);
    EXPECT_EQ(canvas.Invitation(), "");
    canvas.AddTip(kAcross);
    EXPECT_EQ(canvas.TipAt({150, 100}), "a la derecha");
    canvas.Cls();
    EXPECT_EQ(canvas.TipAt({150, 100}), "");
}

}  // namespace
}  // namespace tavrelo::window
