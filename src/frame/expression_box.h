#pragma once

#include <optional>
#include <string>

#include "frame/shared_expression.h"
#include "window/form1.h"

namespace tavrelo::frame {

struct ExpressionControls {
    window::Form1& form;
    window::RichTextBox& rtbExpr = form.Get<window::RichTextBox>("rtbExpr");
    window::TextBox& txtExpr = form.Get<window::TextBox>("txtExpr");
};

/// The letters that the quick keys take and what each gives: "d /   k +   ...".
std::string QuickKeyWords();

/// The command line of the calculator, `rtbExpr`: its quick keys, and the evaluation of a line ended by Enter
/// as a formula or in reverse Polish notation. The result stands in `txtExpr`, the record in the log.
class ExpressionBox {
  public:
    ExpressionBox(window::Form1& form, SharedExpression& expression);

  private:
    bool KeyDown(const window::KeyStroke& stroke);
    bool KeyPress(char32_t character);
    void KeyUp();

    void EmptyLine();
    /// The line that EmptyLine took; false when there is none, or another one stands there by now.
    bool BringLineBack();
    bool InsertResult();
    bool QuickKey(const window::KeyStroke& stroke);
    bool BracketKey(char32_t character);
    void MoveCaret(int step);

    void Enter();
    /// The value's text; on a refusal it shows the message instead.
    std::optional<std::string> EvaluateFormula(const std::string& line);
    std::optional<std::string> EvaluatePostfix(const std::string& line);

    window::Form1& m_form;
    ExpressionControls m_controls{m_form};
    SharedExpression& m_expression;
    std::string m_emptied;      // by the key that empties the line
    bool m_closer_due = false;  // the key that opened a pair of parentheses is still down
};

}  // namespace tavrelo::frame
