#include "tools/kinematics/kinematics_controls.h"

namespace tavrelo::tools::kinematics {

KinematicsControls::KinematicsControls(window::Form1& form)
    : line_labels(form.GetArray<window::Label>("lblKinem")),
      formulas(form.GetArray<window::TextBox>("txtKinem")),
      start_labels(form.GetArray<window::Label>("lblT0")),
      starts(form.GetArray<window::TextBox>("txtT0")),
      times(form.GetArray<window::TextBox>("txtKinemt1")),
      curves(form.GetArray<window::CheckBox>("chkGraph")),
      calculate(form.Get<window::Button>("cmdCalcxva")),
      draw(form.Get<window::Button>("cmdGraph")),
      picture(form.Get<window::Picture>("pic1")),
      report(form.Get<window::RichTextBox>("rtbCalc")) {}

}  // namespace tavrelo::tools::kinematics
