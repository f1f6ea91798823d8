#pragma once

#include <vector>

#include "window/form1.h"

namespace tavrelo::frame {

struct OptionStripControls {
    window::Form1& form;
    window::Picture& picOpt = form.Get<window::Picture>("picOpt");
    window::RichTextBox& rtbExpr = form.Get<window::RichTextBox>("rtbExpr");
};

/// The strip `picOpt` beside the expression box: insert a polynomial, quick keys, notation, unit of angles.
class OptionStrip {
  public:
    explicit OptionStrip(window::Form1& form);

    /// Paints the four cells.
    void FillTeclas();

  private:
    void MouseDown(const window::MouseStroke& stroke);
    void MouseMove(const window::MouseStroke& stroke);
    std::vector<window::PictureCell> Cells() const;
    void InsertPolynomial();
    void SwitchDegrees();

    window::Form1& m_form;
    OptionStripControls m_controls{m_form};
};

}  // namespace tavrelo::frame
