#include "tools/particle/forces_in_view.h"

#include <algorithm>
#include <utility>

namespace tavrelo::tools::particle {

void ForcesInView::Add(const notation::ForceRecord& record, std::optional<double> asked_direction,
                       Offset start) {
    const auto hour = record.clock ? std::optional(record.clock->hour) : std::nullopt;
    m_forces.push_back(record.force);
    m_arrows.push_back({record.given_text, record.label, record.leaves, hour, asked_direction, start});
}

void ForcesInView::RemoveLast() {
    if (!IsEmpty())
        Remove(Count() - 1);
}

void ForcesInView::Remove(std::size_t index) {
    if (index >= Count())
        return;
    m_forces.erase(m_forces.begin() + static_cast<std::ptrdiff_t>(index));
    m_arrows.erase(m_arrows.begin() + static_cast<std::ptrdiff_t>(index));
}

void ForcesInView::PlaceAll(AxisSlots& slots, double rotation) {
    slots.Clear();
    for (ForceArrow& arrow : m_arrows)
        arrow.start = slots.AxisOffset(arrow.leaves, arrow.hour, rotation);
}

void ForcesInView::Take(std::vector<notation::Force> solved) {
    solved.resize(Count());
    m_forces = std::move(solved);
    for (std::size_t i = 0; i < Count(); ++i) {
        if (!m_forces[i].HasComponents())
            continue;
        m_arrows[i].hour = numeric::ClockOf(*m_forces[i].x.number, *m_forces[i].y.number).hour;
        m_arrows[i].asked_direction.reset();
    }
}

void ForcesInView::AcceptFound() {
    for (notation::Force& force : m_forces)
        force.knowledge = notation::Knowledge::Given;
}

}  // namespace tavrelo::tools::particle
