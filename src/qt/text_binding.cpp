#include "qt/bindings.h"
#include "qt/text.h"
#include "qt/text_field.h"
#include "text/spoken.h"

namespace tavrelo::qt {
namespace {

class TextBinding : public Binding {
  public:
    TextBinding(window::TextControl& box, TextField& widget, ViewContext& context)
        : Binding(box, widget, context), m_box(box), m_widget(widget) {
        // The model cuts what is too long. It counts characters, the field units of UTF-16, of which a
        // character has two at most.
        widget.setMaxLength(2 * static_cast<int>(window::kMostCharacters));
        connect(&widget, &QLineEdit::textChanged, this, [this] { ReportEdit(); });
        connect(&widget, &QLineEdit::selectionChanged, this, [this] { ReportSelection(); });
        connect(&widget, &QLineEdit::cursorPositionChanged, this, [this] { ReportSelection(); });
    }

  protected:
    void ShowState() override {
        Binding::ShowState();
        constexpr int kMargin = 2;
        const int margin = Context().Scaled(kMargin);
        m_widget.setTextMargins(margin, 0, margin, 0);
        m_widget.setReadOnly(m_box.Locked());
        m_widget.setPlaceholderText(ToQString(m_box.Hint()));
    }

    void ShowContent() override {
        const QString text = ToQString(m_box.Text());
        if (m_widget.text() != text)
            m_widget.setText(text);
        // Of the boxes that can be typed into, those of formatted text take formulas.
        if (m_box.Kind() == window::ControlKind::RichTextBox)
            m_widget.setAccessibleDescription(ToQString(text::SpokenText(m_box.Text())));
        ShowSelection();
    }

    void ShowSelection() override {
        if (m_box.Selection() == Selected())
            return;
        const QString text = m_widget.text();
        const auto [start, length] = m_box.Selection();
        const int first = Utf16Position(text, start);
        m_widget.deselect();
        m_widget.setCursorPosition(first);
        if (length > 0)
            m_widget.setSelection(first, Utf16Position(text, start + length) - first);
    }

    QPalette::ColorRole BackRole() const override { return QPalette::Base; }

  private:
    window::TextSelection Selected() const {
        const QString text = m_widget.text();
        if (!m_widget.hasSelectedText())
            return {CharactersBefore(text, m_widget.cursorPosition()), 0};
        const std::size_t start = CharactersBefore(text, m_widget.selectionStart());
        return {start, CharactersBefore(text, m_widget.selectionEnd()) - start};
    }

    void ReportEdit() {
        Report([this] { m_box.UserEdited(ToUtf8(m_widget.text()), Selected()); });
    }

    void ReportSelection() {
        // While an edit is under way the text tells first.
        if (ToUtf8(m_widget.text()) == m_box.Text())
            Report([this] { m_box.UserSelected(Selected()); });
    }

    window::TextControl& m_box;
    TextField& m_widget;
};

}  // namespace

std::unique_ptr<Binding> NewTextBinding(window::Control& control, QWidget& parent, ViewContext& context) {
    auto& box = dynamic_cast<window::TextControl&>(control);
    return std::make_unique<TextBinding>(box, *new TextField(box, parent), context);
}

}  // namespace tavrelo::qt
