#include "frame/expression_box.h"

#include <utility>

#include "expr/brackets.h"
#include "expr/postfix.h"
#include "frame/writer.h"
#include "text/number_text.h"
#include "text/utf8.h"
#include "window/guarded.h"

namespace tavrelo::frame {
namespace {

using window::Key;
using window::KeyStroke;

constexpr int kInsertedDecimals = 5;  // of F10, whatever the preference says
constexpr std::string_view kExpressionFailed = "Error en la expresión.";

/// A letter key that gives what a formula needs: alone an operator or a step of the caret, with Ctrl the
/// letter.
struct QuickKeyRow {
    char32_t letter;
    char32_t capital;
    std::string_view alone;
    int caret_step;
};
constexpr QuickKeyRow kQuickKeys[] = {
    {U'd', U'D', "/", 0}, {U'k', U'K', "+", 0}, {U'm', U'M', "*", 0},
    {U'ñ', U'Ñ', "^", 0}, {U'j', U'J', "", 1},  {U'f', U'F', "", -1},
};

/// Empties the line, whether quick keys are on or not; with Ctrl it is a letter.
constexpr struct {
    char32_t letter;
    char32_t capital;
    std::string_view name;
} kEmptyingKey = {U'b', U'B', "b"};

bool IsPlain(const KeyStroke& stroke) { return !stroke.shift && !stroke.ctrl && !stroke.alt; }

bool IsCtrlAlone(const KeyStroke& stroke) { return stroke.ctrl && !stroke.shift && !stroke.alt; }

bool IsLetter(const KeyStroke& stroke, char32_t letter, char32_t capital) {
    return stroke.key == Key::Character && (stroke.character == letter || stroke.character == capital);
}

/// A line without variables; a formula in x, y or z waits for its routine. "exp" is not taken for an x.
bool IsConstant(const std::string& line) {
    return line.find_first_of("xyz") == std::string::npos || line.find("exp") != std::string::npos;
}

}  // namespace

std::string QuickKeyWords() {
    std::string words = "Teclas rápidas:";
    for (const QuickKeyRow& row : kQuickKeys) {
        const std::string_view step = row.caret_step > 0 ? "→" : "←";
        words += "  " + text::ToUtf8(row.letter) + " " + std::string(row.caret_step == 0 ? row.alone : step);
    }
    return words + "  " + std::string(kEmptyingKey.name) + " vacía";
}

ExpressionBox::ExpressionBox(window::Form1& form, SharedExpression& expression)
    : m_form(form), m_expression(expression) {
    window::RichTextBox& box = m_controls.rtbExpr;
    window::On(form, box.OnKeyDown, [this](const KeyStroke& stroke) { return KeyDown(stroke); });
    window::On(form, box.OnKeyPress, [this](char32_t character) { return KeyPress(character); });
    window::On(form, box.OnKeyUp, [this](const KeyStroke&) { KeyUp(); });
}

bool ExpressionBox::KeyDown(const KeyStroke& stroke) {
    if (stroke.key == Key::F10)
        return InsertResult();
    if (stroke.key == Key::F11) {
        m_controls.rtbExpr.Insert(m_controls.txtExpr.Text());
        return true;
    }
    if (stroke.key == Key::Insert)
        return true;
    if (IsLetter(stroke, kEmptyingKey.letter, kEmptyingKey.capital)) {
        if (IsPlain(stroke))
            EmptyLine();
        else if (IsCtrlAlone(stroke))
            m_controls.rtbExpr.Insert(kEmptyingKey.name);
        return true;
    }
    if (window::CtrlLetter(stroke) == U'z' && BringLineBack())
        return true;
    return m_form.publics.QuickKeys && QuickKey(stroke);
}

void ExpressionBox::EmptyLine() {
    if (!m_controls.rtbExpr.Text().empty())
        m_emptied = m_controls.rtbExpr.Text();
    m_controls.rtbExpr.SetText("");
}

bool ExpressionBox::BringLineBack() {
    if (m_emptied.empty() || !m_controls.rtbExpr.Text().empty())
        return false;
    m_controls.rtbExpr.SetText(std::exchange(m_emptied, {}));
    return true;
}

bool ExpressionBox::InsertResult() {
    const std::string& result = m_controls.txtExpr.Text();
    if (!text::IsNum(result))
        return false;
    m_controls.rtbExpr.Insert(text::RoundedText(text::ToNumber(result), kInsertedDecimals));
    return true;
}

bool ExpressionBox::QuickKey(const KeyStroke& stroke) {
    for (const QuickKeyRow& row : kQuickKeys) {
        if (!IsLetter(stroke, row.letter, row.capital))
            continue;
        if (IsCtrlAlone(stroke))
            m_controls.rtbExpr.Insert(text::ToUtf8(row.letter));
        else if (IsPlain(stroke) && row.caret_step != 0)
            MoveCaret(row.caret_step);
        else if (IsPlain(stroke))
            m_controls.rtbExpr.Insert(row.alone);
        return true;
    }
    const bool types = stroke.key == Key::Character && !stroke.ctrl && !stroke.alt;
    return types && m_form.publics.InfixNotation && BracketKey(stroke.character);
}

/// "|" gives a pair of parentheses with the caret inside, "{" and "[" give the closers, "(" wraps what is
/// selected.
bool ExpressionBox::BracketKey(char32_t character) {
    window::RichTextBox& box = m_controls.rtbExpr;
    switch (character) {
        case U'|':
            box.Insert("(");
            m_closer_due = true;
            return true;
        case U'{':
            box.Insert("}");
            return true;
        case U'[':
            box.Insert("]");
            return true;
        case U'(': {
            const window::TextSelection chosen = box.Selection();
            if (chosen.length == 0)
                return false;
            const std::u32string text = text::ToCodePoints(box.Text());
            box.Insert("(" + text::ToUtf8(text.substr(chosen.start, chosen.length)) + ")");
            return true;
        }
        default:
            return false;
    }
}

void ExpressionBox::MoveCaret(int step) {
    const window::TextSelection& chosen = m_controls.rtbExpr.Selection();
    const std::size_t caret = chosen.start + chosen.length;
    if (step < 0)
        m_controls.rtbExpr.Select({caret == 0 ? 0 : caret - 1, 0});
    else
        m_controls.rtbExpr.Select({caret + 1, 0});
}

void ExpressionBox::KeyUp() {
    if (!m_closer_due)
        return;
    m_closer_due = false;
    const std::size_t caret = m_controls.rtbExpr.Selection().start;
    m_controls.rtbExpr.Insert(")");
    m_controls.rtbExpr.Select({caret, 0});
}

bool ExpressionBox::KeyPress(char32_t character) {
    if (character != window::kEnterCharacter)
        return false;
    try {
        Enter();
    } catch (const std::exception&) {
        // The failure stands where the result would, so that typing is not interrupted by a box.
        m_controls.txtExpr.SetText(std::string(kExpressionFailed));
    }
    return true;
}

void ExpressionBox::Enter() {
    const std::string line = text::Trim(m_controls.rtbExpr.Text());
    if (!IsConstant(line))
        return;
    const auto result = m_form.publics.InfixNotation ? EvaluateFormula(line) : EvaluatePostfix(line);
    if (!result)
        return;
    m_controls.txtExpr.SetText(*result);
    frame::AppendToLog(m_form, line + " = " + *result + "\r\n-------\r\n");
}

std::optional<std::string> ExpressionBox::EvaluateFormula(const std::string& line) {
    const auto balanced = expr::CheckParentheses(line);
    if (!balanced) {
        m_controls.txtExpr.SetText(std::string(expr::kParenthesesDisagree));
        return std::nullopt;
    }
    try {
        expr::CExpression& expression = m_expression.Get();
        expression.SetExpression(*balanced);
        if (expression.ErrorCode() == 0)
            return expression.Value().Text();
        m_controls.txtExpr.SetText(expression.ErrorDescription());
    } catch (const numeric::RuntimeFailure&) {
        m_controls.txtExpr.SetText(std::string(kExpressionFailed));
    }
    m_expression.Renew();
    return std::nullopt;
}

std::optional<std::string> ExpressionBox::EvaluatePostfix(const std::string& line) {
    const expr::PostfixResult result = expr::EvalRPN(line);
    if (result.value)
        return text::NumberToText(*result.value);
    if (result.box)
        m_form.boxes.ShowMessage(result.box->text, result.box->title, window::Buttons::Ok);
    m_controls.txtExpr.SetText(result.message);
    return std::nullopt;
}

}  // namespace tavrelo::frame
