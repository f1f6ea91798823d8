// Whatever is typed in the projectile tool. The lines of the input fill the table column by column and the
// box of the special procedures; every procedure runs on it and every question is answered. The only
// exception that leaves is the documented failure, and every number of a cell, a launch or a graph is finite.

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "harness.h"
#include "mechanics/projectile/procedures.h"
#include "numeric/checked.h"

namespace {

using namespace tavrelo;
using fuzz::PiecesOf;
using namespace tavrelo::mechanics;
using namespace tavrelo::mechanics::projectile;

constexpr int kDecimals = 3;
constexpr int kDeepestAnswer = 3;

void RequireFinite(double number) {
    if (!std::isfinite(number))
        std::abort();
}

void CheckProblem(const Problem& problem) {
    for (int column = 1; column <= points::kMostPoints; ++column)
        for (int row = 0; row < points::kProjectileRows; ++row)
            if (const double* number = problem.table.Stored(row, column).IfNumber())
                RequireFinite(*number);
    for (const Equations& each : problem.equations)
        for (const double number : {each.launch.first.value_or(0), each.launch.second.value_or(0),
                                    each.flight.x_at_zero, each.flight.y_at_zero, each.flight.vy_at_zero})
            RequireFinite(number);
}

/// No text shows an infinity or what is no number.
void CheckLines(const std::vector<std::string>& lines) {
    for (const std::string& line : lines)
        if (line.find("= inf") != std::string::npos || line.find("nan") != std::string::npos)
            std::abort();
}

void CheckGraph(const Graph& graph) {
    for (const GraphCurve& curve : graph.curves)
        for (const numeric::Point& point : curve.points) {
            const numeric::Point placed = graph.Placed(point);
            RequireFinite(placed.x);
            RequireFinite(placed.y);
        }
}

/// A session: each procedure starts where the one before it ended.
class Session {
  public:
    explicit Session(std::string_view typed_limit) : m_limit(typed_limit) {}

    Problem problem;

    template <typename Run>
    void Try(const Run& run) {
        try {
            Take(run(), 0);
        } catch (const numeric::RuntimeFailure&) {
        }
    }

  private:
    void Take(const Step& step, int depth) {
        const auto* outcome = std::get_if<Outcome>(&step);
        if (!outcome)
            return;
        problem = outcome->problem;
        CheckProblem(problem);
        for (const Event& event : outcome->events) {
            if (const auto* written = std::get_if<WriteLines>(&event))
                CheckLines(written->lines);
            if (const auto* graph = std::get_if<ShowGraph>(&event))
                CheckGraph(graph->graph);
            if (depth < kDeepestAnswer)
                Answer(event, depth);
        }
    }

    void Answer(const Event& event, int depth) {
        if (const auto* limit = std::get_if<AskLimit>(&event))
            Take(ContinueWithLimit(problem, limit->request, m_limit, kDecimals), depth + 1);
        if (const auto* question = std::get_if<Question>(&event)) {
            const auto& request = m_say_yes ? question->yes : question->no;
            m_say_yes = !m_say_yes;
            if (request)
                Take(Continue(problem, *request, kDecimals), depth + 1);
        }
    }

    std::string m_limit;
    bool m_say_yes = false;
};

void Fill(Problem& problem, const std::vector<std::string>& lines) {
    std::size_t next = 0;
    for (int column = 1; column <= points::kMostPoints; ++column)
        for (int row = 0; row < points::kProjectileRows && next < lines.size(); ++row, ++next)
            problem.table.At(row, column) = {lines[next], lines[next]};
}

void Play(Session& session, const std::string& typed) {
    constexpr Procedure kProcedures[] = {Procedure::Plant, Procedure::Substitute,
                                         Procedure::SubstituteInPolar, Procedure::SubstituteInComponents};
    constexpr Special kSpecials[] = {
        Special::ThreePoints, Special::RangeRatio,   Special::FlightTimeAndRange, Special::Path,
        Special::Incline,     Special::Crossing,     Special::Collision,          Special::Interception,
        Special::SquaredPair, Special::WithVertical, Special::WithHorizontal,     Special::PlainPair,
        Special::MixedPair};
    for (const Procedure procedure : kProcedures)
        for (int column = 1; column <= points::kMostPoints; ++column)
            if (const auto place = points::Locate(session.problem.configuration, column - 0.5))
                session.Try([&] {
                    return ClickPoint(session.problem, procedure, {place->mover, place->point}, kDecimals);
                });
    for (const Special special : kSpecials)
        session.Try([&] { return RunSpecial(session.problem, special, typed, kDecimals); });
    session.Try([&] { return ClickInterval(session.problem, {1, 0}, {1, 1}, true, kDecimals); });
}

void ToggleAndDrag(Problem& problem) {
    for (int column = 1; column <= points::kMostPoints; column += 2)
        try {
            const auto toggled = WithModeToggled(problem, column, kDecimals);
            if (const auto* next = std::get_if<Problem>(&toggled))
                problem = *next;
            const auto dragged = WithPointDragged(problem, column, 2, true, kDecimals);
            if (const auto* next = std::get_if<Problem>(&dragged))
                problem = *next;
            const auto turned = WithOtherSide(problem, {1, 0}, kDecimals);
            if (const auto* next = std::get_if<Problem>(&turned))
                CheckProblem(*next);
        } catch (const numeric::RuntimeFailure&) {
        }
    CheckProblem(problem);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::string> lines =
        PiecesOf(std::string_view(reinterpret_cast<const char*>(data), size), '\n');
    for (const int variant : {0, 1}) {
        Session session(lines.front());
        session.problem = Reconfigured({}, variant);
        const auto divided = WithBandClicked(session.problem, 4.5, kDecimals);
        if (variant == 1)
            session.problem = std::get<Problem>(divided);
        Fill(session.problem, lines);
        Play(session, lines.back());
        Fill(session.problem, lines);
        ToggleAndDrag(session.problem);
        Play(session, lines.back());
    }
    return 0;
}
