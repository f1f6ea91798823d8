#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "frame/direction_clock.h"
#include "frame/help_panel.h"
#include "frame/tool_switch.h"
#include "mechanics/particle/equilibrium.h"
#include "tools/particle/axis_slots.h"
#include "tools/particle/forces_in_view.h"
#include "tools/particle/particle_controls.h"

namespace tavrelo::tools::particle {

/// The tool "Estática de la partícula": the table of forces on one point, their diagram, the solution and its
/// acceptance or undoing. The table outlasts a change of tool; only the new-problem command clears it.
class ParticleTool {
  public:
    ParticleTool(window::Form1& form, frame::DirectionClock& clock, frame::HelpPanel& help);

    frame::ToolHooks Hooks();
    /// Replaces the table by the forces of a list of texts; a refusal is shown and keeps the old table
    /// (false).
    bool LoadForces(std::span<const std::string> texts);
    /// Solves the table and writes the report. A refusal is shown in a box, and nothing changes (false).
    bool SolveAndReport();

    const ForcesInView& Forces() const { return m_forces; }
    std::size_t ForceCount() const { return m_forces.Count(); }
    std::size_t BackupCount() const { return m_backup.Count(); }

  private:
    enum class Event { SecondForce, Solved, Restored, Updated, NewProblem };

    void ArrangeGdEqui();
    void Wire();
    void RunCommand(int index);
    void Enable(Event event);

    /// Adds the force typed in `txtVector`.
    void EnterForce();
    void Solve();             // Resolver
    void Restore();           // Restaurar
    void Update();            // Actualizar
    void CancelLast();        // Cancelar última
    void CancelChosen();      // Cancelar elegida
    void AskForNewProblem();  // Nuevo problema
    void RotateAxes();

    /// A direction for a force that has none of its own. `cancelled` when the user gave no number.
    struct DrawDirection {
        std::optional<double> asked = {};
        bool cancelled = false;
    };
    DrawDirection DirectionToDraw(const notation::ForceRecord& record);
    void AnnounceAdded() const;
    void AnnounceRemoved(int number) const;  // of its row, from 1
    void AddToGrid(const notation::ForceRecord& record);
    void EraseForces();
    void ShowRotation();
    void Draw();
    void Take(mechanics::particle::Solution solution);
    std::vector<std::string> UpdateReport() const;

    window::Form1& m_form;
    ParticleControls m_controls{m_form};
    frame::DirectionClock& m_clock;
    frame::HelpPanel& m_help;
    ForcesInView m_forces;
    ForcesInView m_backup;
    AxisSlots m_slots;
    double m_rotation = 0;   // of the axes, degrees
    bool m_entering = true;  // `fraDirec` is enabled
};

}  // namespace tavrelo::tools::particle
