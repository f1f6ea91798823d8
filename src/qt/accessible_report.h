#pragma once

#include <QAccessibleInterface>
#include <QAccessibleWidget>

#include "qt/rich_text_view.h"

namespace tavrelo::qt {

/// What a screen reader gets of a page of formatted text: its lines as they are read aloud. The page itself
/// keeps its signs for copying and printing. Places count characters of the spoken text; the caret stands in
/// the spoken line of its line.
class AccessibleReport : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit AccessibleReport(RichTextView& view);

    /// Screen readers are given one of these for every page from now on; more than one call is one.
    static void Install();

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;

    QString text(int start, int end) const override;
    int characterCount() const override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString attributes(int offset, int* start, int* end) const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    // What is selected are signs of the page and no spoken words.
    int selectionCount() const override { return 0; }
    void selection(int index, int* start, int* end) const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;

  private:
    RichTextView& View() const;
    /// The first character of a line, and the line of a character.
    int StartOfLine(int line) const;
    int LineAt(int offset) const;
};

}  // namespace tavrelo::qt
