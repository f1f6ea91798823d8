#include "tools/kinematics/kinem_panel.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tavrelo::tools::kinematics {
namespace {

/// A way of giving the motion. An empty second line is not in view; start values are taken from the front.
struct Way {
    int code;
    std::string_view first_line;
    std::string_view second_line;
    int start_values;
};
constexpr Way kWays[] = {
    {11, "x(t)=", "", 0},      {12, "v(t,x)=", "", 2},        {13, "a(t,x,v)=", "", 3},
    {14, "x(t)=", "y(t)=", 0}, {15, "r(t)=", "theta(t)=", 0},
};

}  // namespace

void ShowWay(window::Form1& form, int way) {
    const auto* found = std::ranges::find(kWays, way, &Way::code);
    if (found == std::end(kWays))
        return;
    form.lblKinem[0].SetCaption(std::string(found->first_line));
    form.lblKinem[1].SetCaption(std::string(found->second_line));
    const bool in_plane = !found->second_line.empty();
    form.lblKinem[1].SetVisible(in_plane);
    form.txtKinem[1].SetVisible(in_plane);
    for (const auto& [index, label] : form.lblT0.Items()) {
        label->SetVisible(index < found->start_values);
        form.txtT0[index].SetVisible(index < found->start_values);
    }
    for (const auto& [index, box] : form.chkGraph.Items())
        box->SetVisible(!in_plane);
}

}  // namespace tavrelo::tools::kinematics
