#pragma once

#include "shell/form1.h"

namespace tavrelo::entry {

/// The strip `picOpt` beside the expression box: insert a polynomial, quick keys, notation, unit of angles.
class OptionStrip {
  public:
    explicit OptionStrip(shell::Form1& form);

    /// Paints the four cells.
    void FillTeclas();

  private:
    void MouseDown(const shell::MouseStroke& stroke);
    void MouseMove(const shell::MouseStroke& stroke);
    void InsertPolynomial();
    void SwitchDegrees();

    shell::Form1& m_form;
};

}  // namespace tavrelo::entry
