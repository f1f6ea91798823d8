#include "tools/motion/procedures.h"

#include <gtest/gtest.h>

#include <set>

#include "../../failure_code.h"

namespace tavrelo::tools::motion {
namespace {

TEST(ProceduresTest, StandInOneRowOrEntryEach) {
    std::set<int> codes;
    for (int row = 1; row <= static_cast<int>(MotionTexts().procedure_rows.size()); ++row)
        codes.insert(static_cast<int>(ProcedureOfRow(row).procedure));
    for (int entry = 0; entry < static_cast<int>(MotionTexts().procedure_list.size()); ++entry)
        codes.insert(static_cast<int>(ProcedureOfEntry(entry).procedure));
    ASSERT_EQ(codes.size(), 18u);
    EXPECT_EQ(*codes.begin(), 40);
    EXPECT_EQ(*codes.rbegin(), 57);
}

TEST(ProceduresTest, ShowTheTitlesOfTheirTables) {
    EXPECT_EQ(MotionTexts().procedure_rows[0], ProcedureOfRow(kPlantRow).title);
    EXPECT_EQ(MotionTexts().procedure_list[12], "Resolver la ecuación cuadrática Ax^2 + Bx + C = 0");
}

TEST(ProceduresTest, FitTheirNeedsIntoTheirPanel) {
    // Two lines, or two columns of two.
    for (int entry = 0; entry < static_cast<int>(MotionTexts().procedure_list.size()); ++entry) {
        const auto needs = ProcedureOfEntry(entry).needs;
        EXPECT_GE(needs.size(), 1u);
        EXPECT_LE(needs.size(), 4u);
    }
}

TEST(ProceduresTest, HaveATopicEach) {
    EXPECT_EQ(MotionTopic(frame::PointsHelp::Configuration, 1, -1)->tag, "CONFIGTABLE");
    EXPECT_EQ(MotionTopic(frame::PointsHelp::Row, 3, -1)->tag, "SUSV0A");
    EXPECT_EQ(MotionTopic(frame::PointsHelp::Entry, 1, 7)->tag, "LIGAR");
    EXPECT_FALSE(MotionTopic(frame::PointsHelp::Entry, 1, -1));
}

TEST(ProceduresTest, FailOnRowsThatDoNotExist) {
    EXPECT_EQ(testing::FailureOf([] { ProcedureOfRow(0); }), numeric::FailureCode::SubscriptRange);
    EXPECT_EQ(testing::FailureOf([] { ProcedureOfRow(6); }), numeric::FailureCode::SubscriptRange);
    EXPECT_EQ(testing::FailureOf([] { ProcedureOfEntry(13); }), numeric::FailureCode::SubscriptRange);
}

}  // namespace
}  // namespace tavrelo::tools::motion
