// Whatever forces are typed in the particle tool, one a line. The only exception that leaves the solver is
// the documented failure; a solution leaves no unknown, is in equilibrium, keeps what was given and gives
// equal symbols one value; the diagram of the forces is drawn before and after it.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <variant>
#include <vector>

#include "harness.h"
#include "mechanics/forces/force_sums.h"
#include "mechanics/particle/particle_solver.h"
#include "notation/force_parser.h"
#include "numeric/checked.h"
#include "tools/particle/force_diagram.h"
#include "window/surface.h"

namespace {

using namespace tavrelo;
using fuzz::Require;
using notation::Force;
using notation::ForceComponent;

constexpr int kDecimals = 3;
constexpr std::size_t kMostForces = 12;
constexpr double kWidth = 397;
constexpr double kHeight = 385;
constexpr double kTolerance = 1e-6;
constexpr double kSpeakingCoefficient = 1e-3;  // a smaller one tells nothing of its unknown

bool Agree(double a, double b) {
    return std::abs(a - b) <= kTolerance * std::max({std::abs(a), std::abs(b), kTolerance});
}

std::vector<notation::ForceRecord> RecordsOf(std::string_view text) {
    std::vector<notation::ForceRecord> records;
    std::size_t begin = 0;
    while (begin <= text.size() && records.size() < kMostForces) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const auto parsed = notation::ParseForce(text.substr(begin, end - begin), kDecimals);
        if (const auto* record = std::get_if<notation::ForceRecord>(&parsed))
            records.push_back(*record);
        begin = end + 1;
    }
    return records;
}

// The value of a magnitude, as one component tells it.
struct Told {
    const notation::UnknownTerm* unknown;
    double value;
};

// What was given stays; each component is its coefficient times the value of its unknown.
void CheckComponent(const ForceComponent& before, const ForceComponent& after, std::vector<Told>& told) {
    Require(after.number && std::isfinite(*after.number));
    if (before.number)
        return Require(*before.number == *after.number);
    if (before.unknown.HasAngle() || std::abs(before.coefficient) < kSpeakingCoefficient)
        return;
    const double value = *after.number / before.coefficient;
    for (const Told& other : told)
        if (SameUnknown(*other.unknown, before.unknown))
            Require(Agree(other.value, value));
    told.push_back({&before.unknown, value});
}

void CheckSolution(const std::vector<Force>& before, const std::vector<Force>& after) {
    Require(before.size() == after.size());
    std::vector<Told> told;
    for (std::size_t i = 0; i < before.size(); ++i) {
        CheckComponent(before[i].x, after[i].x, told);
        CheckComponent(before[i].y, after[i].y, told);
        Require(after[i].magnitude && after[i].direction);
        Require(std::isfinite(*after[i].magnitude) && std::isfinite(*after[i].direction));
        if (before[i].magnitude)
            Require(Agree(*before[i].magnitude, *after[i].magnitude));
    }
    Require(mechanics::forces::AreBalanced(after));
}

void Draw(const tools::particle::ForcesInView& forces) {
    window::Recorder canvas(kWidth, kHeight);
    tools::particle::DrawForces(canvas, forces, 0, kDecimals);
}

void Solve(tools::particle::ForcesInView forces) {
    const std::vector<Force>& before = forces.Forces();
    const auto outcome = mechanics::particle::SolveEquilibrium(before, kDecimals);
    const auto* solution = std::get_if<mechanics::particle::Solution>(&outcome);
    if (const auto* choice = std::get_if<mechanics::particle::Choice>(&outcome)) {
        for (const mechanics::particle::Solution& each : choice->solutions)
            CheckSolution(before, each.forces);
        solution = &choice->solutions[0];
    }
    if (!solution)
        return;
    CheckSolution(before, solution->forces);
    forces.Take(solution->forces);
    Draw(forces);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tools::particle::ForcesInView forces;
    for (const notation::ForceRecord& record :
         RecordsOf(std::string_view(reinterpret_cast<const char*>(data), size)))
        forces.Add(record, {}, {});
    tools::particle::AxisSlots slots;
    forces.PlaceAll(slots, 0);
    Draw(forces);
    try {
        Solve(forces);
    } catch (const numeric::RuntimeFailure&) {
    }
    return 0;
}
