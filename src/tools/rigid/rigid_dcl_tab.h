#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tools/rigid/rigid_board.h"

namespace tavrelo::tools::rigid {

/// The page "DCL": the forces and couples on the points of each body.
class DclTab {
  public:
    explicit DclTab(RigidBoard& board);

    /// The page comes to the front: the systems that exist can be chosen.
    void Enter();
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
    void AddGlobalForces();  // cmdAddForce
    void RunCommand(int index);

    bool ShowBody(int system);
    int Body() const;
    bool HasBody();
    std::string PointsText() const;
    std::vector<std::string> Points() const;
    std::optional<text::Refusal> CheckPoint(const std::string& point) const;
    std::optional<text::Refusal> CheckPoints() const;
    std::string ForceText(std::size_t place) const;
    std::optional<text::Refusal> ReadForce(std::size_t place, const std::string& point,
                                           mechanics::rigid::BodyForces& added) const;

    RigidBoard& m_board;
    window::Form1& m_form;
    mechanics::rigid::RigidProblem& m_problem;
};

}  // namespace tavrelo::tools::rigid
