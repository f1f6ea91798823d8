#include "window/reading_order.h"

#include <algorithm>
#include <map>
#include <utility>

namespace tavrelo::window {
namespace {

using Children = std::map<const Control*, std::vector<Control*>>;

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
    const auto place = [](const Control* control) {
        return std::pair(control->Bounds().top, control->Bounds().left);
    };
    std::vector<Control*> order;
    for (Control* window : children[nullptr]) {
        // On a panel the table is in order; the panels themselves move with the tool.
        std::ranges::stable_sort(children[window], {}, place);
        AddWithChildren(*window, children, order);
    }
    return order;
}

}  // namespace tavrelo::window
