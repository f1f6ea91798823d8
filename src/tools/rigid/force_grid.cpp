#include "tools/rigid/force_grid.h"

#include <optional>
#include <string>

#include "text/number_text.h"
#include "window/grid_columns.h"

namespace tavrelo::tools::rigid {
namespace {

using mechanics::rigid::BodyForce;

/// In the order of the columns.
enum ForceGridCol { kNumber, kBody, kPoint, kText, kXComponent, kYComponent, kCouple };
constexpr window::GridColumn kColumns[] = {
    {"#", 310},  {"Cpo.", 410}, {"Pto.", 410}, {"Fuerza[:][/Par]", 1560},
    {"Fx", 900}, {"Fy", 900},   {"Mom.", 900},
};

}  // namespace

void ArrangeForces(window::Grid& grid) { window::ArrangeColumns(grid, kColumns); }

void AddForceRow(window::Grid& grid, const BodyForce& force, const ForceLook& look) {
    grid.AddRow({std::to_string(grid.Rows()), std::to_string(force.body), force.point, force.text,
                 look.x_text, look.y_text, force.couple ? force.couple->text : ""});
}

void ShowKnownValues(window::Grid& grid, const mechanics::rigid::BodyForces& forces, int decimals) {
    int row = 0;
    const auto show = [&](ForceGridCol column, const std::optional<double>& number) {
        if (number)
            grid.SetCell(row, column, text::RoundedText(*number, decimals));
    };
    for (const BodyForce& force : forces) {
        ++row;
        if (force.force) {
            show(kXComponent, force.force->x.number);
            show(kYComponent, force.force->y.number);
        }
        if (force.couple)
            show(kCouple, force.couple->value);
    }
}

}  // namespace tavrelo::tools::rigid
