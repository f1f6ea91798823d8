#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "statics/body_solver.h"
#include "statics/rigid_board.h"

namespace tavrelo::statics {

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
    std::optional<std::vector<ChosenBody>> ChosenBodies();
    /// Their equations; nothing after a refusal.
    std::optional<BodyEquations> Equations(const std::vector<ChosenBody>& bodies);
    std::optional<BodyResults> Results(const BodyOutcome& outcome);
    void Write(std::span<const ChosenBody> bodies, const BodyEquations& equations,
               const BodyResults& results);

    RigidBoard& m_board;
    shell::Form1& m_form;
    RigidProblem& m_problem;
};

}  // namespace tavrelo::statics
