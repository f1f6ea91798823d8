#pragma once

#include <optional>

#include "frame/points_panel.h"
#include "frame/tool_switch.h"
#include "mechanics/projectile/procedures.h"
#include "tools/projectile/projectile_procedures.h"
#include "tools/projectile/projectile_strip.h"

namespace tavrelo::tools::projectile {

/// The controls beside those of the panel of points that the tool may touch.
struct ProjectileControls {
    window::Form1& form;
    window::Picture& picAccel = form.Get<window::Picture>("picAccel");
    window::Grid& Gd2 = form.Get<window::Grid>("Gd2");
    window::TextBox& txtProcs = form.Get<window::TextBox>("txtProcs");
    window::Button& cmdSeeEqns = form.Get<window::Button>("cmdSeeEqns");
    window::Picture& pic = form.Get<window::Picture>("pic");    // the equations
    window::Picture& pic1 = form.Get<window::Picture>("pic1");  // the trajectories
    window::RichTextBox& rtbSolve = form.Get<window::RichTextBox>("rtbSolve");
    window::RichTextBox& rtbExpr = form.Get<window::RichTextBox>("rtbExpr");
};

/// The tool "Tiro parabólico". It hands what the student does to the mechanics and walks through what these
/// answer; the problem outlasts a change of tool.
class Projectile : public frame::PointsTool {
  public:
    Projectile(window::Form1& form, frame::PointsPanel& panel, frame::ToolSwitch& tool_switch);

    frame::ToolHooks Hooks();
    const mechanics::projectile::Problem& Problem() const { return m_problem; }
    mechanics::projectile::Procedure CurrentProcedure() const { return m_procedure; }

    const frame::PointsTexts& Texts() const override;
    mechanics::points::Table& Table() override { return m_problem.table; }
    void EraseTable() override { m_problem = WithEmptyTable(m_problem); }
    std::optional<frame::TopicPlace> HelpTopic(frame::PointsHelp button) const override;
    void Configure(int configuration) override;
    void PressStrip(const window::MouseStroke& stroke) override;
    void ReleaseStrip(const window::MouseStroke& stroke) override;
    void EnterCell() override;
    std::vector<window::PictureCell> StripCells() const override;
    std::string PointName(int column) const override;
    void ChooseRow(int row) override;
    void ChooseEntry(int entry) override;
    void RunEntry() override;
    void NewProblem() override;
    void SwapPictures() override;
    void EraseEquations() override;

  private:
    using Replaced = std::variant<text::Refusal, mechanics::projectile::Problem>;

    void Enter();

    // The strip.
    void ClickBand(const StripMeaning& meaning);
    void ClearPoint(int column);
    void RunLabel(const StripMeaning& meaning);
    void PickPoint(const mechanics::projectile::Place& place);

    // Procedures.
    bool TakesTwoPoints() const;
    void ShowPointer();
    void DropPick();

    // What the mechanics answer.
    void Take(const mechanics::projectile::Step& step);
    bool TakeProblem(const Replaced& replaced);
    void Show(const mechanics::projectile::Event& event);
    void Ask(const mechanics::projectile::Question& question);
    void AskForLimit(const mechanics::projectile::AskLimit& question);
    void ShowProblem();
    void ShowModes();
    void ShowGraph(bool shows);

    window::Form1& m_form;
    frame::PointsPanel& m_panel;
    frame::ToolSwitch& m_tool_switch;
    ProjectileControls m_controls{m_form};

    mechanics::projectile::Problem m_problem;
    mechanics::projectile::Procedure m_procedure = mechanics::projectile::Procedure::Plant;
    bool m_walks_path = false;  // the entry of the list that takes two clicks is in use
    std::optional<mechanics::projectile::Place> m_first_point;  // of a procedure of two clicks
    int m_dragged = 0;                                          // column, 0 for none
    bool m_shows_graph = false;
};

}  // namespace tavrelo::tools::projectile
