#include "app/program.h"

#include "app/tools.h"
#include "text/number_text.h"

namespace tavrelo::app {
namespace {

std::string Truth(bool value) { return value ? "yes" : "no"; }

}  // namespace

Program::Program(const window::Host& host) : m_form(host), m_tools(std::make_unique<Tools>(m_form)) {
    NameGlobals();
}

Program::~Program() = default;

window::Form1& Program::Window() { return m_form; }

std::optional<std::string> Program::GlobalValue(std::string_view name) const {
    const auto found = m_globals.find(name);
    if (found == m_globals.end())
        return std::nullopt;
    return found->second();
}

void Program::NameGlobals() {
    const window::Publics& publics = m_form.publics;
    // Of the tool in use; the motion tool's where another kind of tool is.
    const auto movers = [this, &publics]() -> const mechanics::points::Configuration& {
        return publics.CurrentTool == window::Tool::Projectile ? m_tools->projectile.Problem().configuration
                                                               : m_tools->motion.Problem().configuration;
    };
    m_globals = {
        {"CurrentTool", [&publics] { return std::to_string(static_cast<int>(publics.CurrentTool)); }},
        {"HelpTool", [&publics] { return std::to_string(publics.HelpTool); }},
        {"ProcCategory", [&publics] { return std::to_string(publics.ProcCategory); }},
        {"KinemMode", [&publics] { return std::to_string(publics.ProcCategory); }},
        {"ProcNumber", [&publics] { return std::to_string(publics.ProcNumber); }},
        {"Decimals", [&publics] { return std::to_string(publics.Decimals); }},
        {"AngleFactor", [&publics] { return text::NumberToText(publics.AngleFactor); }},
        {"ShowingWelcome", [&publics] { return Truth(publics.ShowingWelcome); }},
        {"QuickKeys", [&publics] { return Truth(publics.QuickKeys); }},
        {"InfixNotation", [&publics] { return Truth(publics.InfixNotation); }},
        {"DegreesMode", [&publics] { return Truth(publics.DegreesMode); }},
        {"GridCopyMode", [&publics] { return Truth(publics.GridCopyMode); }},
        {"GridColsShown", [this] { return std::to_string(m_tools->calculator.GridColsShown()); }},
        {"ForceCount", [this] { return std::to_string(m_tools->particle.ForceCount()); }},
        {"BackupCount", [this] { return std::to_string(m_tools->particle.BackupCount()); }},
        {"SegCount",
         [this] { return std::to_string(m_tools->rigid_body.Problem().structure.segments.size()); }},
        {"PointCount",
         [this] { return std::to_string(m_tools->rigid_body.Problem().structure.points.size()); }},
        {"LineCount", [this] { return std::to_string(m_tools->rigid_body.Problem().lines.size()); }},
        {"BodyForceCount", [this] { return std::to_string(m_tools->rigid_body.Problem().forces.size()); }},
        {"MruaProc", [this] { return std::to_string(static_cast<int>(m_tools->motion.CurrentProcedure())); }},
        {"PickGraph",
         [this] { return std::to_string(m_tools->motion.PicksOf(mechanics::motion::Procedure::Graph)); }},
        {"PickDist",
         [this] { return std::to_string(m_tools->motion.PicksOf(mechanics::motion::Procedure::Distance)); }},
        {"PickLink",
         [this] { return std::to_string(m_tools->motion.PicksOf(mechanics::motion::Procedure::Link)); }},
        {"NumMoviles", [movers] { return std::to_string(movers().MoverCount()); }},
        {"PtsMovil(1)", [movers] { return std::to_string(movers().movers[0].points); }},
        {"PtsMovil(2)", [movers] { return std::to_string(movers().movers[1].points); }},
        {"NumTramos(1)", [movers] { return std::to_string(movers().movers[0].stretches.size()); }},
        {"NumTramos(2)", [movers] { return std::to_string(movers().movers[1].stretches.size()); }},
        {"ConfigVariant", [this] { return std::to_string(m_tools->motion.ConfigurationChosen()); }},
        {"ConfigPending", [movers] { return Truth(movers().stage == mechanics::points::Stage::Pending); }},
        {"LimitClicksOpen", [movers] { return Truth(movers().stage == mechanics::points::Stage::Limits); }},
        {"TableConfigured", [movers] { return Truth(movers().IsConfigured()); }},
        {"ProjProc",
         [this] { return std::to_string(static_cast<int>(m_tools->projectile.CurrentProcedure())); }},
        {"SolutionShown", [this] { return std::to_string(m_tools->motion.SolutionShown()); }},
        {"ClockSel", [this] { return std::to_string(m_tools->clock.ClockSel()); }},
    };
}

}  // namespace tavrelo::app
