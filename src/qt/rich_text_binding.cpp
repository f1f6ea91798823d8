#include "qt/accessible_report.h"
#include "qt/bindings.h"
#include "qt/rich_text_view.h"

namespace tavrelo::qt {
namespace {

class RichTextBinding : public Binding {
  public:
    RichTextBinding(window::RichTextBox& box, RichTextView& view, ViewContext& context)
        : Binding(box, view, context), m_box(box), m_view(view) {
        connect(&view, &QTextEdit::selectionChanged, this, [this] { ReportSelection(); });
        connect(&view, &QTextEdit::cursorPositionChanged, this, [this] { ReportSelection(); });
    }

    bool IsRenewedWhole() const override { return true; }

  protected:
    void ShowContent() override {
        m_view.ShowText(m_box.Content(), Zoom());
        m_view.Select(m_box.Selection());
    }

    void ShowSelection() override {
        if (m_view.Selected() != m_box.Selection())
            m_view.Select(m_box.Selection());
    }

    QPalette::ColorRole BackRole() const override { return QPalette::Base; }

  private:
    void ReportSelection() {
        Report([this] { m_box.UserSelected(m_view.Selected()); });
    }

    window::RichTextBox& m_box;
    RichTextView& m_view;
};

}  // namespace

std::unique_ptr<Binding> NewRichTextBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& box = dynamic_cast<window::RichTextBox&>(control);
    if (!box.Locked())
        return NewTextBinding(control, parent, context);
    AccessibleReport::Install();
    return std::make_unique<RichTextBinding>(box, *new RichTextView(box, parent), context);
}

}  // namespace tavrelo::qt
