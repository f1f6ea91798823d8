#pragma once

#include "window/form1.h"

namespace tavrelo::frame {

struct PreferencesControls {
    window::Form1& form;
    window::Window& Form2 = form.Get<window::Window>("Form2");
    window::ControlArray<window::OptionButton> optPrint = form.GetArray<window::OptionButton>("optPrint");
    window::Button& cmdPrintRes = form.Get<window::Button>("cmdPrintRes");
    window::Button& cmdCopyToClipboard = form.Get<window::Button>("cmdCopyToClipboard");
    window::TextBox& txtNCD = form.Get<window::TextBox>("txtNCD");
    window::UpDown& UpDown1 = form.Get<window::UpDown>("UpDown1");
    window::Button& cmdAbout = form.Get<window::Button>("cmdAbout");
    window::Button& cmdCloseForm2 = form.Get<window::Button>("cmdCloseForm2");
    // What is printed and copied.
    window::RichTextBox& rtbReg = form.Get<window::RichTextBox>("rtbReg");
    window::RichTextBox& rtbHelp = form.Get<window::RichTextBox>("rtbHelp");
    window::RichTextBox& txtArgHelp = form.Get<window::RichTextBox>("txtArgHelp");
    window::Picture& pic1 = form.Get<window::Picture>("pic1");
};

/// The dialog `Form2`: what is printed, the copy of the blackboard and the number of decimals.
class Preferences {
  public:
    explicit Preferences(window::Form1& form);

  private:
    void PrintChosen();
    void ImprimirResultados(const window::RichTextBox& box, std::string_view question);

    window::Form1& m_form;
    PreferencesControls m_controls{m_form};
};

}  // namespace tavrelo::frame
