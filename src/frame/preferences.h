#pragma once

#include "window/form1.h"

namespace tavrelo::frame {

/// The dialog `Form2`: what is printed, the copy of the blackboard and the number of decimals.
class Preferences {
  public:
    explicit Preferences(window::Form1& form);

  private:
    void PrintChosen();
    void ImprimirResultados(const window::RichTextBox& box, std::string_view question);

    window::Form1& m_form;
};

}  // namespace tavrelo::frame
