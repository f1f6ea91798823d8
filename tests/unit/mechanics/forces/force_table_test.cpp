#include "mechanics/forces/force_table.h"

#include <gtest/gtest.h>

#include "notation/force_parser.h"

namespace tavrelo::mechanics::forces {
namespace {

using text::Value;

constexpr int kDecimals = 3;

TEST(RowOf, PutsARecordIntoColumns) {
    const auto record = std::get<notation::ForceRecord>(notation::ParseForce("p30x,2F1:", kDecimals));
    const ForceRow row = RowOf(record);
    EXPECT_EQ(row[Magnitude], Value(""));
    EXPECT_EQ(row[Direction], Value(30.0));
    EXPECT_EQ(row[XUnknown], Value("F1"));
    EXPECT_EQ(row[LeavesPoint], Value(kArrives));
    EXPECT_EQ(row[Colour], Value(kUnknown));
    EXPECT_EQ(row[GivenText], Value("p30x,2F1:"));
    EXPECT_EQ(row[FormatCode], Value("cAe,M"));
    EXPECT_EQ(row[ShownMagnitude], Value("2 F!1"));
    EXPECT_TRUE(row[StartX].IsEmpty());
    EXPECT_TRUE(row[StartY].IsEmpty());
}

}  // namespace
}  // namespace tavrelo::mechanics::forces
