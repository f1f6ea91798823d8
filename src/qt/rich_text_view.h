#pragma once

#include <QTextEdit>

#include "shell/controls.h"

namespace tavrelo::qt {

/// A page of formatted text to read, select and copy.
class RichTextView : public QTextEdit {
  public:
    RichTextView(const shell::RichTextBox& model, QWidget& parent);

    /// The selection, counted as the model does. Positions of the document are those of QTextCursor.
    shell::TextSelection Selected() const;
    void Select(shell::TextSelection selection);

    /// Writes the text at a scale; what already stands in front of it is kept when `text` only goes on from
    /// there.
    void ShowText(const shell::RichText& text, double scale);

  protected:
    QMimeData* createMimeDataFromSelection() const override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    std::size_t ToModelPosition(int position) const;
    int ToDocumentPosition(std::size_t position) const;
    /// Runs of `text` behind what is shown, or all of it after clearing the page.
    shell::RichText TakeNew(const shell::RichText& text, double scale);

    const shell::RichTextBox& m_model;
    shell::RichText m_shown;
    double m_shown_scale = 0;
};

}  // namespace tavrelo::qt
