#pragma once

#include <cstddef>
#include <span>

#include "mechanics/rigid/force_steps.h"
#include "tools/rigid/diagram_view.h"
#include "tools/rigid/rigid_controls.h"

namespace tavrelo::tools::rigid {

/// The problem that the pages of the tool share, and where all of them show it: the blackboard, the table of
/// forces, the bodies in view. What only the drawing needs stays beside the problem, row for row.
class ProblemInView {
  public:
    explicit ProblemInView(window::Form1& form);

    const mechanics::rigid::RigidProblem& Problem() const { return m_problem; }
    SharedControls& Controls() { return m_controls; }
    window::Form1& Form() { return m_form; }
    int Decimals() const { return m_form.publics.Decimals; }

    /// A step of the configuration led to this problem: its forces are as they were, or there are none.
    void Take(mechanics::rigid::RigidProblem problem);
    /// A step added forces.
    void Take(mechanics::rigid::ForceStep step);
    /// The unknowns were found.
    void TakeSolution(const mechanics::rigid::BodyResults& results);
    /// The forces of these rows (from 0) act on the body too; each is drawn as its original.
    void CopyForces(std::span<const std::size_t> rows, int body);
    /// The force of that row (from 0) goes; the rows below close up.
    void RemoveForce(std::size_t row);
    void Backup();
    /// The forces as they were at the last backup; nothing happens without one.
    void Restore();

    bool IsShown(int system) const { return m_view.IsShown(system); }
    /// A system's diagram comes into view beside the others.
    void Show(int system) { m_view.Show(system, true); }
    void ShowAlone(int system);
    /// A system's diagram goes out of view, its number out of the list of bodies.
    void Hide(int system);
    void HideAll();

    /// Draws the structure and the diagrams in view again. First asks for the direction of every force in
    /// view whose direction is unknown and that nobody was asked about before.
    void Redraw();
    /// As Redraw, and asks nothing.
    void Draw();
    /// A line of a system on top of the picture as it is.
    void DrawOver(const mechanics::rigid::LineRow& line);

    /// Shows a message, then the focus goes to the box at fault with its text selected.
    void Refuse(const text::Refusal& refusal, window::TextBox& at_fault);

  private:
    void AskDrawDirections();
    void ShowNewForce(ForceLook look);
    void AnnounceAdded() const;  // of the last force

    window::Form1& m_form;
    SharedControls m_controls;
    mechanics::rigid::RigidProblem m_problem;
    DiagramView m_view;  // a look for each force of the problem, and of its backup
};

}  // namespace tavrelo::tools::rigid
