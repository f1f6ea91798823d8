#pragma once

#include "frame/points_panel.h"
#include "frame/tool_switch.h"

namespace tavrelo::tools::projectile {

/// The tool "Tiro parabólico": its own table on the shared panel of points.
class Projectile : public frame::PointsTool {
  public:
    explicit Projectile(frame::PointsPanel& panel);

    frame::ToolHooks Hooks();

    const frame::PointsTexts& Texts() const override;
    mechanics::points::Table& Table() override { return m_table; }
    std::optional<frame::TopicPlace> HelpTopic(frame::PointsHelp button) const override;
    void Configure(int /*configuration*/) override {}
    void PressStrip(const window::MouseStroke& /*stroke*/) override {}
    void ReleaseStrip(const window::MouseStroke& /*stroke*/) override {}
    void ChooseRow(int /*row*/) override {}
    void ChooseEntry(int /*entry*/) override {}
    void RunEntry() override {}
    void NewProblem() override {}
    void SwapPictures() override {}
    void EraseEquations() override {}

  private:
    frame::PointsPanel& m_panel;
    mechanics::points::Table m_table{mechanics::points::kProjectileRows};
};

}  // namespace tavrelo::tools::projectile
