#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "mechanics/rigid/chain_vectors.h"
#include "tools/rigid/rigid_board.h"

namespace tavrelo::tools::rigid {

/// The page "Configuración": chains of points and separation vectors, origin, systems and lines.
class ConfigTab {
  public:
    explicit ConfigTab(RigidBoard& board);

    /// Empties the boxes in which vectors are entered.
    void RestoreConfigCtrls();
    /// Empties the page: boxes, lists and systems, the selector at 1.
    void Clear();

    // Set by the tool.
    std::function<void()> OnDiagramsWanted;  // the word for the diagrams was typed in place of a chain
    std::function<void()> OnErased;          // the last vector was cancelled

  private:
    void Wire();
    void WireChain();
    void WireSystems();

    bool ArrowKey(int index, const window::KeyStroke& stroke);
    void EnterChain();               // Enter in txtSegm(0)
    void EnterVector();              // Enter in txtSegm(1)
    void EnterMagnitude(int index);  // Enter in txtSegm(2) and up
    void EnterSeries();              // Enter in txtRepeat
    void CloseMagnitudes();
    void GoBehind(int index);
    void SetSeriesEnabled(bool enabled);

    void AddVectors();        // cmdOK
    void CancelLastVector();  // cmdConfig(0)
    std::vector<std::string> Magnitudes() const;
    void BeginAt(const std::string& point);
    std::optional<text::Refusal> TakeStructure(mechanics::rigid::Structure structure);
    window::TextBox& BoxOf(const mechanics::rigid::ChainRefusal& refusal) const;
    void ForgetLostLetters();
    void EraseStructure();
    void ChangeOrigin();  // cmdUpdate, Enter in txtOrigin
    void ShowCoords();
    void ShowSeps();

    void SetSystem(int system, std::string letters);
    void ChooseSystemPoints();  // lstSysts
    void ShowSystemChoice();    // spnColor
    void EnterLine();           // Enter in txtPoints

    RigidBoard& m_board;
    window::Form1& m_form;
    mechanics::rigid::RigidProblem& m_problem;
};

}  // namespace tavrelo::tools::rigid
