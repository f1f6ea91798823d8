#include "verbs.h"

namespace tavrelo::transcript {
namespace {

constexpr char kPieceEnd = '|';

CellPlace ReadCell(Arguments& arguments) {
    const int row = arguments.WholeNumber();
    return {row, arguments.WholeNumber()};
}

/// True when the student can press that cell; else the command shows why not.
bool ReachCell(Session& session, const window::Grid& grid, CellPlace cell) {
    if (!session.Reach(grid))
        return false;
    if (grid.HasCell(cell.row, cell.col))
        return true;
    session.Show("! no such cell");
    return false;
}

}  // namespace

void PressCell(Session& session, Arguments& arguments) {
    auto& grid = session.FindAs<window::Grid>(arguments.Word());
    const CellPlace cell = ReadCell(arguments);
    arguments.ExpectEnd();
    if (ReachCell(session, grid, cell))
        session.driver.PressCell(grid, cell);
}

void DragBlock(Session& session, Arguments& arguments) {
    auto& grid = session.FindAs<window::Grid>(arguments.Word());
    const CellPlace first = ReadCell(arguments);
    const CellPlace last = ReadCell(arguments);
    arguments.ExpectEnd();
    if (ReachCell(session, grid, first) && ReachCell(session, grid, last))
        session.driver.DragCells(grid, {first.row, first.col, last.row, last.col});
}

void FillCells(Session& session, Arguments& arguments) {
    auto& grid = session.FindAs<window::Grid>(arguments.Word());
    CellPlace cell = ReadCell(arguments);
    std::string_view rest = arguments.Rest();
    while (true) {
        const std::size_t end = rest.find(kPieceEnd);
        const std::string_view piece = rest.substr(0, end);
        if (!piece.empty()) {
            if (!ReachCell(session, grid, cell))
                return;
            session.driver.PressCell(grid, cell);
            TypeCharacters(session, grid, piece);
        }
        if (end == std::string_view::npos)
            return;
        rest.remove_prefix(end + 1);
        ++cell.col;
    }
}

void DoubleClickCell(Session& session, Arguments& arguments) {
    auto& grid = session.FindAs<window::Grid>(arguments.Word());
    const CellPlace cell = ReadCell(arguments);
    arguments.ExpectEnd();
    if (ReachCell(session, grid, cell))
        session.driver.DoubleClickCell(grid, cell);
}

}  // namespace tavrelo::transcript
