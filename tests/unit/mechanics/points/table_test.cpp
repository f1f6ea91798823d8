#include "mechanics/points/table.h"

#include <gtest/gtest.h>

#include <variant>

#include "mechanics/points/datum.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::points {
namespace {

constexpr int kDecimals = 3;

TEST(Cell, KeepsAllDigitsBehindARoundedNumber) {
    const Cell cell = NumberCell(10.0 / 3.0, kDecimals);
    EXPECT_EQ(cell.shown, "3.333");
    EXPECT_EQ(cell.stored.Text(), "3.33333333333333");
    EXPECT_EQ(NumberCell(-0.0001, kDecimals).shown, "0");
}

TEST(Cell, HoldsATypedTextAsItStands) {
    EXPECT_EQ(TextCell("2*x3").stored, text::Value("2*x3"));
    EXPECT_EQ(TextCell("2.71828").shown, "2.71828");
    EXPECT_EQ(TextCell(""), Cell{});
}

TEST(Cell, ShowsAPastedNumberRounded) {
    const Cell number = PastedCell("2.718281828", kDecimals);
    EXPECT_EQ(number.shown, "2.718");
    EXPECT_EQ(number.stored.Text(), "2.718281828");
    EXPECT_EQ(PastedCell("T0+5", kDecimals).shown, "T0+5");
    EXPECT_EQ(PastedCell("", kDecimals), Cell{});
}

Table Filled() {
    Table table(kMotionRows);
    for (int row = 0; row < kMotionRows; ++row)
        table.SetNumber(row, 2, row + 1, kDecimals);
    return table;
}

TEST(Table, CopiesAndMovesColumns) {
    Table copied = Filled();
    copied.CopyColumn(2, 5);
    EXPECT_EQ(copied.Stored(kSpeedRow, 5), text::Value(3));
    EXPECT_EQ(copied.Stored(kSpeedRow, 2), text::Value(3));
    Table moved = Filled();
    moved.MoveColumn(2, 5);
    EXPECT_EQ(moved.Stored(kTimeRow, 5), text::Value(1));
    EXPECT_TRUE(moved.IsEmptyColumn(2));
    Table onto_itself = Filled();
    onto_itself.MoveColumn(2, 2);
    EXPECT_EQ(onto_itself, Filled());
}

TEST(Table, ClearsAColumnOrAll) {
    Table table = Filled();
    table.ClearColumn(2);
    EXPECT_EQ(table, Table(kMotionRows));
    Table all = Filled();
    all.Clear();
    EXPECT_EQ(all, Table(kMotionRows));
    EXPECT_FALSE(Table(kProjectileRows) == Table(kMotionRows));
}

TEST(Table, RefusesCellsThatItDoesNotHave) {
    Table table(kMotionRows);
    for (const auto& [row, column] : {std::pair(-1, 1), {3, 1}, {0, 0}, {0, 10}})
        EXPECT_THROW(table.At(row, column), numeric::RuntimeFailure);
}

Datum ReadAsTime(const text::Value& stored) { return std::get<Datum>(ReadDatum(stored, kTimeLetters)); }

TEST(Datum, TellsNumbersFromReferences) {
    EXPECT_EQ(ReadAsTime({}), Datum(NoDatum{}));
    EXPECT_EQ(ReadAsTime(""), Datum(NoDatum{}));
    EXPECT_EQ(ReadAsTime("2.5"), Datum(2.5));
    EXPECT_EQ(ReadAsTime(2.5), Datum(2.5));
    EXPECT_EQ(ReadAsTime("t3+5"), Datum(notation::CellReference{3, 5.0, std::nullopt}));
    EXPECT_EQ(ReadAsTime("T0+5"), Datum(OtherText{}));
    EXPECT_EQ(ReadAsTime("x3+5"), Datum(OtherText{}));
    EXPECT_EQ(std::get<Datum>(ReadDatum("2*X1", kPositionLetters)),
              Datum(notation::CellReference{1, std::nullopt, 2.0}));
}

TEST(Datum, RefusesAMalformedReference) {
    for (const char* text : {"t", "t3+5-2", "2*t3/2", "t3*2", "tt+5", "t3+x"}) {
        const auto datum = ReadDatum(text, kTimeLetters);
        ASSERT_TRUE(std::holds_alternative<text::Refusal>(datum)) << text;
        EXPECT_EQ(std::get<text::Refusal>(datum).text, std::string("Error en el dato ") + text);
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::points
