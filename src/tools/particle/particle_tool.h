#pragma once

#include <functional>
#include <span>
#include <string>

#include "drawing/draw_engine.h"
#include "frame/direction_clock.h"
#include "frame/tool_switch.h"
#include "mechanics/forces/force_table.h"
#include "mechanics/particle/equilibrium.h"
#include "tools/particle/axis_slots.h"
#include "window/form1.h"

namespace tavrelo::tools::particle {

/// The tool "Estática de la partícula": the table of forces on one point, their diagram, the solution and its
/// acceptance or undoing. The table outlasts a change of tool; only the new-problem command clears it.
class Parts {
  public:
    Parts(window::Form1& form, frame::DirectionClock& clock);

    frame::ToolHooks Hooks();
    /// Adds the force typed in `txtVector`; called on Enter there.
    void EnterForce();
    /// Replaces the table by the forces of a list of texts; a refusal is shown and keeps the old table
    /// (false).
    bool LoadForces(std::span<const std::string> texts);
    /// Solves the table and writes the report. A refusal is shown in a box, and nothing changes (false).
    bool SolveAndReport();
    void DrawForces();

    /// The topic of a worked example is asked for: its index from 0.
    std::function<void(int)> OnExample;

    std::size_t ForceCount() const { return m_forces.size(); }
    std::size_t BackupCount() const { return m_backup.size(); }

  private:
    void ArrangeGdEqui();
    void Wire();
    void RunCommand(int index);

    void Solve();             // Resolver
    void Restore();           // Restaurar
    void Update();            // Actualizar
    void CancelLast();        // Cancelar última
    void CancelChosen();      // Cancelar elegida
    void AskForNewProblem();  // Nuevo problema
    void RotateAxes();

    /// Asks in which direction to draw a force of unknown direction; false when the user gave no number.
    bool AskDrawDirection(mechanics::forces::ForceRow& row);
    void AddToGrid(const mechanics::forces::ForceRow& row);
    void PlaceAllForces();
    void EraseForces();
    void SetEntering(bool entering);
    void Take(mechanics::particle::Solution solution);
    std::vector<std::string> UpdateReport() const;

    window::Form1& m_form;
    frame::DirectionClock& m_clock;
    drawing::DrawEng m_engine;
    mechanics::forces::ForceTable m_forces;
    mechanics::forces::ForceTable m_backup;
    AxisSlots m_slots;
    bool m_entering = true;  // `fraDirec` is enabled
};

}  // namespace tavrelo::tools::particle
