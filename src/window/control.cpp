#include "window/control.h"

namespace tavrelo::window {

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
