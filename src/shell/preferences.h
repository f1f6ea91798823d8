#pragma once

#include "shell/form1.h"

namespace tavrelo::shell {

/// The dialog `Form2`: what is printed, the copy of the blackboard and the number of decimals.
class Preferences {
  public:
    explicit Preferences(Form1& form);

  private:
    void PrintChosen();
    void ImprimirResultados(const RichTextBox& box, std::string_view question);

    Form1& m_form;
};

}  // namespace tavrelo::shell
