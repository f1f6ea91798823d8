#include <QAccessible>
#include <algorithm>

#include "qt/accessible_report.h"
#include "qt/bindings.h"
#include "qt/free_window.h"
#include "qt/rich_document.h"
#include "qt/rich_text_view.h"
#include "qt/text.h"
#include "text/spoken.h"
#include "text/utf8.h"
#include "window/layout.h"

namespace tavrelo::qt {
namespace {

class RichTextBinding : public Binding {
  public:
    RichTextBinding(window::RichTextBox& box, RichTextView& view, ViewContext& context)
        : Binding(box, view, context), m_box(box), m_view(view) {
        view.OnMenu = [this](QMenu& menu) {
            menu.addAction(QString::fromLatin1(kOpenFreeCaption), this,
                           [this] { Context().open_free(m_box); });
        };
        connect(&view, &QTextEdit::selectionChanged, this, [this] { ReportSelection(); });
        connect(&view, &QTextEdit::cursorPositionChanged, this, [this] { ReportSelection(); });
    }

    bool IsRenewedWhole() const override { return true; }

  protected:
    void ShowContent() override {
        m_view.ShowText(m_box.Content(), Zoom(), Context().text_look);
        m_view.Select(m_box.Selection());
        TellNewPart();
    }

    void ShowSelection() override {
        if (m_view.Selected() != m_box.Selection())
            m_view.Select(m_box.Selection());
    }

    QPalette::ColorRole BackRole() const override { return QPalette::Base; }
    QPalette OwnPalette() const override { return PaperPalette(); }

  private:
    void ReportSelection() {
        Report([this] { m_box.UserSelected(m_view.Selected()); });
    }

    /// Tells readers of the screen what the box says that it did not say before.
    void TellNewPart() {
        std::string text = m_box.Content().PlainText();
        const std::size_t start = text.starts_with(m_told) ? text::CharacterCount(m_told) : 0;
        m_told = std::move(text);
        const text::RichText added = Piece(m_box.Content(), start, std::string::npos - start);
        if (added.PlainText().empty() || !m_box.IsShown())
            return;
        const std::string spoken = text::SpokenText(added);
        const QString added_text = ToQString(spoken);
        const auto place = std::max<qsizetype>(m_view.Spoken().size() - added_text.size(), 0);
        QAccessibleTextInsertEvent event(&m_view, static_cast<int>(place), added_text);
        QAccessible::updateAccessibility(&event);
        if (m_box.Has(window::kAnswer))
            Form().Announce(spoken);
    }

    window::RichTextBox& m_box;
    RichTextView& m_view;
    std::string m_told;
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
