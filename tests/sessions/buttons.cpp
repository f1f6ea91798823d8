#include "buttons.h"

#include <algorithm>
#include <string_view>

namespace tavrelo::sessions {
namespace {

using Wrong = std::optional<std::string>;

Wrong Differs(const window::Form1& form, const std::string& name, bool should) {
    if (form.Find(name)->Enabled() == should)
        return std::nullopt;
    return name + (should ? " is disabled" : " is enabled");
}

std::string Indexed(std::string_view array, int index) {
    return std::string(array) + "(" + std::to_string(index) + ")";
}

/// All others can always be used.
constexpr std::string_view kSometimesDisabled[] = {
    "cmdParts(0)", "cmdParts(1)", "cmdParts(2)", "cmdParts(5)", "cmdParts(6)", "fraDirec",
    "cmdPass(1)",  "txtRepeat",   "lblRepeat",   "optDCL(",     "txtSegm(",    "txtBody(",
};

Wrong DisabledOther(const window::Form1& form) {
    for (const window::Control* control : form.Controls()) {
        const bool may = std::ranges::any_of(
            kSometimesDisabled, [&](std::string_view name) { return control->Name().starts_with(name); });
        if (!control->Enabled() && !may)
            return control->Name() + " is disabled";
    }
    return std::nullopt;
}

/// Each further pair of the chain has a box, the others have none.
Wrong WrongMagnitudes(const window::Form1& form) {
    constexpr int kFirst = 2;
    constexpr int kLast = 6;
    int pairs = 0;
    char before = ' ';
    for (const char letter : form.Find("lblSegm(2)")->Caption()) {
        pairs += letter != ' ' && before == ' ' ? 1 : 0;
        before = letter;
    }
    for (int box = kFirst; box <= kLast; ++box)
        if (auto wrong = Differs(form, Indexed("txtSegm", box), box - kFirst < pairs))
            return wrong;
    return std::nullopt;
}

/// A box for a value has the name of its point above it.
Wrong WrongValues(const window::Form1& form) {
    constexpr int kFirst = 3;
    constexpr int kLast = 7;
    for (int box = kFirst; box <= kLast; ++box) {
        const std::string& name = form.Find(Indexed("lblForceAt", box - kFirst + 1))->Caption();
        if (auto wrong = Differs(form, Indexed("txtBody", box), !name.empty()))
            return wrong;
    }
    return std::nullopt;
}

/// The page of diagrams offers the systems that are defined.
Wrong WrongSystems(const mechanics::rigid::RigidProblem& problem, const window::Form1& form) {
    constexpr int kDiagrams = 1;
    if (form.Get<window::TabStrip>("tabStat").Current() != kDiagrams)
        return std::nullopt;
    for (int system = 1; system <= mechanics::rigid::kSystems; ++system)
        if (auto wrong = Differs(form, Indexed("optDCL", system - 1), problem.IsDefined(system)))
            return wrong;
    return std::nullopt;
}

Wrong WrongRigidBody(const mechanics::rigid::RigidProblem& problem, const window::Form1& form) {
    for (const auto& box : {Indexed("txtSegm", 0), Indexed("txtSegm", 1), Indexed("txtBody", 0),
                            Indexed("txtBody", 1), Indexed("txtBody", 2)})
        if (auto wrong = Differs(form, box, true))
            return wrong;
    if (auto wrong = Differs(form, "lblRepeat", form.Find("txtRepeat")->Enabled()))
        return wrong;
    if (auto wrong = WrongMagnitudes(form))
        return wrong;
    if (auto wrong = WrongValues(form))
        return wrong;
    return WrongSystems(problem, form);
}

/// The second solution can be looked at when there is one.
Wrong WrongMotion(const mechanics::motion::Problem& problem, const window::Form1& form) {
    if (!form.Find("fraRes")->Visible())
        return std::nullopt;
    return Differs(form, "cmdPass(1)", problem.results.solutions.size() == 2);
}

}  // namespace

ButtonRules::States ButtonRules::After(const Deed& deed, std::size_t forces) const {
    constexpr std::size_t kSolvable = 2;
    States states = m_particle;
    if (deed.act == "press cmdParts(7)") {
        if (deed.confirmed)
            states = {.solve = false, .restore = false, .cancel = true, .entry = true};
    } else if (deed.forces_before == 0 && forces == 0) {
        return states;
    } else if (deed.act == "press cmdParts(0)") {
        if (!deed.refused)
            states = {.solve = false, .restore = true, .cancel = false, .entry = false};
    } else if (deed.act == "press cmdParts(1)") {
        states = {.solve = true, .restore = false, .cancel = true, .entry = true};
    } else if (deed.act == "press cmdParts(2)") {
        if (!deed.refused)
            states = {.solve = true, .restore = false, .cancel = false, .entry = true};
    } else if (forces > deed.forces_before && forces >= kSolvable) {
        states.solve = true;
    }
    return states;
}

Wrong ButtonRules::WrongParticle(const app::Program::Tools& tools, const Deed& deed) {
    m_particle = After(deed, tools.particle.ForceCount());
    const struct {
        std::string name;
        bool enabled;
    } rows[] = {
        {"cmdParts(0)", m_particle.solve},   {"cmdParts(1)", m_particle.restore},
        {"cmdParts(2)", m_particle.restore}, {"cmdParts(5)", m_particle.cancel},
        {"cmdParts(6)", m_particle.cancel},  {"fraDirec", m_particle.entry},
    };
    for (const auto& row : rows)
        if (auto wrong = Differs(tools.form, row.name, row.enabled))
            return wrong;
    return std::nullopt;
}

Wrong ButtonRules::FindWrong(const app::Program::Tools& tools, const Deed& deed) {
    if (auto wrong = DisabledOther(tools.form))
        return wrong;
    switch (tools.form.publics.CurrentTool) {
        case window::Tool::Calculator:
            return Differs(tools.form, "fraDirec", true);
        case window::Tool::Particle:
            return WrongParticle(tools, deed);
        case window::Tool::RigidBody:
            return WrongRigidBody(tools.rigid_body.Problem(), tools.form);
        case window::Tool::Motion:
            return WrongMotion(tools.motion.Problem(), tools.form);
        default:
            return std::nullopt;
    }
}

}  // namespace tavrelo::sessions
