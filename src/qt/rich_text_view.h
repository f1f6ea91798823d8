#pragma once

#include <QMenu>
#include <QTextEdit>
#include <functional>
#include <optional>

#include "qt/text_colors.h"
#include "window/controls.h"

namespace tavrelo::qt {

/// The colours of reports: on white paper, also on a dark desktop.
QPalette PaperPalette();

/// A page of formatted text to read, select and copy.
class RichTextView : public QTextEdit {
  public:
    RichTextView(const window::RichTextBox& model, QWidget& parent);

    /// The selection, counted as the model does. Positions of the document are those of QTextCursor.
    window::TextSelection Selected() const;
    void Select(window::TextSelection selection);

    /// The text as it is read aloud, line for line.
    const QString& Spoken() const;

    /// Writes the text at a scale; what already stands in front of it is kept when `text` only goes on from
    /// there.
    void ShowText(const text::RichText& text, double scale, TextLook look);

    /// Adds to the menu what the place of the page can do besides.
    std::function<void(QMenu&)> OnMenu;

  protected:
    QMimeData* createMimeDataFromSelection() const override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    std::size_t ToModelPosition(int position) const;
    int ToDocumentPosition(std::size_t position) const;
    /// Runs of `text` behind what is shown, or all of it after clearing the page.
    text::RichText TakeNew(const text::RichText& text, double scale, TextLook look);

    const window::RichTextBox& m_model;
    text::RichText m_shown;
    mutable std::optional<QString> m_spoken;  // of what is shown; made when it is asked for
    double m_shown_scale = 0;
    TextLook m_shown_look = TextLook::Told;
};

}  // namespace tavrelo::qt
