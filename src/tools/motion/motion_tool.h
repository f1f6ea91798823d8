#pragma once

#include <optional>

#include "frame/points_panel.h"
#include "frame/tool_switch.h"
#include "mechanics/motion/procedures.h"
#include "mechanics/motion/two_points.h"
#include "tools/motion/acceleration_boxes.h"
#include "tools/motion/motion_strip.h"
#include "tools/motion/procedures.h"
#include "tools/motion/results_panel.h"

namespace tavrelo::tools::motion {

/// The controls that only this tool has, and those in which it reports.
struct MotionControls {
    window::Form1& form;
    window::Picture& picAccel = form.Get<window::Picture>("picAccel");
    window::TextBox& txtProcs = form.Get<window::TextBox>("txtProcs");
    window::Button& cmdSeeEqns = form.Get<window::Button>("cmdSeeEqns");
    window::Picture& pic = form.Get<window::Picture>("pic");    // the equations
    window::Picture& pic1 = form.Get<window::Picture>("pic1");  // the graph
    window::RichTextBox& rtbSolve = form.Get<window::RichTextBox>("rtbSolve");
};

/// The tool "Movimiento rectilíneo uniformemente acelerado". It hands what the student does to the mechanics
/// and walks through what these answer; the problem outlasts a change of tool.
class Motion : public frame::PointsTool {
  public:
    Motion(window::Form1& form, frame::PointsPanel& panel, frame::ToolSwitch& tool_switch);

    frame::ToolHooks Hooks();
    const mechanics::motion::Problem& Problem() const { return m_problem; }
    mechanics::motion::Procedure CurrentProcedure() const { return m_procedure; }
    /// Clicks made of the two that the procedure takes, 0 when another one is in use.
    int PicksOf(mechanics::motion::Procedure procedure) const {
        return m_procedure == procedure && m_first_point.IsWaiting() ? 1 : 0;
    }
    /// The solution in view in the panel of results, 1 or 2; 0 before there was one.
    int SolutionShown() const;
    /// The button of the configuration in force, 4 for none.
    int ConfigurationChosen() const;

    const frame::PointsTexts& Texts() const override;
    mechanics::points::Table& Table() override { return m_problem.table; }
    void EraseTable() override;
    std::optional<frame::TopicPlace> HelpTopic(frame::PointsHelp button) const override;
    void Configure(int configuration) override;
    void PressStrip(const window::MouseStroke& stroke) override;
    void ReleaseStrip(const window::MouseStroke& stroke) override;
    std::vector<window::PictureCell> StripCells() const override;
    std::string PointName(int column) const override;
    void ChooseRow(int row) override;
    void ChooseEntry(int entry) override;
    void RunEntry() override;
    void NewProblem() override;
    void SwapPictures() override;
    void EraseEquations() override;

  private:
    void Enter();
    void BindAccelerations();
    void BindResults();

    // The strip.
    void Divide(double position);
    void RunLabel(const StripMeaning& meaning);
    void ClearPoint(double position);
    bool TurnToOppositeSpeed(const mechanics::points::PointPlace& place);

    // Procedures.
    void Choose(const ProcedureEntry& entry);
    void ShowPointer();
    void PickPoint(const mechanics::points::PointPlace& place);
    void RunOnTwoPoints(const mechanics::motion::PointPair& pair);
    void DrawGraph(const mechanics::motion::PointPair& pair);
    void DropPicks();

    // What the mechanics answer.
    void Take(const mechanics::motion::Step& step);
    void Show(const mechanics::motion::Event& event);
    void Ask(const mechanics::motion::Question& question);
    void ShowProblem();
    void ShowGraph(bool shows);

    window::Form1& m_form;
    frame::PointsPanel& m_panel;
    frame::ToolSwitch& m_tool_switch;
    MotionControls m_controls{m_form};
    AccelerationBoxes m_accelerations;
    ResultsPanel m_results;

    mechanics::motion::Problem m_problem;
    mechanics::motion::Procedure m_procedure = mechanics::motion::Procedure::Plant;
    mechanics::motion::PendingPoint m_first_point;  // of a procedure of two clicks
    int m_dragged = 0;                              // column, 0 for none
    bool m_shows_graph = false;
};

}  // namespace tavrelo::tools::motion
