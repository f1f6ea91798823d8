#include "qt/accessible_report.h"

#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace tavrelo::qt {
namespace {

constexpr QChar kLineEnd = u'\n';

QAccessibleInterface* NewReport(const QString& /*class_name*/, QObject* object) {
    auto* view = dynamic_cast<RichTextView*>(object);
    return view ? new AccessibleReport(*view) : nullptr;
}

}  // namespace

AccessibleReport::AccessibleReport(RichTextView& view)
    : QAccessibleWidget(&view, QAccessible::EditableText) {}

void AccessibleReport::Install() { QAccessible::installFactory(&NewReport); }

RichTextView& AccessibleReport::View() const { return static_cast<RichTextView&>(*widget()); }

void* AccessibleReport::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleReport::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    return state;
}

QString AccessibleReport::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value ? View().Spoken() : QAccessibleWidget::text(kind);
}

QString AccessibleReport::text(int start, int end) const {
    return View().Spoken().mid(start, std::max(end - start, 0));
}

int AccessibleReport::characterCount() const { return static_cast<int>(View().Spoken().size()); }

int AccessibleReport::StartOfLine(int line) const {
    const QString& spoken = View().Spoken();
    qsizetype start = 0;
    for (; line > 0 && start >= 0; --line)
        start = spoken.indexOf(kLineEnd, start) + 1;
    return static_cast<int>(start);
}

int AccessibleReport::LineAt(int offset) const {
    return static_cast<int>(View().Spoken().left(offset).count(kLineEnd));
}

int AccessibleReport::cursorPosition() const {
    const QTextCursor cursor = View().textCursor();
    const int start = StartOfLine(cursor.blockNumber());
    const qsizetype end = View().Spoken().indexOf(kLineEnd, start);
    const int last = end < 0 ? characterCount() : static_cast<int>(end);
    return std::min(start + cursor.positionInBlock(), last);
}

void AccessibleReport::setCursorPosition(int position) {
    View().setTextCursor(QTextCursor(View().document()->findBlockByNumber(LineAt(position))));
}

QString AccessibleReport::attributes(int /*offset*/, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

QRect AccessibleReport::characterRect(int offset) const {
    const RichTextView& view = View();
    const QRect line = view.cursorRect(QTextCursor(view.document()->findBlockByNumber(LineAt(offset))));
    return {view.viewport()->mapToGlobal(line.topLeft()), line.size()};
}

int AccessibleReport::offsetAtPoint(const QPoint& point) const {
    const RichTextView& view = View();
    return StartOfLine(view.cursorForPosition(view.viewport()->mapFromGlobal(point)).blockNumber());
}

void AccessibleReport::scrollToSubstring(int start, int /*end*/) { setCursorPosition(start); }

void AccessibleReport::selection(int /*index*/, int* start, int* end) const { *start = *end = 0; }

void AccessibleReport::addSelection(int /*start*/, int /*end*/) {}

void AccessibleReport::removeSelection(int /*index*/) {}

void AccessibleReport::setSelection(int /*index*/, int /*start*/, int /*end*/) {}

}  // namespace tavrelo::qt
