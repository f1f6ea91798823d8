#include "problems.h"

#include <algorithm>
#include <cmath>

#include "mechanics/rigid/structure_steps.h"
#include "text/number_text.h"

namespace tavrelo::sessions {
namespace {

using app::Program;
using window::Grid;
using Wrong = std::optional<std::string>;

constexpr double kHalf = 0.5;
constexpr double kDigits = 1e-14;  // what fifteen digits leave of a number

/// Whether the text is the number, rounded to as few decimals as there were at any time.
bool IsNear(const std::string& text, double number, int least_decimals) {
    const double rounding = kHalf * std::pow(10, -least_decimals);
    return text::IsNum(text) &&
           std::abs(text::ToNumber(text) - number) <= (1 + kDigits) * rounding + kDigits * std::abs(number);
}

/// How a force was typed, and how it may be rounded.
struct Reading {
    const std::string& typed;
    int least_decimals;
};

std::string Place(const Grid& grid, int row, int col) {
    return grid.Name() + " " + std::to_string(row) + " " + std::to_string(col);
}

Wrong Differs(const std::string& place, const std::string& shown, const std::string& held) {
    if (shown == held)
        return std::nullopt;
    return place + " shows \"" + shown + "\", the problem holds \"" + held + "\"";
}

Wrong DiffersFromNumber(const std::string& place, const std::string& shown, double held, int least_decimals) {
    if (IsNear(shown, held, least_decimals))
        return std::nullopt;
    return place + " shows \"" + shown + "\", the problem holds " + text::NumberToText(held);
}

/// A component that shows a number is known, and is that number; an unknown one shows its symbol until the
/// table is brought up to date, or 0 where the force has no part along the axis. A vector along an axis
/// ("h-20") is entered without its sign.
Wrong WrongComponent(const Grid& grid, int row, int col, const notation::ForceComponent& held,
                     const Reading& reading) {
    constexpr double kNothing = 1e-8;
    const std::string& shown = grid.Cell(row, col);
    if (!text::IsNum(shown))
        return std::nullopt;
    if (!held.number && std::abs(held.coefficient) < kNothing)
        return Differs(Place(grid, row, col), shown, "0");
    if (!held.number)
        return Place(grid, row, col) + " shows \"" + shown + "\", but it is not known";
    const bool along_axis = reading.typed.starts_with('h') || reading.typed.starts_with('v');
    if (along_axis && IsNear(shown, std::abs(*held.number), reading.least_decimals))
        return std::nullopt;
    return DiffersFromNumber(Place(grid, row, col), shown, *held.number, reading.least_decimals);
}

Wrong WrongHeadings(const Grid& grid) {
    for (int row = 1; row < grid.Rows(); ++row)
        if (auto wrong = Differs(Place(grid, row, 0), grid.Cell(row, 0), std::to_string(row)))
            return wrong;
    return std::nullopt;
}

Wrong WrongRows(const Grid& grid, std::size_t held) {
    const auto shown = static_cast<std::size_t>(grid.Rows()) - 1;
    if (shown == held)
        return WrongHeadings(grid);
    return grid.Name() + " shows " + std::to_string(shown) + " rows, the problem holds " +
           std::to_string(held);
}

Wrong WrongParticle(const tools::particle::ParticleTool& tool, const Grid& grid, int least_decimals) {
    enum Column { kForce = 1, kFx, kFy };
    const tools::particle::ForcesInView& held = tool.Forces();
    if (auto wrong = WrongRows(grid, held.Count()))
        return wrong;
    for (std::size_t k = 0; k < held.Count(); ++k) {
        const int row = static_cast<int>(k) + 1;
        const notation::Force& force = held.Forces()[k];
        if (auto wrong =
                Differs(Place(grid, row, kForce), grid.Cell(row, kForce), held.Arrows()[k].given_text))
            return wrong;
        const Reading reading{held.Arrows()[k].given_text, least_decimals};
        if (auto wrong = WrongComponent(grid, row, kFx, force.x, reading))
            return wrong;
        if (auto wrong = WrongComponent(grid, row, kFy, force.y, reading))
            return wrong;
    }
    return std::nullopt;
}

Wrong WrongBodyForce(const Grid& grid, int row, const mechanics::rigid::BodyForce& held, int least_decimals) {
    enum Column { kBody = 1, kPoint, kText, kFx, kFy, kCouple };
    if (auto wrong = Differs(Place(grid, row, kBody), grid.Cell(row, kBody), std::to_string(held.body)))
        return wrong;
    if (auto wrong = Differs(Place(grid, row, kPoint), grid.Cell(row, kPoint), held.point))
        return wrong;
    if (auto wrong = Differs(Place(grid, row, kText), grid.Cell(row, kText), held.text))
        return wrong;
    const Reading reading{held.text, least_decimals};
    if (held.force) {
        if (auto wrong = WrongComponent(grid, row, kFx, held.force->x, reading))
            return wrong;
        if (auto wrong = WrongComponent(grid, row, kFy, held.force->y, reading))
            return wrong;
    }
    if (!held.couple || !text::IsNum(grid.Cell(row, kCouple)))
        return std::nullopt;
    if (!held.couple->value)
        return Place(grid, row, kCouple) + " shows a couple that is not known";
    return DiffersFromNumber(Place(grid, row, kCouple), grid.Cell(row, kCouple), *held.couple->value,
                             least_decimals);
}

/// The lists of a structure, but for the digits of their numbers.
Wrong WrongLists(const mechanics::rigid::RigidProblem& problem, const window::Form1& form) {
    const auto rows = [&](const char* name) { return form.Get<window::ListBox>(name).Items(); };
    const std::vector<std::string> letters = mechanics::rigid::LettersOf(problem.structure.segments);
    if (rows("lstCoords").size() != letters.size())
        return "lstCoords has not as many rows as the structure has points";
    if (rows("lstSeps").size() != problem.structure.segments.size())
        return "lstSeps has not as many rows as the structure has vectors";
    if (rows("lstSysts") != letters)
        return "lstSysts has not the letters of the structure";
    for (const std::string& body : rows("lstDCL"))
        if (!problem.IsDefined(static_cast<int>(text::ToNumber(body))))
            return "lstDCL offers body " + body + ", which is not defined";
    for (int system = 1; system <= mechanics::rigid::kSystems; ++system) {
        const std::string name = "lblPoints(" + std::to_string(system - 1) + ")";
        if (auto wrong =
                Differs(name, form.Find(name)->Caption(), std::string(problem.LettersOfSystem(system))))
            return wrong;
    }
    return std::nullopt;
}

Wrong WrongRigidBody(const mechanics::rigid::RigidProblem& problem, const window::Form1& form,
                     int least_decimals) {
    const auto& grid = form.Get<Grid>("gd1");
    if (auto wrong = WrongRows(grid, problem.forces.size()))
        return wrong;
    for (std::size_t k = 0; k < problem.forces.size(); ++k)
        if (auto wrong = WrongBodyForce(grid, static_cast<int>(k) + 1, problem.forces[k], least_decimals))
            return wrong;
    return WrongLists(problem, form);
}

/// A cell shows its number rounded, or its text, or nothing after a double click.
Wrong WrongCell(const std::string& place, const std::string& shown, const mechanics::points::Cell& held,
                int least_decimals) {
    if (auto wrong = Differs(place, shown, held.shown))
        return wrong;
    if (shown.empty() || shown == held.stored.Text())
        return std::nullopt;
    const std::string stored = held.stored.Text();
    if (!text::IsNum(stored))
        return Differs(place, shown, stored);
    return DiffersFromNumber(place, shown, text::ToNumber(stored), least_decimals);
}

Wrong WrongPoints(const mechanics::points::Table& table, const window::Form1& form, int least_decimals) {
    const auto& grid = form.Get<Grid>("Gd2");
    if (grid.Rows() != table.Rows())
        return "Gd2 has not the rows of the tool";
    for (int row = 0; row < grid.Rows(); ++row)
        for (int col = 1; col < grid.Cols(); ++col)
            if (auto wrong =
                    WrongCell(Place(grid, row, col), grid.Cell(row, col), table.At(row, col), least_decimals))
                return wrong;
    return std::nullopt;
}

Wrong WrongAccelerations(const mechanics::motion::Problem& problem, const window::Form1& form,
                         int least_decimals) {
    for (std::size_t slot = 0; slot < mechanics::motion::kSlots; ++slot) {
        const std::string name = "txtAccel(" + std::to_string(slot) + ")";
        const auto& box = form.Get<window::TextBox>(name);
        if (auto wrong = WrongCell(name, box.Text(), problem.accelerations[slot], least_decimals))
            return wrong;
    }
    return std::nullopt;
}

Wrong WrongSolution(const tools::motion::Motion& motion, const window::Form1& form, int least_decimals) {
    enum Label { kPoint = 0, kTime = 2, kPosition = 4, kSpeed = 6 };  // the second point's stand beside them
    if (!form.Find("fraRes")->Visible())
        return std::nullopt;
    const auto& solutions = motion.Problem().results.solutions;
    const auto shown = static_cast<std::size_t>(motion.SolutionShown());
    if (shown < 1 || shown > solutions.size())
        return "the panel of results shows solution " + std::to_string(shown) + " of " +
               std::to_string(solutions.size());
    const mechanics::motion::FoundSolution& solution = solutions[shown - 1];
    for (const int place : {0, 1}) {
        const auto found = place == 0 ? std::optional(solution.first) : solution.second;
        const auto name = [&](Label row) { return "lblRes(" + std::to_string(row + place) + ")"; };
        const auto caption = [&](Label row) { return form.Find(name(row))->Caption(); };
        if (auto wrong = Differs(name(kPoint), caption(kPoint), found ? std::to_string(found->point) : ""))
            return wrong;
        if (!found)
            continue;
        for (const auto& [row, number] :
             {std::pair{kTime, found->t}, {kPosition, found->x}, {kSpeed, found->v}})
            if (auto wrong = DiffersFromNumber(name(row), caption(row), number, least_decimals))
                return wrong;
    }
    return std::nullopt;
}

Wrong WrongMotion(const tools::motion::Motion& motion, const window::Form1& form, int least_decimals) {
    const mechanics::motion::Problem& problem = motion.Problem();
    if (auto wrong = WrongPoints(problem.table, form, least_decimals))
        return wrong;
    if (auto wrong = WrongAccelerations(problem, form, least_decimals))
        return wrong;
    return WrongSolution(motion, form, least_decimals);
}

/// The table of arguments holds the whole problem of the calculator; only its headings are the program's.
Wrong WrongArguments(const Grid& grid) {
    for (int row = 1; row < grid.Rows(); ++row)
        if (auto wrong = Differs(Place(grid, row, 0), grid.Cell(row, 0), "#" + std::to_string(row)))
            return wrong;
    for (int col = 1; col < grid.Cols(); ++col)
        if (auto wrong = Differs(Place(grid, 0, col), grid.Cell(0, col), "#" + std::to_string(col)))
            return wrong;
    return std::nullopt;
}

}  // namespace

Problems ProblemsOf(const Program::Tools& tools) {
    Problems problems{tools.particle.Forces().Forces(), tools.rigid_body.Problem(), tools.motion.Problem(),
                      tools.projectile.Problem()};
    problems.rigid_body.backup.clear();
    return problems;
}

std::optional<std::string> ChangedTool(const Problems& before, const Problems& after) {
    if (before.particle != after.particle)
        return "the particle";
    if (before.rigid_body != after.rigid_body)
        return "the rigid body";
    if (before.motion != after.motion)
        return "the motion";
    if (before.projectile != after.projectile)
        return "the projectile";
    return std::nullopt;
}

std::optional<std::string> WrongShown(const Program::Tools& tools, int least_decimals) {
    const window::Form1& form = tools.form;
    switch (form.publics.CurrentTool) {
        case window::Tool::Calculator:
            return WrongArguments(form.Get<Grid>("gd"));
        case window::Tool::Particle:
            return WrongParticle(tools.particle, form.Get<Grid>("gdEqui"), least_decimals);
        case window::Tool::RigidBody:
            return WrongRigidBody(tools.rigid_body.Problem(), form, least_decimals);
        case window::Tool::Motion:
            return WrongMotion(tools.motion, form, least_decimals);
        case window::Tool::Projectile:
            return WrongPoints(tools.projectile.Problem().table, form, least_decimals);
        default:
            return std::nullopt;  // the others keep no problem
    }
}

}  // namespace tavrelo::sessions
