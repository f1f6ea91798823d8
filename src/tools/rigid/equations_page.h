#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tools/rigid/problem_in_view.h"

namespace tavrelo::tools::rigid {

/// The page "Resolver": the equations of the chosen bodies, their solution and its undoing.
class EquationsPage {
  public:
    explicit EquationsPage(ProblemInView& view);

    /// The page as it is at the start, but for the reference points.
    void Clear();

    /// Set by the tool: a new problem was asked for.
    std::function<void()> OnNewProblem;

  private:
    void Wire();
    void RunCommand(int index);  // cmdVMb

    void SolveDCL();
    void ShowSystem(int system);  // optShowDCL
    void ClearList();             // cmdClearLstDCL
    void ShowEquations();         // cmdShowIncsEqns
    void Update();

    /// The bodies chosen in the list with their reference points and equations; nothing after a refusal,
    /// which was shown.
    struct System {
        std::vector<mechanics::rigid::ChosenBody> bodies;
        mechanics::rigid::BodyEquations equations;
    };
    std::optional<System> ChosenSystem();
    std::vector<mechanics::rigid::BodyRequest> Requests() const;
    std::optional<std::vector<mechanics::rigid::ChosenBody>> ChosenBodies();
    std::optional<mechanics::rigid::BodyResults> Results(const mechanics::rigid::BodyOutcome& outcome);
    void Write(const System& system, const mechanics::rigid::BodyResults& results);
    void Tell(const text::Refusal& refusal) { m_form.boxes.Tell(refusal.text); }

    const mechanics::rigid::RigidProblem& Problem() const { return m_view.Problem(); }

    ProblemInView& m_view;
    window::Form1& m_form;
    EquationControls m_controls;
};

}  // namespace tavrelo::tools::rigid
