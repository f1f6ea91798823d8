#pragma once

#include <cstddef>
#include <functional>

#include "shell/form1.h"
#include "statics/rigid_picture.h"
#include "statics/rigid_problem.h"

namespace tavrelo::statics {

/// What the pages of the rigid-body tool share: the problem, the window, the blackboard and the table of
/// forces.
class RigidBoard {
  public:
    explicit RigidBoard(shell::Form1& form) : m_form(form) {}

    shell::Form1& Form() { return m_form; }
    RigidProblem& Problem() { return m_problem; }
    const RigidProblem& Problem() const { return m_problem; }
    int Decimals() const { return m_form.publics.Decimals; }

    /// Draws the structure and the diagrams in view again. First asks for the direction of every force in
    /// view whose direction is unknown and that has not been drawn before.
    void Redraw();
    /// As Redraw, and asks nothing.
    void Draw();
    /// A line of a system on top of the picture as it is.
    void DrawOver(const LineRow& line);

    /// Appends a force to the problem and to `gd1`.
    void AddForce(BodyForce force);
    /// Takes the force of that row of `gd1` (from 1) away; the rows below close up.
    void RemoveForce(std::size_t row);
    /// `gd1` as the table of forces stands, each component as its format wrote it.
    void ShowForces();
    /// Takes a system's diagram out of view and its number out of the list of bodies.
    void Hide(int system);
    void HideAll();
    /// No forces, no backup, no diagram in view.
    void DropDiagrams();

    /// Shows a message, then the focus goes to the box at fault with its text selected.
    void Refuse(const Refusal& refusal, shell::TextBox& at_fault);

    /// The handler, guarded.
    shell::Event Guarded(shell::Event handler);
    /// A key-press handler that runs the guarded handler on Enter and leaves every other key.
    std::function<bool(char32_t)> OnEnter(shell::Event handler);

  private:
    void AskDrawDirections();
    void AddGridRow(const BodyForce& force);

    shell::Form1& m_form;
    RigidProblem m_problem;
};

}  // namespace tavrelo::statics
