#include "window/pasted_block.h"

#include <gtest/gtest.h>

namespace tavrelo::window {
namespace {

using Block = std::vector<std::vector<std::string>>;

TEST(PastedBlock, LinesAreRowsAndTabsPartCells) {
    EXPECT_EQ(CellsOfBlock("1\t2\r\n3\t4\r\n"), (Block{{"1", "2"}, {"3", "4"}}));
    EXPECT_EQ(CellsOfBlock("1\n2"), (Block{{"1"}, {"2"}}));
}

TEST(PastedBlock, CommasAndBlanksStay) { EXPECT_EQ(CellsOfBlock(" 3,4\t5 "), (Block{{" 3,4", "5 "}})); }

TEST(PastedBlock, EmptyCellsStand) {
    EXPECT_EQ(CellsOfBlock("\t2\n\n3\t"), (Block{{"", "2"}, {""}, {"3", ""}}));
}

TEST(PastedBlock, NothingIsNoRow) { EXPECT_EQ(CellsOfBlock(""), Block{}); }

}  // namespace
}  // namespace tavrelo::window
