#pragma once

#include "window/form1.h"

namespace tavrelo::tools::kinematics {

/// The controls that the tool may touch.
struct KinematicsControls {
    explicit KinematicsControls(window::Form1& form);

    window::ControlArray<window::Label> line_labels;  // before the formulas
    window::ControlArray<window::TextBox> formulas;
    window::ControlArray<window::Label> start_labels;  // before t0, x0 and v0
    window::ControlArray<window::TextBox> starts;
    window::ControlArray<window::TextBox> times;    // of the values and the start of a graph; its end
    window::ControlArray<window::CheckBox> curves;  // x(t), v(t), a(t)
    window::Button& calculate;
    window::Button& draw;
    window::Picture& picture;
    window::RichTextBox& report;
};

}  // namespace tavrelo::tools::kinematics
