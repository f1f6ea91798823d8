#include <utility>

#include "qt/bindings.h"
#include "qt/later.h"
#include "qt/picture_view.h"
#include "qt/text.h"
#include "window/layout.h"

namespace tavrelo::qt {
namespace {

class PictureBinding : public Binding {
  public:
    PictureBinding(window::Picture& picture, PictureView& view, ViewContext& context)
        : Binding(picture, view, context), m_picture(picture), m_view(view) {}

  protected:
    void ShowState() override {
        Binding::ShowState();
        m_view.ShowPointer();
    }
    void ShowContent() override {
        m_view.update();
        DescribeLate();
    }
    void ShowSelection() override { m_view.ShowCells(); }

  private:
    /// A drawing grows by many operations; its words are told once, when the handler under way has ended.
    void DescribeLate() {
        if (std::exchange(m_describes_late, true))
            return;
        Later(*this, [this] { Describe(); });
    }

    void Describe() {
        m_describes_late = false;
        const QString words = ToQString(m_picture.Description());
        if (m_view.accessibleDescription() != words)
            m_view.setAccessibleDescription(words);
        // A board is gone to for what it holds.
        if (m_picture.Has(window::kBoard))
            m_view.setFocusPolicy(m_picture.Canvas().IsBlank() ? Qt::NoFocus : Qt::TabFocus);
    }

    const window::Picture& m_picture;
    PictureView& m_view;
    bool m_describes_late = false;
};

}  // namespace

std::unique_ptr<Binding> NewPictureBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& picture = dynamic_cast<window::Picture&>(control);
    auto* view = new PictureView(picture, parent, context);
    view->SetMenu(picture.Has(window::kBoard));
    return std::make_unique<PictureBinding>(picture, *view, context);
}

}  // namespace tavrelo::qt
