#include "tree_walk.h"

#include <QRadioButton>
#include <QWidget>
#include <algorithm>
#include <iterator>

#include "qt/text.h"

namespace tavrelo::transcript {
namespace {

using Role = QAccessible::Role;

/// What holds others and is not to be gone to.
constexpr Role kHolders[] = {QAccessible::Window, QAccessible::Dialog,      QAccessible::Grouping,
                             QAccessible::Pane,   QAccessible::LayeredPane, QAccessible::Notification};
/// What is read where it stands.
constexpr Role kTexts[] = {QAccessible::StaticText, QAccessible::Graphic, QAccessible::ColumnHeader,
                           QAccessible::RowHeader};
/// What is told apart by the one that it belongs to.
constexpr Role kParts[] = {QAccessible::Cell, QAccessible::ColumnHeader, QAccessible::RowHeader,
                           QAccessible::ListItem};
/// What nobody takes for one of the controls in it.
constexpr Role kApart[] = {QAccessible::Window, QAccessible::Dialog};

template <std::size_t kCount>
bool IsOneOf(const Role (&roles)[kCount], Role role) {
    return std::ranges::find(roles, role) != std::end(roles);
}

/// A piece of which the toolkit makes its scrolling widgets, and a bare widget that only holds others:
/// readers pass over them.
bool IsFiller(const QAccessibleInterface& object) {
    const bool is_inner = object.object() && object.object()->objectName().startsWith(QLatin1String("qt_"));
    const bool is_bare = object.role() == QAccessible::Client && object.childCount() > 0 &&
                         !object.state().focusable && object.text(QAccessible::Name).isEmpty();
    return is_inner || is_bare || object.role() == QAccessible::ScrollBar;
}

/// The toolkit keeps the former rows of a list while no reader runs, and does not say that a list is hidden.
bool IsInView(const QAccessibleInterface& object) {
    if (!object.isValid() || object.state().invisible || object.state().offscreen)
        return false;
    const auto* widget = qobject_cast<const QWidget*>(object.object());
    return !widget || widget->isVisible();
}

/// Of a group of options Tab goes to one; arrows lead to the others.
bool TakesTab(const QAccessibleInterface& object) {
    const auto* widget = qobject_cast<const QWidget*>(object.object());
    if (!widget || widget->focusPolicy() & Qt::TabFocus)
        return widget;
    return qobject_cast<const QRadioButton*>(widget) && (widget->focusPolicy() & Qt::ClickFocus);
}

}  // namespace

void TreeWalk::Visit(QWidget& window) {
    if (window.isVisible())
        Visit(*QAccessible::queryAccessibleInterface(&window), false);
}

void TreeWalk::Visit(QAccessibleInterface& object, bool in_reach) {
    if (!IsInView(object))
        return;
    const bool now_in_reach = in_reach || TakesTab(object);
    if (!IsFiller(object))
        Judge(object, now_in_reach);
    // Who goes to a control gets at its parts, but not at all that stands on a panel.
    VisitChildren(object, now_in_reach && !IsOneOf(kHolders, object.role()));
}

void TreeWalk::VisitChildren(QAccessibleInterface& object, bool in_reach) {
    for (int index = 0; index < object.childCount(); ++index)
        if (QAccessibleInterface* child = object.child(index))
            Visit(*child, in_reach);
}

void TreeWalk::Judge(QAccessibleInterface& object, bool in_reach) {
    ++m_findings.objects;
    JudgeName(object);
    if (object.role() == QAccessible::NoRole || object.role() == QAccessible::Client)
        Complain(object, "has no role");
    else
        ++m_findings.with_role;
    const bool is_gone_to = !IsOneOf(kHolders, object.role()) && !IsOneOf(kTexts, object.role());
    if (!is_gone_to)
        ++m_findings.read_in_place;
    else if (in_reach)
        ++m_findings.reachable;
    else
        Complain(object, "cannot be reached by keyboard");
}

void TreeWalk::JudgeName(const QAccessibleInterface& object) {
    const QString name = object.text(QAccessible::Name);
    if (name.trimmed().isEmpty())
        return Complain(object, "has no name");
    ++m_findings.named;
    const bool is_apart = IsOneOf(kParts, object.role()) || IsOneOf(kApart, object.role());
    if (is_apart || m_names.insert(name).second)
        return;
    ++m_findings.alike;
    Complain(object, "is called like another one");
}

void TreeWalk::Complain(const QAccessibleInterface& object, const std::string& what) {
    QString control;
    for (const QAccessibleInterface* owner = &object; owner && control.isEmpty(); owner = owner->parent())
        control = owner->object() ? owner->object()->objectName() : QString();
    m_findings.complaints.push_back('"' + qt::ToUtf8(object.text(QAccessible::Name)) + "\" (" +
                                    qt::ToUtf8(control) + ", role " + std::to_string(object.role()) + ") " +
                                    what);
}

}  // namespace tavrelo::transcript
