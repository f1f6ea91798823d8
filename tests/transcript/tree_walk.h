#pragma once

#include <QAccessible>
#include <set>
#include <string>
#include <vector>

#include "driver.h"

namespace tavrelo::transcript {

/// Walks what a reader of the screen is told of a window, object by object, as far as it is in view, and
/// writes down what such a reader could not say or reach.
class TreeWalk {
  public:
    /// Windows that are in view together are walked one after the other.
    void Visit(QWidget& window);

    const TreeFindings& Findings() const { return m_findings; }

  private:
    void Visit(QAccessibleInterface& object, bool in_reach);
    void VisitChildren(QAccessibleInterface& object, bool in_reach);
    void Judge(QAccessibleInterface& object, bool in_reach);
    void JudgeName(const QAccessibleInterface& object);
    void Complain(const QAccessibleInterface& object, const std::string& what);

    TreeFindings m_findings;
    std::set<QString> m_names;
};

}  // namespace tavrelo::transcript
