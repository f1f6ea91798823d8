#include "tools/rigid/rigid_grid.h"

#include <array>

namespace tavrelo::tools::rigid {
namespace {

struct Heading {
    const char* text;
    int width;  // twips
};
constexpr std::array kHeadings = {
    Heading{"#", 310},  Heading{"Cpo.", 410}, Heading{"Pto.", 410}, Heading{"Fuerza[:][/Par]", 1560},
    Heading{"Fx", 900}, Heading{"Fy", 900},   Heading{"Mom.", 900},
};

}  // namespace

void ArrangeGd1(window::Form1& form) {
    window::Grid& grid = form.gd1;
    grid.Arrange(1, static_cast<int>(kHeadings.size()), 1, 1);
    for (int col = 0; col < grid.Cols(); ++col) {
        const Heading& heading = kHeadings[static_cast<std::size_t>(col)];
        grid.SetCell(0, col, heading.text);
        grid.SetColWidth(col, heading.width);
        grid.SetColAlignment(col, window::Alignment::Center);
    }
}

}  // namespace tavrelo::tools::rigid
