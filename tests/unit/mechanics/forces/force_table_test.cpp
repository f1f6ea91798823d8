#include "mechanics/forces/force_table.h"

#include <gtest/gtest.h>

#include "notation/force_parser.h"

namespace tavrelo::mechanics::forces {
namespace {

using text::Value;

constexpr int kDecimals = 3;

ForceTable Forces(const std::vector<std::string>& texts) {
    return std::get<ForceTable>(ForcesOf(texts, kDecimals));
}

TEST(RowOf, PutsEachElementOfTheRecordIntoTheNextColumn) {
    const auto record = std::get<notation::ForceRecord>(notation::ParseForce("p30x,2F1:", kDecimals));
    const ForceRow row = RowOf(record);
    for (std::size_t element = 0; element < record.size(); ++element)
        EXPECT_EQ(row[element + 1], record[element]) << element;
    EXPECT_EQ(row[Magnitude], Value("F1"));
    EXPECT_EQ(row[Direction], Value(30.0));
    EXPECT_EQ(row[XUnknown], Value("F1"));
    EXPECT_EQ(row[LeavesPoint], Value(notation::kArrives));
    EXPECT_EQ(row[Colour], Value(kUnknown));
    EXPECT_EQ(row[GivenText], Value("p30x,2F1:"));
    EXPECT_EQ(row[FormatCode], Value("cAe,M"));
    EXPECT_EQ(row[ShownMagnitude], Value("2 F!1"));
    EXPECT_TRUE(row[StartX].IsEmpty());
    EXPECT_TRUE(row[StartY].IsEmpty());
}

TEST(DirectionIsUnknown, WhereNoClockReadingStands) {
    const ForceTable table =
        Forces({"20<a", "F<a", "ua", "10,F", "F,Q", "hFuerza", "h5", "p30x,F", "3,4", "F,0"});
    const std::vector<bool> unknown = {true, true, true, true, true, true, false, false, false, false};
    for (std::size_t i = 0; i < table.size(); ++i)
        EXPECT_EQ(DirectionIsUnknown(table[i]), unknown[i]) << i;
}

TEST(ForcesOf, DrawsUnknownDirectionsAtTheDefault) {
    const ForceTable table = Forces({"20<a", "h5"});
    EXPECT_EQ(table[0][DrawDirection], Value(45.0));
    EXPECT_TRUE(table[1][DrawDirection].IsEmpty());
}

TEST(ForcesOf, TellsTheFirstTextThatIsNoForce) {
    const std::vector<std::string> texts = {"h5", "h", "xyz"};
    EXPECT_EQ(std::get<text::Refusal>(ForcesOf(texts, kDecimals)).text, "Falta el valor de la componente X.");
    EXPECT_TRUE(Forces({}).empty());
}

}  // namespace
}  // namespace tavrelo::mechanics::forces
