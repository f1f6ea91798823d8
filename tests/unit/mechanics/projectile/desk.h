#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mechanics/projectile/procedures.h"

namespace tavrelo::mechanics::projectile::testing {

/// A problem on a desk: cells are typed, labels clicked, and what a procedure answers is carried out and
/// written down as a user would see it.
class Desk {
  public:
    static constexpr int kDecimals = 3;

    explicit Desk(int movers = 1, int first_points = 5) {
        m_problem = Reconfigured(m_problem, movers - 1);
        if (movers == 2)
            m_problem = std::get<Problem>(WithBandClicked(m_problem, first_points - 0.5, kDecimals));
    }

    const Problem& TheProblem() const { return m_problem; }
    Problem& TheProblem() { return m_problem; }

    /// Cells from the top; an empty text leaves the cell empty.
    Desk& Column(int column, const std::vector<std::string>& cells) {
        m_problem.table.ClearColumn(column);
        for (std::size_t row = 0; row < cells.size(); ++row)
            if (!cells[row].empty())
                m_problem.table.At(static_cast<int>(row), column) = {cells[row], cells[row]};
        return *this;
    }
    Desk& Components(int column) {
        m_problem.modes[static_cast<std::size_t>(column - 1)] = SpeedMode::Components;
        return *this;
    }
    std::vector<std::string> Shown(int column) const {
        std::vector<std::string> shown;
        for (int row = 0; row < points::kProjectileRows; ++row)
            shown.push_back(m_problem.table.At(row, column).shown);
        return shown;
    }

    /// The answers to the coming questions, and what is typed into input boxes ("" cancels).
    Desk& Answers(const std::vector<bool>& yes) {
        m_answers = yes;
        return *this;
    }
    Desk& Types(const std::string& limit) {
        m_typed = limit;
        return *this;
    }

    Desk& Click(Procedure procedure, int point, int mover = 1) {
        return Take(ClickPoint(m_problem, procedure, {mover, point}, kDecimals));
    }
    Desk& Interval(const Place& first, const Place& second, bool with_graph = true) {
        return Take(ClickInterval(m_problem, first, second, with_graph, kDecimals));
    }
    Desk& Run(Special special, const std::string& text = {}) {
        return Take(RunSpecial(m_problem, special, text, kDecimals));
    }

    /// What was shown since the last time that it was asked for: report lines, boxes, questions.
    std::vector<std::string> Report() { return Taken(m_report); }
    std::vector<std::string> Boxes() { return Taken(m_boxes); }
    std::vector<std::string> Board() { return Taken(m_board); }
    std::vector<std::string> Formulas() { return Taken(m_formulas); }
    const std::optional<Graph>& LastGraph() const { return m_graph; }

  private:
    static std::vector<std::string> Taken(std::vector<std::string>& from) {
        std::vector<std::string> taken;
        taken.swap(from);
        return taken;
    }

    Desk& Take(const Step& step) {
        const Problem before = m_problem;
        if (const auto* refusal = std::get_if<text::Refusal>(&step)) {
            m_boxes.push_back(refusal->text);
            EXPECT_EQ(before, m_problem);
            return *this;
        }
        const auto& outcome = std::get<Outcome>(step);
        m_problem = outcome.problem;
        for (const Event& event : outcome.events)
            std::visit([this](const auto& each) { See(each); }, event);
        return *this;
    }

    void See(const WriteLines& event) {
        m_report.insert(m_report.end(), event.lines.begin(), event.lines.end());
    }
    void See(const ClearSlot& event) { m_board.push_back("clear " + std::to_string(event.slot)); }
    void See(const BoardLine& event) { m_board.push_back(std::to_string(event.slot) + ": " + event.markup); }
    void See(const ShowBoard&) { m_board.push_back("show"); }
    void See(const ShowGraph& event) { m_graph = event.graph; }
    void See(const InsertFormula& event) { m_formulas.push_back(event.formula); }
    void See(const Box& event) { m_boxes.push_back(event.text); }
    void See(const Question& event) {
        m_boxes.push_back(event.text);
        if (m_answers.empty())
            return;
        const bool yes = m_answers.front();
        m_answers.erase(m_answers.begin());
        if (const auto& request = yes ? event.yes : event.no)
            Take(Continue(m_problem, *request, kDecimals));
    }
    void See(const AskLimit& event) {
        m_boxes.push_back(event.title + "\n" + event.text);
        if (!m_typed.empty())
            Take(ContinueWithLimit(m_problem, event.request, m_typed, kDecimals));
    }

    Problem m_problem;
    std::vector<bool> m_answers;
    std::string m_typed;
    std::vector<std::string> m_report;
    std::vector<std::string> m_boxes;
    std::vector<std::string> m_board;
    std::vector<std::string> m_formulas;
    std::optional<Graph> m_graph;
};

}  // namespace tavrelo::mechanics::projectile::testing
