#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "notation/force_record.h"
#include "tools/particle/axis_slots.h"

namespace tavrelo::tools::particle {

/// What the table and the diagram show of a force beside what the solver knows of it.
struct ForceArrow {
    std::string given_text;                 // as typed
    std::string label;                      // of an unknown magnitude, picture markup
    bool leaves = true;                     // the point; otherwise the arrow arrives at it
    std::optional<int> hour;                // of the direction, as typed; nothing while that is unknown
    std::optional<double> asked_direction;  // degrees, in which the user wants to see an unknown direction
    Offset start;                           // of the arrow from the middle of the diagram
};

/// The forces of the problem, and beside them what is shown of each: two lists of equal length that change,
/// and are kept for Restaurar, together.
class ForcesInView {
  public:
    bool IsEmpty() const { return m_forces.empty(); }
    std::size_t Count() const { return m_forces.size(); }
    const std::vector<notation::Force>& Forces() const { return m_forces; }
    const std::vector<ForceArrow>& Arrows() const { return m_arrows; }

    void Add(const notation::ForceRecord& record, std::optional<double> asked_direction, Offset start);
    void RemoveLast();
    /// `index` counts from 0; one that is not there removes nothing.
    void Remove(std::size_t index);
    /// Gives the arrows their places beside the axes anew, in their order.
    void PlaceAll(AxisSlots& slots, double rotation);

    /// Takes the forces of a solution over: those that are known now are shown where they point.
    void Take(std::vector<notation::Force> solved);
    /// From now on all forces count as given.
    void AcceptFound();

  private:
    std::vector<notation::Force> m_forces;
    std::vector<ForceArrow> m_arrows;
};

}  // namespace tavrelo::tools::particle
