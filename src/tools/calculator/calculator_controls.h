#pragma once

#include "window/form1.h"

namespace tavrelo::tools::calculator {

/// The controls that the calculator may touch.
struct CalculatorControls {
    window::Form1& form;
    window::Grid& gd = form.Get<window::Grid>("gd");
    window::ControlArray<window::Button> cmdGrid = form.GetArray<window::Button>("cmdGrid");
    window::Label& lblRC = form.Get<window::Label>("lblRC");
    window::Button& cmdCalculate = form.Get<window::Button>("cmdCalculate");
    window::Picture& picArgs1 = form.Get<window::Picture>("picArgs1");
    window::Picture& picArgs2 = form.Get<window::Picture>("picArgs2");
    window::RichTextBox& rtbExpr = form.Get<window::RichTextBox>("rtbExpr");
    window::TextBox& txtExpr = form.Get<window::TextBox>("txtExpr");
    window::Frame& fraDirec = form.Get<window::Frame>("fraDirec");
    window::Label& lblVorF = form.Get<window::Label>("lblVorF");
    window::TextBox& txtVector = form.Get<window::TextBox>("txtVector");
    window::RichTextBox& rtbCalc = form.Get<window::RichTextBox>("rtbCalc");
    window::Picture& pic = form.Get<window::Picture>("pic");
};

}  // namespace tavrelo::tools::calculator
