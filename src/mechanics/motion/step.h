#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "mechanics/motion/problem.h"
#include "text/refusal.h"
#include "text/value.h"

/// What a procedure of motion answers. The caller takes over `Outcome::problem` (cells, acceleration boxes
/// and results are shown from it) and then walks `events` in order. A procedure never changes the problem
/// that it was given and opens no box; where it fails for a reason that it does not tell, it throws
/// numeric::RuntimeFailure.
namespace tavrelo::mechanics::motion {

/// Lines of the board: equations stand in slots from 1.
inline constexpr int kBoardSlots = 10;
/// The slots that hold equations of stretches: position and speed, by turns.
inline constexpr int kEquationSlots = 8;
/// The slot of a stretch's position equation; that of the speed follows.
int BoardSlotOf(int mover, int stretch);

/// Lines of the report in rich-text markup, written by one call of the report writer.
struct WriteLines {
    std::vector<std::string> lines;
};
/// The white band over a slot of the board.
struct ClearSlot {
    int slot;
};
/// A line in picture markup on a slot of the board.
struct BoardLine {
    int slot;
    std::string markup;
};
/// The board of equations comes to the front, the graph goes behind it.
struct ShowBoard {};
/// The results panel opens with the first solution of the problem's results.
struct ShowResults {};
/// A message with OK; no markup, lines parted by "\n".
struct Box {
    std::string text;
};

/// Plants the equations of a stretch (planting.h) on a base point with these data; an empty value is an
/// unknown.
struct PlantRequest {
    int mover = 1;
    int stretch = 1;
    int base = 0;
    text::Value t;
    text::Value x;
    text::Value v;
    text::Value a;
};
/// Takes a motion found through three points over and waits for its base: the next number typed.
struct AwaitBaseRequest {
    AwaitedBase awaited;
};
/// Two consecutive stretches of mover 1, `stretch` and the next, solved as one motion (linking.h).
struct Linked {
    int stretch = 1;
    FoundPoint start;
    FoundPoint junction;
    FoundPoint end;
    double first_acceleration = 0;
    double second_acceleration = 0;
};
/// Passes a solution of a link to the table and the boxes of accelerations.
struct TakeLinkRequest {
    Linked linked;
};
/// Plants both stretches of a link.
struct PlantLinkRequest {
    Linked linked;
};
/// What an answer leads to: given to Continue (procedures.h). Whoever adds a question adds its requests here.
using Request = std::variant<PlantRequest, AwaitBaseRequest, TakeLinkRequest, PlantLinkRequest>;

enum class Buttons { YesNo, OkCancel };
/// A question; the request of the answer given, if it names one, is carried out next. Yes and OK are one, so
/// are No and Cancel.
struct Question {
    Buttons buttons = Buttons::YesNo;
    std::string text;  // no markup, lines parted by "\n"
    std::optional<Request> yes;
    std::optional<Request> no;
};

using Event = std::variant<WriteLines, ClearSlot, BoardLine, ShowBoard, ShowResults, Box, Question>;

struct Outcome {
    Problem problem;
    std::vector<Event> events;
};
/// A refusal leaves everything as it was.
using Step = std::variant<text::Refusal, Outcome>;

}  // namespace tavrelo::mechanics::motion
