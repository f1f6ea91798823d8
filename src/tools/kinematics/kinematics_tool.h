#pragma once

#include "frame/tool_switch.h"
#include "mechanics/kinematics/line_motion.h"
#include "mechanics/kinematics/plane_motion.h"
#include "tools/kinematics/kinematics_controls.h"
#include "tools/kinematics/ways.h"

namespace tavrelo::tools::kinematics {

/// The tool "Cinemática plana general": a motion given by formulas in one of five ways, its values at a time
/// and its graphs. What was typed outlasts a change of way and of tool.
class KinematicsTool {
  public:
    explicit KinematicsTool(window::Form1& form);

    frame::ToolHooks Hooks();
    /// Prepares the panel for a way (11 to 15): captions, and which lines and start values are in view.
    void ShowWay(int way);

  private:
    /// Whether a box takes a character; with the first one the invitation to begin goes.
    bool Takes(char32_t character);
    void Calculate();
    void Draw();
    void DrawLine(double t0, double t1);
    void DrawPlane(double t0, double t1);
    void CalculateLine(double t);
    void CalculatePlane(double t);

    mechanics::kinematics::LineMotion TypedLine() const;
    mechanics::kinematics::PlaneMotion TypedPlane() const;
    double StartValue(int index) const;
    bool InPlane() const { return mechanics::kinematics::IsPlane(m_panel->way); }
    void TellTooManySteps();

    window::Form1& m_form;
    KinematicsControls m_controls;
    const WayPanel* m_panel;
};

}  // namespace tavrelo::tools::kinematics
