#include "statics/particle_answers.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "equations.h"
#include "mechanics/forces/read_forces.h"
#include "mechanics/particle/particle_solver.h"
#include "numeric/checked.h"

namespace tavrelo::physics {
namespace {

using mechanics::particle::Solution;

// So many that a report shows all digits of what was found.
constexpr int kDecimals = 15;
constexpr std::size_t kFirstValueLine = 2;
constexpr std::size_t kValueLines = 2;
// What the decimals of a report leave between its values and the forces.
constexpr double kReportPart = 1e-9;
constexpr double kReportDust = 1e-13;

// "F!1 = 3" or "A = 30°": the lines of a report behind its two equations.
Values ReportedValues(const std::vector<std::string>& report) {
    Values values;
    for (std::size_t k = kFirstValueLine; k < kFirstValueLine + kValueLines; ++k) {
        const std::string& line = report.at(k);
        const std::size_t sign = line.find(" = ");
        std::string symbol = line.substr(0, sign);
        std::erase(symbol, '!');
        const bool is_angle = line.ends_with("°");
        (is_angle ? values.angles : values.magnitudes)[NameOf(symbol)] =
            std::strtod(line.c_str() + sign + 3, nullptr);
    }
    return values;
}

// Why the values do not satisfy the sums; empty when they do.
std::string FaultOfSums(const std::vector<StatedForce>& forces, const Values& values) {
    Sum x, y;
    for (const StatedForce& force : forces) {
        const Components found = At(force, values);
        x.Add(found.x);
        y.Add(found.y);
    }
    const double largest = std::max(x.Largest(), y.Largest());
    if (!x.VanishesBeside(largest))
        return "the sum along x leaves " + x.Told();
    if (!y.VanishesBeside(largest))
        return "the sum along y leaves " + y.Told();
    return "";
}

// Why the solved table is not that of the reported values; empty when it is.
std::string FaultOfTable(const std::vector<StatedForce>& forces, const Solution& solution,
                         const Values& values) {
    for (std::size_t k = 0; k < forces.size(); ++k) {
        const notation::Force& shown = solution.forces.at(k);
        const Components found = At(forces[k], values);
        if (!shown.HasComponents() || !shown.magnitude)
            return "force " + std::to_string(k + 1) + " is still unknown";
        const double size = std::hypot(found.x, found.y);
        const double reach = kReportPart * size + kReportDust;
        if (std::abs(*shown.x.number - found.x) > reach || std::abs(*shown.y.number - found.y) > reach ||
            std::abs(std::abs(*shown.magnitude) - size) > reach)
            return "force " + std::to_string(k + 1) + " is shown as " + Digits(*shown.x.number) + ", " +
                   Digits(*shown.y.number);
    }
    return "";
}

std::string FaultOf(const std::vector<StatedForce>& forces, const Solution& solution, const Values& values) {
    std::string fault = FaultOfSums(forces, values);
    if (fault.empty())
        fault = FaultOfTable(forces, solution, values);
    return fault.empty() ? fault : "with " + Told(values) + " " + fault;
}

ParticleAnswers Refusal(std::string_view message) { return {std::string(message), {}, {}}; }

ParticleAnswers Judged(const std::vector<StatedForce>& forces,
                       const mechanics::particle::Equilibrium& outcome) {
    if (const auto* refusal = std::get_if<text::Refusal>(&outcome))
        return Refusal(refusal->text);
    if (std::holds_alternative<mechanics::particle::SilentEnd>(outcome))
        return Refusal(kSilence);
    if (const auto* nothing = std::get_if<mechanics::particle::NothingToSolve>(&outcome))
        return Refusal(nothing->report.front());
    std::vector<Solution> solutions;
    if (const auto* choice = std::get_if<mechanics::particle::Choice>(&outcome))
        solutions = {choice->solutions[0], choice->solutions[1]};
    else
        solutions = {std::get<Solution>(outcome)};
    ParticleAnswers answers;
    for (const Solution& solution : solutions) {
        answers.solutions.push_back(ReportedValues(solution.report));
        if (answers.fault.empty())
            answers.fault = FaultOf(forces, solution, answers.solutions.back());
    }
    return answers;
}

}  // namespace

ParticleAnswers SolveParticle(Problem& problem, std::vector<StatedForce> forces) {
    for (std::size_t k = forces.size(); k > 1; --k)
        std::swap(forces[k - 1], forces[problem.chance.Below(k)]);
    std::vector<std::string> texts;
    for (const StatedForce& force : forces)
        texts.push_back(problem.Type(force.text));
    const auto read = mechanics::forces::ReadForces(texts, kDecimals);
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return Refusal(refusal->text);
    const auto records = mechanics::forces::ForcesOf(std::get<std::vector<notation::ForceRecord>>(read));
    try {
        return Judged(forces, mechanics::particle::SolveEquilibrium(records, kDecimals));
    } catch (const numeric::RuntimeFailure&) {
        return Refusal(text::kCommandFailed);
    }
}

}  // namespace tavrelo::physics
