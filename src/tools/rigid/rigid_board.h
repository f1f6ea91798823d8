#pragma once

#include <cstddef>
#include <functional>

#include "mechanics/rigid/rigid_problem.h"
#include "tools/rigid/rigid_picture.h"
#include "window/form1.h"

namespace tavrelo::tools::rigid {

/// What the pages of the rigid-body tool share: the problem, the window, the blackboard and the table of
/// forces.
class RigidBoard {
  public:
    explicit RigidBoard(window::Form1& form) : m_form(form) {}

    window::Form1& Form() { return m_form; }
    mechanics::rigid::RigidProblem& Problem() { return m_problem; }
    const mechanics::rigid::RigidProblem& Problem() const { return m_problem; }
    int Decimals() const { return m_form.publics.Decimals; }

    /// Draws the structure and the diagrams in view again. First asks for the direction of every force in
    /// view whose direction is unknown and that has not been drawn before.
    void Redraw();
    /// As Redraw, and asks nothing.
    void Draw();
    /// A line of a system on top of the picture as it is.
    void DrawOver(const mechanics::rigid::LineRow& line);

    /// Appends a force to the problem and to `gd1`.
    void AddForce(mechanics::rigid::BodyForce force);
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
    void Refuse(const text::Refusal& refusal, window::TextBox& at_fault);

    /// The handler, guarded.
    window::Event Guarded(window::Event handler);
    /// A key-press handler that runs the guarded handler on Enter and leaves every other key.
    std::function<bool(char32_t)> OnEnter(window::Event handler);

  private:
    void AskDrawDirections();
    void AddGridRow(const mechanics::rigid::BodyForce& force);

    window::Form1& m_form;
    mechanics::rigid::RigidProblem m_problem;
};

}  // namespace tavrelo::tools::rigid
