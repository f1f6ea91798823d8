#include "mechanics/points/typed_numbers.h"

#include <gtest/gtest.h>

namespace tavrelo::mechanics::points {
namespace {

using Numbers = std::vector<double>;

TEST(ReadNumbers, TakesTrimmedPiecesBetweenCommas) {
    EXPECT_EQ(std::get<Numbers>(ReadNumbers(" 1, -2.5 ,3E2", 3)), (Numbers{1, -2.5, 300}));
    EXPECT_EQ(std::get<Numbers>(ReadNumbers("7", 1)), Numbers{7});
}

TEST(ReadNumbers, RefusesWhatIsNoNumberBeforeAWrongCount) {
    for (const char* typed : {"", "1,", "1,a", "1;2", "1,,2", "1e5"})
        EXPECT_EQ(std::get<text::Refusal>(ReadNumbers(typed, 2)).text, kNoNumberAmongCoefficients) << typed;
    for (const char* typed : {"1", "1,2,3"})
        EXPECT_EQ(std::get<text::Refusal>(ReadNumbers(typed, 2)).text, kWrongNumberOfCoefficients) << typed;
}

TEST(PiecesOf, KeepsEmptyPieces) {
    EXPECT_EQ(PiecesOf(""), (std::vector<std::string>{""}));
    EXPECT_EQ(PiecesOf("a , b,"), (std::vector<std::string>{"a", "b", ""}));
}

}  // namespace
}  // namespace tavrelo::mechanics::points
