#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/rigid/problem_in_view.h"

namespace tavrelo::tools::rigid {

/// The page "DCL": the forces and couples on the points of each body.
class DiagramsPage {
  public:
    explicit DiagramsPage(ProblemInView& view);

    /// The page comes to the front: the systems that exist can be chosen.
    void Enter();
    /// The focus goes to the points, their text selected.
    void FocusAndSelect();
    /// The page as it is at the start; the table of forces stays.
    void RestoreDCLCtrls();

    // Set by the tool: the word for the configuration, or for the equations, was typed in place of points.
    std::function<void()> OnConfigurationWanted;
    std::function<void()> OnEquationsWanted;

  private:
    void Wire();

    void ChooseBody(int system);     // optDCL
    void EnterBody();                // Enter in txtBody(0)
    void EnterPoints();              // Enter in txtBody(1)
    void EnterForce();               // Enter in txtBody(2)
    void EnterNextForce(int index);  // Enter in txtBody(3) and up
    void OpenForceBoxes(const std::vector<std::string>& points);

    void AddForces();  // cmdOK1
    void AddReference(int row, bool negated);
    void CopyForcesOfTheWhole();  // cmdAddForce
    void RunCommand(int index);   // cmdDCL

    bool ShowBody(int system);
    int Body() const;
    bool HasBody();
    text::Refusal BodyNotDefined() const;
    std::string PointsText() const;
    std::vector<std::string> Points() const;
    std::vector<std::string> Values() const;

    const mechanics::rigid::RigidProblem& Problem() const { return m_view.Problem(); }

    ProblemInView& m_view;
    window::Form1& m_form;
    DiagramControls m_controls;
};

}  // namespace tavrelo::tools::rigid
