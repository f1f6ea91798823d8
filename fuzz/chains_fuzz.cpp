// Whatever chains of points are typed, one after the other. Each line is a step:
// "chain|vector|series|value|..." adds vectors, "-" takes the last one away, "@A" moves the origin, "*2ABC"
// says what a system is, and any other line draws one. Only the documented failure leaves; the vectors join
// the points that they name, points keep apart, and systems and lines name points that there are.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "harness.h"
#include "mechanics/rigid/structure_steps.h"
#include "numeric/checked.h"
#include "text/number_text.h"

namespace {

using namespace tavrelo;
using fuzz::PiecesOf;
using fuzz::Require;
using namespace tavrelo::mechanics::rigid;

constexpr int kDecimals = 3;
constexpr double kRounding = 1e-9;  // of the largest number in a sum

double LargestOf(const Structure& structure) {
    double largest = 0;
    for (const SegRow& row : structure.segments)
        largest = std::max({largest, std::abs(row.dx), std::abs(row.dy)});
    for (const PointRecord& point : structure.points)
        largest = std::max({largest, std::abs(point.x), std::abs(point.y)});
    return largest;
}

/// `largest` is the largest number that any step had to do with: moving the origin rounds to that.
bool IsNear(double a, double b, double largest) { return std::abs(a - b) <= kRounding * largest; }

bool Joins(const SegRow& row, const PointTable& points, double largest) {
    const PointRecord* from = FindPoint(points, row.from);
    const PointRecord* to = FindPoint(points, row.to);
    if (!from || !to)
        return false;
    return IsNear(row.dx, to->x - from->x, largest) && IsNear(row.dy, to->y - from->y, largest);
}

/// Every point is where a vector has it. Not every vector joins its points: one whose two ends are known by
/// others is passed over.
void RequireJoined(const Structure& structure, double largest) {
    for (const PointRecord& point : structure.points)
        Require(std::any_of(structure.segments.begin(), structure.segments.end(), [&](const SegRow& row) {
            return (row.from == point.name || row.to == point.name) && Joins(row, structure.points, largest);
        }));
    for (const SegRow& row : structure.segments)
        Require(std::isfinite(row.dx) && std::isfinite(row.dy));
}

void RequireSound(const RigidProblem& problem, double largest) {
    const Structure& structure = problem.structure;
    RequireJoined(structure, largest);
    Require(structure.segments.empty() || FindPoint(structure.points, structure.origin));
    for (const PointRecord& point : structure.points)
        Require(std::isfinite(point.x) && std::isfinite(point.y));
    const std::vector<std::string> letters = LettersOf(structure.segments);
    for (const std::string& system : problem.systems)
        for (const std::string& letter : LettersOf(system))
            Require(std::find(letters.begin(), letters.end(), letter) != letters.end());
    for (const LineRow& line : problem.lines)
        for (const std::string& letter : LettersOf(line.chain))
            Require(FindPoint(structure.points, letter) != nullptr);
    Require(CoordLines(structure.segments, structure.points, kDecimals).size() == letters.size());
    Require(SepLines(structure.segments, kDecimals).size() == structure.segments.size());
}

RigidProblem WithChain(const RigidProblem& problem, const std::string& line) {
    std::vector<std::string> pieces = PiecesOf(line, '|');
    constexpr std::size_t kValues = 3;  // the pieces from here on
    pieces.resize(std::max(pieces.size(), kValues));
    CheckChain(pieces[0]);
    const auto outcome =
        WithVectors(problem, {pieces[0], pieces[1], pieces[2], std::span(pieces).subspan(kValues)},
                    problem.structure.origin, kDecimals);
    const auto* step = std::get_if<StructureStep>(&outcome);
    if (!step)
        return problem;
    const std::size_t pairs = LettersOf(pieces[0]).size() - 1;
    Require(step->problem.structure.segments.size() == problem.structure.segments.size() + pairs);
    return step->problem;
}

RigidProblem After(const RigidProblem& problem, const std::string& line) {
    if (line == "-")
        return problem.structure.segments.empty()
                   ? problem
                   : WithoutLastVector(problem, problem.structure.origin).problem;
    if (line.starts_with('@')) {
        auto moved = WithOrigin(problem, line.substr(1));
        return std::holds_alternative<RigidProblem>(moved) ? std::get<RigidProblem>(moved) : problem;
    }
    if (line.starts_with('*') && line.size() > 1) {  // what the list of letters lets choose
        std::string chosen;
        for (const std::string& letter : LettersOf(problem.structure.segments))
            if (line.find(letter) != std::string::npos)
                chosen += letter;
        return WithSystem(problem, line[1] - '0', chosen);
    }
    if (line.find('|') != std::string::npos)
        return WithChain(problem, line);
    const auto read = ReadLine(line, problem.systems, problem.structure.points);
    const auto* command = std::get_if<LineCommand>(&read);
    return command ? WithLine(problem, *command) : problem;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    RigidProblem problem;
    double largest = 0;
    for (const std::string& line : PiecesOf({reinterpret_cast<const char*>(data), size}, '\n')) {
        try {
            problem = After(problem, line);
        } catch (const numeric::RuntimeFailure&) {
            continue;
        }
        largest = std::max(largest, LargestOf(problem.structure));
        RequireSound(problem, largest);
    }
    return 0;
}
