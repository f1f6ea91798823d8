#include "window/control.h"

#include <algorithm>

namespace tavrelo::window {

void Control::Notify(Change change) {
    if (m_batches == 0)
        m_links.changed(*this, change);
    else if (std::ranges::find(m_held_back, change) == m_held_back.end())
        m_held_back.push_back(change);
}

ChangeBatch::~ChangeBatch() {
    if (--m_control.m_batches > 0)
        return;
    for (const Change change : std::exchange(m_control.m_held_back, {}))
        m_control.m_links.changed(m_control, change);
}

bool Control::IsShown() const {
    if (!m_visible)
        return false;
    const Control* parent = m_identity.parent;
    if (!parent)
        return true;
    const bool in_front = m_identity.page == kAllPages || parent->ShowsPage(m_identity.page);
    return in_front && parent->IsShown();
}

bool Control::IsUsable() const {
    if (!IsShown())
        return false;
    for (const Control* control = this; control; control = control->Parent())
        if (!control->m_enabled)
            return false;
    return true;
}

}  // namespace tavrelo::window
