#pragma once

#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>

#include "qt/text_colors.h"
#include "text/rich_text.h"

namespace tavrelo::qt {

/// The format of a run at a scale, on white paper. The program's own font name, size and offset are kept with
/// it, so that a run can be read back whole.
QTextCharFormat ToCharFormat(const text::Run& run, double scale, TextLook look = TextLook::Told);

/// Writes the runs behind the cursor; "\r\n" begins a new block.
void InsertRuns(QTextCursor& cursor, const text::RichText& text, double scale,
                TextLook look = TextLook::Told);

/// The runs of a document that InsertRuns wrote.
text::RichText ReadRuns(const QTextDocument& document);

/// The characters [start, start + length) of a text, a line end being two.
text::RichText Piece(const text::RichText& text, std::size_t start, std::size_t length);

/// The text as word processors take it from the clipboard: raised and lowered runs in the standard way, fonts
/// by the names and sizes of the program.
QString ToHtml(const text::RichText& text);

}  // namespace tavrelo::qt
