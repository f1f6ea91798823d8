#include "qt/bindings.h"
#include "qt/grid_view.h"

namespace tavrelo::qt {
namespace {

class GridBinding : public Binding {
  public:
    GridBinding(window::Grid& grid, GridView& view, ViewContext& context)
        : Binding(grid, view, context), m_view(view) {}

    bool IsRenewedWhole() const override { return true; }

  protected:
    void ShowState() override {
        Binding::ShowState();
        m_view.ShowSizes(Zoom());
    }
    void ShowContent() override { m_view.ShowCells(Zoom()); }
    void ShowSelection() override { m_view.ShowChoice(); }
    QPalette::ColorRole BackRole() const override { return QPalette::Base; }

  private:
    GridView& m_view;
};

}  // namespace

std::unique_ptr<Binding> NewGridBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& grid = dynamic_cast<window::Grid&>(control);
    return std::make_unique<GridBinding>(grid, *new GridView(grid, parent), context);
}

}  // namespace tavrelo::qt
