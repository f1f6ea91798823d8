#include "tools/particle/force_diagram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <variant>

#include "drawing/draw_engine.h"
#include "notation/force_parser.h"
#include "text/font.h"
#include "text/number_text.h"

namespace tavrelo::tools::particle {
namespace {

using Texts = std::vector<std::string>;

constexpr int kDecimals = 3;
constexpr double kWidth = 397;
constexpr double kHeight = 385;
constexpr double kShaftWidth = 2;

// Axes and their letters stand first.
constexpr std::size_t kAxes = 2;

struct Box {
    std::string text;
    double left, top, right, bottom;

    bool Meets(const Box& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

// What stands on a diagram beside its axes, and in which order: shafts (s), heads (h) and labels (t).
struct Seen {
    std::vector<window::LineOp> shafts;
    std::vector<window::PolygonOp> heads;
    std::vector<Box> labels;
    std::string order;

    explicit Seen(const window::Recorder& canvas) {
        for (const window::DrawOp& operation : canvas.Operations())
            std::visit([&](const auto& op) { Take(op); }, operation);
        labels.erase(labels.begin(), labels.begin() + std::min(kAxes, labels.size()));
        order.erase(0, std::min(kAxes, order.size()));
    }

  private:
    template <typename Op>
    void Take(const Op&) {}
    void Take(const window::LineOp& line) {
        if (line.width != kShaftWidth)
            return;
        shafts.push_back(line);
        order += 's';
    }
    void Take(const window::PolygonOp& head) {
        heads.push_back(head);
        order += 'h';
    }
    void Take(const window::TextOp& text) {
        const text::PlacedRun& last = text.runs.back();
        labels.push_back({text.PlainText(), text.x, text.y,
                          text.x + last.dx + text::TextWidth(last.text, last.font),
                          text.y + text::TextAscent(last.font)});
        order += 't';
    }
};

// The forces as the user enters them one after the other.
Seen Drawn(const Texts& texts, double rotation = 0) {
    ForcesInView forces;
    AxisSlots slots;
    for (const std::string& text : texts) {
        const auto record = std::get<notation::ForceRecord>(notation::ParseForce(text, kDecimals));
        forces.Add(record, {}, {});
    }
    forces.PlaceAll(slots, rotation);
    window::Recorder canvas(kWidth, kHeight);
    DrawForces(canvas, forces, rotation, kDecimals);
    return Seen(canvas);
}

// Whether a straight line comes into a box, by points half a pixel apart.
bool Enters(const window::LineOp& line, const Box& box) {
    const double length = std::hypot(line.x2 - line.x1, line.y2 - line.y1);
    const int steps = static_cast<int>(2 * length) + 1;
    for (int i = 0; i <= steps; ++i) {
        const double part = static_cast<double>(i) / steps;
        const double x = line.x1 + part * (line.x2 - line.x1);
        const double y = line.y1 + part * (line.y2 - line.y1);
        if (x > box.left && x < box.right && y > box.top && y < box.bottom)
            return true;
    }
    return false;
}

void ExpectLabelsClear(const Texts& texts, double rotation) {
    const Seen seen = Drawn(texts, rotation);
    ASSERT_EQ(seen.labels.size(), texts.size());
    for (std::size_t i = 0; i < seen.labels.size(); ++i) {
        const Box& label = seen.labels[i];
        EXPECT_GE(label.left, 0) << label.text;
        EXPECT_LE(label.right, kWidth) << label.text;
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_FALSE(label.Meets(seen.labels[k])) << label.text << " and " << seen.labels[k].text;
        for (const window::LineOp& shaft : seen.shafts)
            EXPECT_FALSE(Enters(shaft, label)) << label.text;
    }
}

TEST(ForceDiagram, KeepsLabelsOffArrowsAndOffEachOther) {
    const Texts lists[] = {
        {"h10", "h20", "h30", "h5", "v10", "v20", "v15", "v-100"},
        {"h10", "h10", "h10", "h10"},
        {"p30x,100", "p31x,100", "p32x,99", "p33x,98"},
        {"h-5", "h-5", "s1x,5", "t1x,5", "h5:"},
        {"v-147", "p30x,T1", "s30x,T2", "v-147:"},
        {"1<10", "1<12", "1<14", "100<90"},  // all at the shortest length
    };
    for (const Texts& texts : lists)
        for (const double rotation : {0.0, 30.0, -45.0}) {
            SCOPED_TRACE(texts.front() + " turned by " + std::to_string(rotation));
            ExpectLabelsClear(texts, rotation);
        }
}

TEST(ForceDiagram, KeepsLabelsOfAnyForcesClear) {
    std::mt19937 random(20240229);
    std::uniform_int_distribution<int> magnitude(1, 100), direction(-180, 180), count(2, 7);
    for (int diagram = 0; diagram < 200; ++diagram) {
        Texts texts;
        for (int i = count(random); i > 0; --i)
            texts.push_back(std::to_string(magnitude(random)) + "<" + std::to_string(direction(random)));
        SCOPED_TRACE(texts.front() + " " + texts.back());
        ExpectLabelsClear(texts, 0);
    }
}

struct UsualPlace {
    const char* text;
    double left_of_label, top_of_label;  // from the arrow's end, in label widths and heights
    double dx, dy;                       // and pixels
};

// Alone, an arrow has its label 4 pixels beside its end, on the side that its direction tells.
TEST(ForceDiagram, LeavesALabelAtItsUsualPlaceWhereThatIsFree) {
    const UsualPlace rows[] = {
        {"h10", -1, -1, 0, -4},       {"v10", 0, 0, 4, 0},        {"h-10", 0, -1, 0, -4},
        {"v-10", 0, -1, 4, 0},        {"p30x,10", 0, -0.5, 4, 0}, {"p30y,10", 0, -1, 0, -4},
        {"s30x,10", -1, -0.5, -4, 0}, {"t30y,10", -1, 0, 0, 4},
    };
    for (const UsualPlace& row : rows) {
        const Seen seen = Drawn({row.text});
        ASSERT_EQ(seen.labels.size(), 1u) << row.text;
        const Box& label = seen.labels[0];
        const window::LineOp& shaft = seen.shafts.at(0);
        const text::Font font{std::string(text::kSmallFont), 8};
        EXPECT_NEAR(label.left, shaft.x2 + row.left_of_label * text::TextWidth("10", font) + row.dx, 1e-9)
            << row.text;
        EXPECT_NEAR(label.top, shaft.y2 + row.top_of_label * text::TextHeight(font) + row.dy, 1e-9)
            << row.text;
    }
}

// The one that comes first keeps its place; only the other one moves.
TEST(ForceDiagram, MovesNoLabelThatStandsFree) {
    const Seen alone = Drawn({"p30x,10"});
    const Seen both = Drawn({"p30x,10", "p30x,10"});
    EXPECT_EQ(both.labels.at(0).left, alone.labels.at(0).left);
    EXPECT_EQ(both.labels.at(0).top, alone.labels.at(0).top);
    EXPECT_TRUE(both.labels.at(1).left != both.labels.at(0).left ||
                both.labels.at(1).top != both.labels.at(0).top);
}

TEST(ForceDiagram, DrawsEachArrowAndThenItsLabel) {
    EXPECT_EQ(Drawn({"h10", "h20", "v-5"}).order, "shtshtsht");
    EXPECT_EQ(Drawn({}).order, "");
}

/// 100 at 30 degrees, from the middle: 50 along y and 86.603 along x. The arrow is the longest, 5.5 units
/// long.
TEST(ForceDiagram, AnArrowTellsItsForce) {
    ForcesInView forces;
    AxisSlots slots;
    forces.Add(std::get<notation::ForceRecord>(notation::ParseForce("p30x,100", kDecimals)), {}, {});
    forces.PlaceAll(slots, 0);
    window::Recorder canvas(kWidth, kHeight);
    DrawForces(canvas, forces, 0, kDecimals);
    const double along = 3 * drawing::DrawEng::kPixPerUnit;
    const window::Point on_arrow{kWidth / 2 + along * std::cos(std::numbers::pi / 6),
                                 kHeight / 2 - along * std::sin(std::numbers::pi / 6)};
    EXPECT_EQ(canvas.TipAt(on_arrow), "100 a 30 grados\nComponentes x 86.603, y 50");
    EXPECT_EQ(canvas.TipAt({kWidth / 2 - along, kHeight / 2 + along}), "");
}

TEST(ForceDiagram, AnEmptyBoardInvites) {
    window::Recorder canvas(kWidth, kHeight);
    DrawForces(canvas, {}, 0, kDecimals);
    EXPECT_NE(canvas.Invitation(), "");
}

}  // namespace
}  // namespace tavrelo::tools::particle
