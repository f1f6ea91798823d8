#include "tools/projectile/projectile_tool.h"

#include "tools/projectile/projectile_texts.h"

namespace tavrelo::tools::projectile {

Projectile::Projectile(frame::PointsPanel& panel) : m_panel(panel) {}

frame::ToolHooks Projectile::Hooks() {
    return {.on_entry = [this] {
        m_panel.Enter(*this);
        m_panel.FocusTable(false);
    }};
}

const frame::PointsTexts& Projectile::Texts() const { return ProjectileTexts(); }

std::optional<frame::TopicPlace> Projectile::HelpTopic(frame::PointsHelp button) const {
    return ProjectileTopic(button, view.procedure_row, view.procedure_entry);
}

}  // namespace tavrelo::tools::projectile
