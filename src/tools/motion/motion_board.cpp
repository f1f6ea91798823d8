#include "tools/motion/motion_board.h"

#include "drawing/print_markup.h"

namespace tavrelo::tools::motion {
namespace {

// Pixels; y counts from the bottom upward.
constexpr double kLeft = 10;
constexpr double kFirstLine = 340;
constexpr double kPitch = 18;
constexpr double kBandWidth = 411;
constexpr double kTextDrop = 2;  // from the line's height to the top of its text
constexpr double kSize = 10;     // points

double HeightOf(int slot) { return kFirstLine - (slot - 1) * kPitch; }

}  // namespace

void ClearBoardLine(window::Surface& board, int slot) {
    const double top = board.FromBottom(HeightOf(slot) + 1);
    board.Box(kLeft, top, kLeft + kBandWidth, top + kPitch, text::kWhite, true);
}

void PrintBoardLine(window::Surface& board, int slot, std::string_view markup) {
    board.ForeColor = text::kBlack;
    drawing::PrintMarkup(board, markup, kLeft, HeightOf(slot) - kTextDrop, text::kTextFont, kSize);
}

}  // namespace tavrelo::tools::motion
