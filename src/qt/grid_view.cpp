#include "qt/grid_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <cmath>

#include "qt/flat_parts.h"
#include "qt/keys.h"
#include "qt/later.h"
#include "qt/text.h"
#include "window/cell_names.h"
#include "window/cell_typing.h"

namespace tavrelo::qt {
namespace {

void SetUpHeading(QHeaderView& heading) {
    heading.setSectionsClickable(false);
    heading.setHighlightSections(false);
    heading.setSectionResizeMode(QHeaderView::Fixed);
    heading.setMinimumSectionSize(1);
}

/// Whether a text of that width goes beyond the lines around its cell. The margins of the cell it may take.
bool IsCut(int text_width, const QRect& cell) { return text_width > cell.width() - 2; }

/// Shows the beginning of a text that its cell cuts, and dots.
class CellDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (IsCut(option->fontMetrics.horizontalAdvance(option->text), option->rect))
            option->textElideMode = Qt::ElideRight;
    }
};

/// The factor that makes a length fit into the room there is, when that takes little; else 1.
double Shrinking(double length, double room, double lowest_share) {
    return length > room && length * lowest_share <= room ? room / length : 1;
}

}  // namespace

GridView::GridView(window::Grid& model, QWidget& parent)
    : QTableView(&parent), m_grid(model), m_table(model), m_corner(this) {
    setModel(&m_table);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideNone);
    setItemDelegate(new CellDelegate(this));
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setAttribute(Qt::WA_InputMethodEnabled);
    SetUpHeading(*horizontalHeader());
    SetUpHeading(*verticalHeader());
    m_corner.setAlignment(Qt::AlignCenter);
}

QModelIndex GridView::IndexOf(int row, int col) const {
    return m_table.index(row - m_grid.FixedRows(), col - m_grid.FixedCols());
}

void GridView::ShowCells(double zoom) {
    m_table.Renew();
    ShowSizes(zoom);
    ShowChoice();
    TellNewContent();
}

void GridView::ShowSizes(double zoom) {
    const double pixels_per_twip = zoom / window::kTwipsPerPixel;
    horizontalHeader()->setVisible(m_grid.FixedRows() > 0);
    verticalHeader()->setVisible(m_grid.FixedCols() > 0);
    const int row_height = ShowRows(pixels_per_twip);
    const int first_width = ShowColumns(pixels_per_twip);
    ShowCorner({first_width, row_height});
}

int GridView::ShowRows(double pixels_per_twip) {
    constexpr double kLowestShare = 0.9;
    const double exact = m_grid.RowHeight() * pixels_per_twip;
    const double shrunk = exact * Shrinking(exact * m_grid.Rows(), height() - 2 * frameWidth(), kLowestShare);
    const int row_height = shrunk < exact ? static_cast<int>(shrunk) : std::max(1, qRound(exact));
    verticalHeader()->setDefaultSectionSize(row_height);
    horizontalHeader()->setFixedHeight(row_height);
    return row_height;
}

int GridView::ShowColumns(double pixels_per_twip) {
    constexpr double kLowestShare = 0.99;
    int twips = 0;
    for (int col = 0; col < m_grid.Cols(); ++col)
        twips += m_grid.ColWidth(col);
    const double room = width() - 2 * frameWidth();
    const double scale = pixels_per_twip * Shrinking(twips * pixels_per_twip, room, kLowestShare);
    int first_width = 0;
    twips = 0;
    for (int col = 0; col < m_grid.Cols(); ++col) {
        const int left = qRound(twips * scale);
        twips += m_grid.ColWidth(col);
        const int width = qRound(twips * scale) - left;
        if (col >= m_grid.FixedCols())
            horizontalHeader()->resizeSection(col - m_grid.FixedCols(), width);
        else
            first_width = width;
    }
    verticalHeader()->setFixedWidth(first_width);
    return first_width;
}

void GridView::ShowCorner(const QSize& size) {
    const bool has_corner = m_grid.FixedRows() > 0 && m_grid.FixedCols() > 0 && m_grid.HasCell(0, 0);
    m_corner.setVisible(has_corner);
    m_corner.setText(has_corner ? ToQString(m_grid.Cell(0, 0)) : QString());
    m_corner.setGeometry(QRect(QPoint(frameWidth(), frameWidth()), size));
}

void GridView::ShowChoice() {
    const window::CellBlock& block = m_grid.Selection();
    const QItemSelection chosen(IndexOf(block.first_row, block.first_col),
                                IndexOf(block.last_row, block.last_col));
    selectionModel()->select(chosen, QItemSelectionModel::ClearAndSelect);
    const QModelIndex current = IndexOf(m_grid.Row(), m_grid.Col());
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    if (m_is_dragging)
        scrollTo(IndexOf(m_grid.DraggedBlock().last_row, m_grid.DraggedBlock().last_col));
    else if (current.isValid())
        scrollTo(current);
}

QPoint GridView::BringIntoView(int row, int col) {
    const QModelIndex index = IndexOf(row, col);
    scrollTo(index);
    return visualRect(index).center();
}

GridView::Cell GridView::CellAt(const QPoint& place) const {
    const int x = std::clamp(place.x(), 0, horizontalHeader()->length() - horizontalHeader()->offset() - 1);
    const int y = std::clamp(place.y(), 0, verticalHeader()->length() - verticalHeader()->offset() - 1);
    const QModelIndex index = indexAt({x, y});
    return {index.row() + m_grid.FixedRows(), index.column() + m_grid.FixedCols()};
}

bool GridView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QTableView::viewportEvent(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QModelIndex index = indexAt(help.pos());
    const QString text = index.data().toString();
    if (!IsCut(fontMetrics().horizontalAdvance(text), visualRect(index)))
        return QTableView::viewportEvent(event);
    QToolTip::showText(help.globalPos(), text, this, visualRect(index));
    return true;
}

void GridView::mousePressEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    if (event->button() != Qt::LeftButton || !indexAt(place).isValid())
        return;
    const Cell cell = CellAt(place);
    m_is_dragging = true;
    m_grid.UserPress(cell.row, cell.col);
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    if (!m_is_dragging || !(event->buttons() & Qt::LeftButton) || m_table.rowCount() == 0)
        return;
    const Cell cell = CellAt(event->position().toPoint());
    m_grid.UserDragTo(cell.row, cell.col);
}

void GridView::mouseReleaseEvent(QMouseEvent*) { m_is_dragging = false; }

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    if (event->button() != Qt::LeftButton || !indexAt(place).isValid())
        return;
    const Cell cell = CellAt(place);
    m_grid.UserDblClick(cell.row, cell.col);
}

bool GridView::TakeMouseKey(const QKeyEvent& event) {
    const bool is_double_click = event.key() == Qt::Key_F2 && event.modifiers() == Qt::NoModifier;
    const bool is_press = event.key() == Qt::Key_Space && event.modifiers() == Qt::ControlModifier;
    if (is_double_click)
        m_grid.UserDblClick(m_grid.Row(), m_grid.Col());
    else if (is_press)
        m_grid.UserPress(m_grid.Row(), m_grid.Col());
    return is_double_click || is_press;
}

bool GridView::TakeKey(const QKeyEvent& event) {
    if (TakeMouseKey(event))
        return true;
    const auto stroke = ToKeyStroke(event);
    if (stroke && m_grid.UserKeyDown(*stroke))
        return true;
    const auto typed = ToTypedCharacter(event);
    if (typed && m_grid.UserKeyPress(*typed))
        return true;
    if (!stroke || !IsArrow(stroke->key) || stroke->ctrl || stroke->alt)
        return false;
    m_grid.UserNavigate(stroke->key, stroke->shift);
    return true;
}

void GridView::CopyBlock() const {
    if (const auto text = window::TextOfBlock(m_grid))
        QGuiApplication::clipboard()->setText(ToQString(*text));
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (TakeKey(*event))
        event->accept();
    else if (event->matches(QKeySequence::Copy))
        CopyBlock();
    else
        event->ignore();
}

void GridView::keyReleaseEvent(QKeyEvent* event) {
    const auto stroke = ToKeyStroke(*event);
    if (!stroke || event->isAutoRepeat() || !m_grid.UserKeyUp(*stroke))
        event->ignore();
}

void GridView::inputMethodEvent(QInputMethodEvent* event) {
    for (const char32_t character : CommittedCharacters(*event))
        m_grid.UserKeyPress(character);
    event->accept();
}

QVariant GridView::inputMethodQuery(Qt::InputMethodQuery query) const {
    if (query == Qt::ImEnabled)
        return true;
    if (query == Qt::ImCursorRectangle)
        return visualRect(currentIndex());
    return QTableView::inputMethodQuery(query);
}

void GridView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(viewport());
    const QRect cell = visualRect(currentIndex());
    if (cell.isValid())
        DrawCellFocus(painter, cell, GroundOf(currentIndex()));
    else
        DrawFocusFrame(painter, viewport()->rect(), 1);
}

QColor GridView::GroundOf(const QModelIndex& cell) const {
    if (selectionModel()->isSelected(cell))
        return palette().color(QPalette::Highlight);
    const QVariant own = cell.data(Qt::BackgroundRole);
    return own.isValid() ? own.value<QBrush>().color() : palette().color(QPalette::Base);
}

void GridView::focusInEvent(QFocusEvent*) {
    // The table's own handler would choose a cell that the model does not know of.
    viewport()->update();
    // The toolkit tells of the table itself behind this; the cell is to have the last word.
    Later(*this, [this] { TellCurrentCell(); });
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // The table's own handler would tell of the cell too, by a count of its own.
    QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
    TellCurrentCell();
}

GridView::Cell GridView::ToCell(const TablePlace& place) const {
    return {place.row - 1 + m_grid.FixedRows(), place.col - 1 + m_grid.FixedCols()};
}

bool GridView::HasPlace(const TablePlace& place) const {
    return place.row >= 0 && place.col >= 0 && place.row <= m_table.rowCount() &&
           place.col <= m_table.columnCount();
}

TablePlace GridView::CurrentPlace() const {
    const QModelIndex current = currentIndex();
    return current.isValid() ? TablePlace{current.row() + 1, current.column() + 1} : TablePlace{};
}

TablePlace GridView::PlaceAt(const QPoint& on_screen) const {
    const QPoint place = viewport()->mapFromGlobal(on_screen);
    return {place.y() < 0 ? 0 : rowAt(place.y()) + 1, place.x() < 0 ? 0 : columnAt(place.x()) + 1};
}

int GridView::IndexOf(const TablePlace& place) const {
    return place.row * (m_table.columnCount() + 1) + place.col;
}

QString GridView::NameOf(const TablePlace& place) const {
    const Cell cell = ToCell(place);
    if (place == TablePlace{})
        return m_corner.text().isEmpty() ? QStringLiteral("Encabezados")
                                         : ToQString(window::ColumnHeading(m_grid, 0));
    if (place.row == 0)
        return ToQString(window::ColumnHeading(m_grid, cell.col));
    if (place.col == 0)
        return ToQString(window::RowHeading(m_grid, cell.row));
    return ToQString(window::CellName(m_grid, cell.row, cell.col));
}

QString GridView::ContentOf(const TablePlace& place) const {
    const Cell cell = ToCell(place);
    return place.IsHeading() ? QString() : ToQString(m_grid.Cell(cell.row, cell.col));
}

bool GridView::IsChosen(const TablePlace& place) const {
    const window::CellBlock& block = m_grid.Selection();
    const Cell cell = ToCell(place);
    return !place.IsHeading() && cell.row >= block.first_row && cell.row <= block.last_row &&
           cell.col >= block.first_col && cell.col <= block.last_col;
}

QRect GridView::RectOf(const TablePlace& place) const {
    const QHeaderView& across = *horizontalHeader();
    const QHeaderView& down = *verticalHeader();
    const bool is_top = place.row == 0;
    const bool is_left = place.col == 0;
    const int x = is_left ? -down.width() : across.sectionViewportPosition(place.col - 1);
    const int y = is_top ? -across.height() : down.sectionViewportPosition(place.row - 1);
    return {x, y, is_left ? down.width() : across.sectionSize(place.col - 1),
            is_top ? across.height() : down.sectionSize(place.row - 1)};
}

bool GridView::IsInView(const TablePlace& place) const {
    return place.IsHeading() || viewport()->rect().intersects(RectOf(place));
}

QRect GridView::RectOnScreen(const TablePlace& place) const {
    const QRect rect = RectOf(place);
    return {viewport()->mapToGlobal(rect.topLeft()), rect.size()};
}

void GridView::TellCurrentCell() {
    const TablePlace place = CurrentPlace();
    if (place.IsHeading() || !hasFocus())
        return;
    m_told = {place, NameOf(place)};
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(IndexOf(place));
    QAccessible::updateAccessibility(&event);
}

void GridView::TellNewContent() {
    const TablePlace place = CurrentPlace();
    if (place.IsHeading() || !hasFocus())
        return;
    const Told before = std::exchange(m_told, {place, NameOf(place)});
    if (before.place != place || before.name == m_told.name)
        return;
    QAccessibleEvent event(this, QAccessible::NameChanged);
    event.setChild(IndexOf(place));
    QAccessible::updateAccessibility(&event);
}

}  // namespace tavrelo::qt
