#include "window/reading_order.h"

#include <algorithm>
#include <map>
#include <utility>

namespace tavrelo::window {
namespace {

using Children = std::map<const Control*, std::vector<Control*>>;

/// Top and left edge; of a group of options those of the first one, so that nothing comes between them.
std::pair<int, int> PlaceOf(const Control& control) {
    const auto* option = dynamic_cast<const OptionButton*>(&control);
    const Rect& bounds = option ? option->group.front()->Bounds() : control.Bounds();
    return {bounds.top, bounds.left};
}

void AddWithChildren(Control& control, const Children& children, std::vector<Control*>& order) {
    order.push_back(&control);
    const auto found = children.find(&control);
    if (found == children.end())
        return;
    for (Control* child : found->second)
        AddWithChildren(*child, children, order);
}

}  // namespace

std::vector<Control*> ReadingOrder(const Form1& form) {
    Children children;
    for (Control* control : form.Controls())
        children[control->Parent()].push_back(control);
    std::vector<Control*> order;
    for (Control* window : children[nullptr]) {
        // On a panel the table is in order; the panels themselves move with the tool.
        std::ranges::stable_sort(children[window], {}, [](const Control* child) { return PlaceOf(*child); });
        AddWithChildren(*window, children, order);
    }
    return order;
}

}  // namespace tavrelo::window
