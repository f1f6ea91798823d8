#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "mechanics/rigid/structure_steps.h"
#include "tools/rigid/problem_in_view.h"

namespace tavrelo::tools::rigid {

/// The page "Configuración": chains of points and separation vectors, origin, systems and lines.
class ConfigurationPage {
  public:
    explicit ConfigurationPage(ProblemInView& view);

    /// The focus goes to the chain of points.
    void Focus();
    void FocusAndSelect();
    /// Empties the boxes in which vectors are entered.
    void RestoreConfigCtrls();
    /// Empties the page: boxes, lists and systems, the selector at 1.
    void Clear();

    // Set by the tool.
    std::function<void()> OnDiagramsWanted;  // the word for the diagrams was typed in place of a chain
    std::function<void()> OnErased;          // the last vector was cancelled

  private:
    void Wire();

    bool ArrowKey(int index, const window::KeyStroke& stroke);
    void EnterChain();               // Enter in txtSegm(0)
    void EnterVector();              // Enter in txtSegm(1)
    void EnterMagnitude(int index);  // Enter in txtSegm(2) and up
    void CloseMagnitudes();
    void GoBehind(int index);
    void SetSeriesEnabled(bool enabled);

    void AddVectors();        // cmdOK
    void CancelLastVector();  // cmdConfig(0)
    void EraseStructure();
    void ChangeOrigin();  // cmdUpdate, Enter in txtOrigin
    std::vector<std::string> Magnitudes() const;
    std::string Origin() const;
    void BeginAt(const std::string& point);
    void TakeStructure(mechanics::rigid::StructureStep step);
    /// Says which points there were not before.
    void AnnouncePoints(const mechanics::rigid::PointTable& before) const;
    void Refuse(const mechanics::rigid::ChainRefusal& refusal);
    window::TextBox& BoxOf(const mechanics::rigid::ChainRefusal& refusal) const;
    void ShowCoords();
    void ShowSeps();
    void ShowSystems();

    void ChooseSystemPoints();  // lstSysts
    void ShowSystemChoice();    // spnColor
    void EnterLine();           // Enter in txtPoints

    const mechanics::rigid::RigidProblem& Problem() const { return m_view.Problem(); }

    ProblemInView& m_view;
    window::Form1& m_form;
    ConfigurationControls m_controls;
};

}  // namespace tavrelo::tools::rigid
