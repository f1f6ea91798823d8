#include "qt/rich_text_view.h"

#include <QContextMenuEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>

#include "qt/flat_parts.h"
#include "qt/fonts.h"
#include "qt/rich_document.h"
#include "qt/text.h"
#include "text/spoken.h"
#include "text/utf8.h"

namespace tavrelo::qt {
namespace {

constexpr QStringView kLineEnd(u"\r\n");
constexpr double kPageMargin = 4;

bool SameLook(const text::Run& a, const text::Run& b) {
    return a.font == b.font && a.color == b.color && a.offset == b.offset;
}

/// True when `text` is `front` with something behind it.
bool GoesOnFrom(const text::RichText& front, const text::RichText& text) {
    const auto& old_runs = front.Runs();
    const auto& new_runs = text.Runs();
    if (old_runs.empty() || old_runs.size() > new_runs.size())
        return false;
    for (std::size_t i = 0; i < old_runs.size(); ++i) {
        const bool is_last = i + 1 == old_runs.size();
        const bool same_text =
            is_last ? new_runs[i].text.starts_with(old_runs[i].text) : new_runs[i].text == old_runs[i].text;
        if (!same_text || !SameLook(old_runs[i], new_runs[i]))
            return false;
    }
    return true;
}

}  // namespace

QPalette PaperPalette() {
    QPalette paper;
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    paper.setColor(QPalette::Highlight, ShadeOf(kChoice, false));
    paper.setColor(QPalette::Inactive, QPalette::Highlight, ShadeOf(kFadedChoice, false));
    paper.setColor(QPalette::HighlightedText, Qt::black);
    return paper;
}

RichTextView::RichTextView(const window::RichTextBox& model, QWidget& parent)
    : QTextEdit(&parent), m_model(model) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setPalette(PaperPalette());
}

text::RichText RichTextView::TakeNew(const text::RichText& text, double scale, TextLook look) {
    if (scale == m_shown_scale && look == m_shown_look && GoesOnFrom(m_shown, text)) {
        const std::size_t shown = text::CharacterCount(m_shown.PlainText());
        return Piece(text, shown, std::string::npos - shown);
    }
    clear();
    document()->setDocumentMargin(kPageMargin * scale);
    document()->setDefaultFont(ToQFont(text::Font{}, scale));
    return text;
}

void RichTextView::ShowText(const text::RichText& text, double scale, TextLook look) {
    const text::RichText added = TakeNew(text, scale, look);
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    InsertRuns(cursor, added, scale, look);
    m_shown = text;
    m_spoken.reset();
    m_shown_scale = scale;
    m_shown_look = look;
}

const QString& RichTextView::Spoken() const {
    if (!m_spoken)
        m_spoken = ToQString(text::SpokenText(m_shown));
    return *m_spoken;
}

std::size_t RichTextView::ToModelPosition(int position) const {
    // Each line end before the place is one character more in the model.
    const int line_ends = document()->findBlock(position).blockNumber();
    return CharactersBefore(toPlainText(), position) + static_cast<std::size_t>(std::max(line_ends, 0));
}

int RichTextView::ToDocumentPosition(std::size_t position) const {
    const QString text = ToQString(m_model.Text());
    const int utf16 = Utf16Position(text, position);
    return utf16 - static_cast<int>(text.left(utf16).count(kLineEnd));
}

window::TextSelection RichTextView::Selected() const {
    const QTextCursor cursor = textCursor();
    const std::size_t start = ToModelPosition(cursor.selectionStart());
    return {start, ToModelPosition(cursor.selectionEnd()) - start};
}

void RichTextView::Select(window::TextSelection selection) {
    QTextCursor cursor(document());
    cursor.setPosition(ToDocumentPosition(selection.start));
    cursor.setPosition(ToDocumentPosition(selection.start + selection.length), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
}

QMimeData* RichTextView::createMimeDataFromSelection() const {
    const auto [start, length] = Selected();
    const text::RichText piece = Piece(m_model.Content(), start, length);
    auto* data = new QMimeData;
    data->setText(ToQString(text::ReplaceAll(piece.PlainText(), "\r\n", "\n")));
    data->setHtml(ToHtml(piece));
    return data;
}

void RichTextView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.setFont(font());
    QAction* copy = menu.addAction(QStringLiteral("Copiar"), QKeySequence::Copy, this, &QTextEdit::copy);
    copy->setEnabled(textCursor().hasSelection());
    QAction* select_all = menu.addAction(QStringLiteral("Seleccionar todo"), QKeySequence::SelectAll, this,
                                         &QTextEdit::selectAll);
    select_all->setEnabled(!document()->isEmpty());
    if (OnMenu)
        OnMenu(menu);
    menu.exec(event->globalPos());
}

}  // namespace tavrelo::qt
