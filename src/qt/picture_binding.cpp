#include <algorithm>
#include <iterator>

#include "qt/bindings.h"
#include "qt/picture_view.h"

namespace tavrelo::qt {
namespace {

/// The drawings that a student takes along; all other pictures are for pointing at.
constexpr std::string_view kBlackboards[] = {"pic", "pic1"};

class PictureBinding : public Binding {
  public:
    PictureBinding(window::Picture& picture, PictureView& view, ViewContext& context)
        : Binding(picture, view, context), m_view(view) {}

  protected:
    void ShowState() override {
        Binding::ShowState();
        m_view.ShowPointer();
    }
    void ShowContent() override { m_view.update(); }
    void ShowSelection() override { m_view.ShowCells(); }

  private:
    PictureView& m_view;
};

}  // namespace

std::unique_ptr<Binding> NewPictureBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& picture = dynamic_cast<window::Picture&>(control);
    auto* view = new PictureView(picture, parent, context);
    view->SetMenu(std::ranges::find(kBlackboards, picture.Name()) != std::end(kBlackboards));
    return std::make_unique<PictureBinding>(picture, *view, context);
}

}  // namespace tavrelo::qt
