#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "mechanics/rigid/body_solver.h"
#include "tools/rigid/rigid_board.h"

namespace tavrelo::tools::rigid {

/// The page "Resolver": the equations of the chosen bodies, their solution and its undoing.
class SolveTab {
  public:
    explicit SolveTab(RigidBoard& board);

    /// Set by the tool: a new problem was asked for.
    std::function<void()> OnNewProblem;

  private:
    void Wire();
    void RunCommand(int index);  // cmdVMb

    void SolveDCL();
    void ShowSystem(int system);  // optShowDCL
    void ClearList();             // cmdClearLstDCL
    void ShowEquations();         // cmdShowIncsEqns
    void Restore();
    void Update();

    /// The bodies chosen in the list with their reference points; nothing after a refusal, which was shown.
    std::optional<std::vector<mechanics::rigid::ChosenBody>> ChosenBodies();
    /// Their equations; nothing after a refusal.
    std::optional<mechanics::rigid::BodyEquations> Equations(
        const std::vector<mechanics::rigid::ChosenBody>& bodies);
    std::optional<mechanics::rigid::BodyResults> Results(const mechanics::rigid::BodyOutcome& outcome);
    void Write(std::span<const mechanics::rigid::ChosenBody> bodies,
               const mechanics::rigid::BodyEquations& equations,
               const mechanics::rigid::BodyResults& results);

    RigidBoard& m_board;
    window::Form1& m_form;
    mechanics::rigid::RigidProblem& m_problem;
};

}  // namespace tavrelo::tools::rigid
