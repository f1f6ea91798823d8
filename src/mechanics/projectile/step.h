#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "mechanics/projectile/data_pair.h"
#include "mechanics/projectile/graph.h"
#include "mechanics/projectile/intercept.h"
#include "mechanics/projectile/problem.h"
#include "mechanics/projectile/worked.h"
#include "text/refusal.h"

/// What a procedure of projectiles answers. The caller takes over `Outcome::problem` (the cells are shown
/// from it) and then walks `events` in order. A procedure never changes the problem that it was given and
/// opens no box; where it fails for a reason that it does not tell, it throws numeric::RuntimeFailure.
namespace tavrelo::mechanics::projectile {

/// Lines of the report in rich-text markup.
struct WriteLines {
    std::vector<std::string> lines;
};
/// The white band over a slot of the board; slots count from 1, those of mover 2 follow those of mover 1.
struct ClearSlot {
    int slot;
};
/// A line in picture markup on a slot of the board.
struct BoardLine {
    int slot;
    std::string markup;
};
/// The board of equations comes to the front.
struct ShowBoard {};
/// The graph is drawn and comes to the front.
struct ShowGraph {
    Graph graph;
};
/// A formula for the expression box, where further roots can be looked for.
struct InsertFormula {
    std::string formula;
};
/// A message with OK; no markup, lines parted by "\n".
struct Box {
    std::string text;
};

/// Plants the equations of a mover with a launch that was found.
struct PlantRequest {
    int mover = 1;
    Launch launch;
};
/// Puts a state into a column of the table.
struct PutPointRequest {
    int column = 1;
    State state;
};
/// What an answer leads to: given to Continue.
using Request = std::variant<PlantRequest, PutPointRequest>;

/// A question; the request of the answer given, if it names one, is carried out next. Yes and OK are one, so
/// are No and Cancel.
struct Question {
    Buttons buttons = Buttons::YesNo;
    std::string text;  // no markup, lines parted by "\n"
    std::optional<Request> yes;
    std::optional<Request> no;
};

/// The search for v0x waits for its limit.
struct QuarticSearch {
    Place place;
    Launch launch;
    PairData data;
};
using LimitRequest = std::variant<QuarticSearch, Interception>;
/// An input box for the limit of a search; what is typed goes to ContinueWithLimit, cancelling ends quietly.
struct AskLimit {
    std::string title;
    std::string text;  // lines parted by "\n"
    LimitRequest request;
};

using Event = std::variant<WriteLines, ClearSlot, BoardLine, ShowBoard, ShowGraph, InsertFormula, Box,
                           Question, AskLimit>;

struct Outcome {
    Problem problem;
    std::vector<Event> events;
};
/// A refusal leaves everything as it was.
using Step = std::variant<text::Refusal, Outcome>;

/// Slots of the board: kLinesPerMover of each mover.
inline constexpr int kBoardSlots = 2 * kLinesPerMover;
inline constexpr int FirstSlotOf(int mover) { return mover == 2 ? kLinesPerMover + 1 : 1; }

}  // namespace tavrelo::mechanics::projectile
