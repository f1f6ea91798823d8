#include "frame/points_board.h"

#include "drawing/print_markup.h"

namespace tavrelo::frame {
namespace {

// Pixels; y counts from the bottom upward.
constexpr double kLeft = 10;
constexpr double kFirstLine = 340;
constexpr double kPitch = 18;
constexpr double kTextDrop = 2;  // from the line's height to the top of its text
constexpr double kSize = 10;     // points

double HeightOf(int slot) { return kFirstLine - (slot - 1) * kPitch; }

}  // namespace

void ClearBoardLine(window::Surface& board, int slot, const BoardBand& band) {
    const double top = board.FromBottom(HeightOf(slot) + 1);
    board.Box(band.left, top, band.left + band.width, top + band.height, text::kWhite, true);
}

void PrintBoardLine(window::Surface& board, int slot, std::string_view markup) {
    board.DescribeByTexts();
    board.ForeColor = text::kBlack;
    drawing::PrintMarkup(board, markup, kLeft, HeightOf(slot) - kTextDrop, text::kTextFont, kSize);
}

}  // namespace tavrelo::frame
