#include "tools/rigid/rigid_controls.h"

namespace tavrelo::tools::rigid {

using namespace window;

SharedControls::SharedControls(Form1& form)
    : tabStat(form.Get<TabStrip>("tabStat")),
      cmdHelpEstcr(form.GetArray<Button>("cmdHelpEstcr")),
      pic1(form.Get<Picture>("pic1")),
      gd1(form.Get<Grid>("gd1")),
      optDCL(form.GetArray<OptionButton>("optDCL")),
      optShowDCL(form.GetArray<OptionButton>("optShowDCL")),
      lstDCL(form.Get<ListBox>("lstDCL")) {}

ConfigurationControls::ConfigurationControls(Form1& form)
    : txtSegm(form.GetArray<TextBox>("txtSegm")),
      lblSegm(form.GetArray<Label>("lblSegm")),
      txtRepeat(form.Get<TextBox>("txtRepeat")),
      lblRepeat(form.Get<Label>("lblRepeat")),
      cmdOK(form.Get<Button>("cmdOK")),
      cmdConfig(form.GetArray<Button>("cmdConfig")),
      txtOrigin(form.Get<TextBox>("txtOrigin")),
      cmdUpdate(form.Get<Button>("cmdUpdate")),
      lstCoords(form.Get<ListBox>("lstCoords")),
      lstSeps(form.Get<ListBox>("lstSeps")),
      lstSysts(form.Get<ListBox>("lstSysts")),
      spnColor(form.Get<UpDown>("spnColor")),
      lblPoints(form.GetArray<Label>("lblPoints")),
      txtPoints(form.Get<TextBox>("txtPoints")),
      txtRefPt(form.GetArray<TextBox>("txtRefPt")) {}

DiagramControls::DiagramControls(Form1& form)
    : txtBody(form.GetArray<TextBox>("txtBody")),
      lblForceAt(form.GetArray<Label>("lblForceAt")),
      cmdOK1(form.Get<Button>("cmdOK1")),
      cmdAddForce(form.Get<Button>("cmdAddForce")),
      cmdDCL(form.GetArray<Button>("cmdDCL")) {}

EquationControls::EquationControls(Form1& form)
    : cmdClearLstDCL(form.Get<Button>("cmdClearLstDCL")),
      txtRefPt(form.GetArray<TextBox>("txtRefPt")),
      txtSuprEqn(form.Get<TextBox>("txtSuprEqn")),
      cmdShowIncsEqns(form.Get<Button>("cmdShowIncsEqns")),
      cmdVMb(form.GetArray<Button>("cmdVMb")),
      rtbSolve(form.Get<RichTextBox>("rtbSolve")) {}

}  // namespace tavrelo::tools::rigid
