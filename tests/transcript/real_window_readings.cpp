#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QTabBar>
#include <algorithm>
#include <map>

#include "ink.h"
#include "model_driver.h"
#include "qt/pointers.h"
#include "qt/rich_document.h"
#include "qt/rich_text_view.h"
#include "qt/text.h"
#include "real_window.h"
#include "script.h"
#include "tree_walk.h"

// What is seen of a real window.

namespace tavrelo::transcript {

using qt::ToUtf8;

bool RealWindow::IsVisible(const window::Control& control) {
    if (!control.Parent())
        return Find(control).isVisible();
    // Behind another page the widget is hidden, whatever the control itself says.
    const auto* strip = dynamic_cast<const window::TabStrip*>(control.Parent());
    const bool is_behind =
        strip && control.Page() != window::Control::kAllPages && control.Page() != strip->Current();
    const QWidget& widget = Find(control);
    const bool is_visible = is_behind ? control.Visible() : widget.isVisibleTo(widget.parentWidget());
    return is_visible && IsVisible(*control.Parent());
}

namespace {

/// The role of the palette that the back of a control's widget has.
QPalette::ColorRole BackRoleOf(window::ControlKind kind) {
    using window::ControlKind;
    switch (kind) {
        case ControlKind::Button:
            return QPalette::Button;
        case ControlKind::TextBox:
        case ControlKind::RichTextBox:
        case ControlKind::Grid:
        case ControlKind::ComboBox:
        case ControlKind::ListBox:
            return QPalette::Base;
        default:
            return QPalette::Window;
    }
}

text::Color ToColor(QRgb color) {
    constexpr QRgb kWithoutAlpha = 0xffffff;
    return {color & kWithoutAlpha};
}

/// A widget as it is painted, without its children.
QImage PaintedAlone(QWidget& widget) {
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(widget.palette().color(QPalette::Window));
    widget.render(&image, {}, {}, QWidget::DrawWindowBackground);
    return image;
}

/// The colour of most pixels.
QRgb MainColor(const QImage& image) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    const auto most = std::ranges::max_element(counts, {}, [](const auto& count) { return count.second; });
    return most == counts.end() ? 0 : most->first;
}

/// The colour behind a control; where it is that of the look, the one that the program calls it by.
text::Color BackColorOf(const window::Control& control, QWidget& widget) {
    const auto role = BackRoleOf(control.Kind());
    const bool is_painted =
        control.Kind() == window::ControlKind::Shape || control.Kind() == window::ControlKind::Picture;
    const QRgb color =
        is_painted ? MainColor(PaintedAlone(widget)) : widget.palette().color(QPalette::Active, role).rgb();
    return color == QApplication::palette().color(QPalette::Active, role).rgb() ? OwnBackColor(control)
                                                                                : ToColor(color);
}

text::Color ForeColorOf(QWidget& widget) {
    if (const auto* bar = widget.findChild<QTabBar*>({}, Qt::FindDirectChildrenOnly))
        return ToColor(bar->tabTextColor(0).rgb());
    return ToColor(widget.palette().color(QPalette::Active, QPalette::WindowText).rgb());
}

}  // namespace

window::Rect RealWindow::BoundsOf(QWidget& widget) {
    const auto unscaled = [zoom = m_window.ZoomOf(widget)](int pixels) { return qRound(pixels / zoom); };
    // A window's place on the desktop is not the program's; its page is as large as the program says.
    auto* window = dynamic_cast<qt::FormWindow*>(&widget);
    const QRect place = window ? QRect(QPoint(), window->Page().size()) : widget.geometry();
    const int left = unscaled(place.left());
    const int top = unscaled(place.top());
    return {left, top, unscaled(place.left() + place.width()) - left,
            unscaled(place.top() + place.height()) - top};
}

Appearance RealWindow::Look(const window::Control& control) {
    Appearance look = LookOf(control);
    QWidget& widget = Find(control);
    look.bounds = BoundsOf(widget);
    look.fore_color = ForeColorOf(widget);
    look.back_color = BackColorOf(control, widget);
    look.visible = IsVisible(control);
    look.enabled = widget.isEnabledTo(widget.parentWidget());
    look.underlined = widget.font().underline();
    look.tooltip = ToUtf8(widget.toolTip());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        look.caption = ToUtf8(qt::FromCaption(button->text()));
    else if (const auto* label = qobject_cast<const QLabel*>(&widget))
        look.caption = ToUtf8(label->text());
    else if (widget.windowType() == Qt::Dialog)
        look.caption = ToUtf8(widget.windowTitle());
    return look;
}

std::string RealWindow::Text(const window::TextBox& box) { return ToUtf8(FindAs<QLineEdit>(box).text()); }

std::vector<text::Run> RealWindow::Runs(const window::RichTextBox& box) {
    if (const auto* view = dynamic_cast<const qt::RichTextView*>(&Find(box)))
        return qt::ReadRuns(*view->document()).Runs();
    // A line that can be typed into has one look, that of the model.
    std::vector<text::Run> runs = box.Content().Runs();
    runs.resize(1);
    runs.front().text = ToUtf8(FindAs<QLineEdit>(box).text());
    return runs;
}

window::TextSelection RealWindow::Selection(const window::TextControl& box) {
    if (const auto* view = dynamic_cast<const qt::RichTextView*>(&Find(box)))
        return view->Selected();
    const auto& field = FindAs<QLineEdit>(box);
    const QString text = field.text();
    const int start = field.hasSelectedText() ? field.selectionStart() : field.cursorPosition();
    const int end = field.hasSelectedText() ? field.selectionEnd() : start;
    const std::size_t first = qt::CharactersBefore(text, start);
    return {first, qt::CharactersBefore(text, end) - first};
}

std::vector<std::vector<std::string>> RealWindow::Cells(const window::Grid& grid) {
    const auto& view = FindAs<qt::GridView>(grid);
    const QAbstractItemModel& table = *view.model();
    std::vector<std::vector<std::string>> cells;
    const auto text = [](const QVariant& shown) { return ToUtf8(shown.toString()); };
    for (int row = -grid.FixedRows(); row < table.rowCount(); ++row) {
        std::vector<std::string> line;
        for (int col = -grid.FixedCols(); col < table.columnCount(); ++col) {
            if (row < 0 && col < 0)
                line.push_back(ToUtf8(view.findChild<QLabel*>()->text()));
            else if (row < 0)
                line.push_back(text(table.headerData(col, Qt::Horizontal)));
            else if (col < 0)
                line.push_back(text(table.headerData(row, Qt::Vertical)));
            else
                line.push_back(text(table.index(row, col).data()));
        }
        cells.push_back(std::move(line));
    }
    return cells;
}

window::CellBlock RealWindow::Selection(const window::Grid& grid) {
    const QItemSelection chosen = FindAs<qt::GridView>(grid).selectionModel()->selection();
    if (chosen.isEmpty())
        return {-1, -1, -1, -1};
    const QItemSelectionRange& block = chosen.front();
    return {block.top() + grid.FixedRows(), block.left() + grid.FixedCols(),
            block.bottom() + grid.FixedRows(), block.right() + grid.FixedCols()};
}

std::vector<ListRow> RealWindow::Rows(const window::ComboBox& combo) {
    const auto& widget = FindAs<QComboBox>(combo);
    std::vector<ListRow> rows;
    for (int row = 0; row < widget.count(); ++row)
        rows.push_back({ToUtf8(widget.itemText(row)), row == widget.currentIndex()});
    return rows;
}

std::vector<ListRow> RealWindow::Rows(const window::TabStrip& tabs) {
    const auto& bar = *Find(tabs).findChild<QTabBar*>();
    std::vector<ListRow> rows;
    for (int tab = 0; tab < bar.count(); ++tab)
        rows.push_back({ToUtf8(qt::FromCaption(bar.tabText(tab))), tab == bar.currentIndex()});
    return rows;
}

std::vector<ListRow> RealWindow::Rows(const window::ListBox& list) {
    const auto& widget = FindAs<QListWidget>(list);
    std::vector<ListRow> rows;
    for (int row = 0; row < widget.count(); ++row)
        rows.push_back({ToUtf8(widget.item(row)->text()), widget.item(row)->isSelected()});
    return rows;
}

bool RealWindow::IsChecked(const window::OptionButton& option) {
    return FindAs<QAbstractButton>(option).isChecked();
}

bool RealWindow::IsChecked(const window::CheckBox& check) {
    return FindAs<QAbstractButton>(check).isChecked();
}

int RealWindow::FrontTab(const window::TabStrip& tabs) {
    return Find(tabs).findChild<QTabBar*>()->currentIndex();
}

int RealWindow::Value(const window::UpDown& control) {
    if (const auto* box = qobject_cast<QSpinBox*>(&Find(control)))
        return box->value();
    return FindAs<QLineEdit>(*control.buddy).text().toInt();
}

void RealWindow::ExpectInk(const window::Picture& picture) {
    const QImage painted = PaintedAlone(Find(picture));
    const std::string missing = MissingInk(painted, m_window.Zoom(), picture.Canvas());
    if (!missing.empty())
        throw ScriptError("the window does not show on " + picture.Name() + ": " + missing);
}

std::vector<window::DrawOp> RealWindow::Drawing(const window::Picture& picture) {
    ExpectInk(picture);
    return picture.Canvas().Operations();
}

std::vector<std::string> RealWindow::DrawnTexts(const window::Picture& picture) {
    ExpectInk(picture);
    return picture.Canvas().VisibleTexts();
}

const window::Control* RealWindow::Focus() { return m_window.FocusedControl(); }

int RealWindow::Pointer() {
    constexpr int kShapes[] = {window::kPointerCross, window::kPointerMove, window::kPointerArrowHourglass,
                               window::kPointerUpArrow, window::kPointerBusy};
    const auto shape_of = [&kShapes](const QWidget& widget) {
        const auto* shape = std::ranges::find(kShapes, widget.cursor().shape(),
                                              [](int number) { return qt::ToCursor(number).shape(); });
        return shape == std::end(kShapes) ? static_cast<int>(window::kPointerDefault) : *shape;
    };
    if (const int shape = shape_of(m_window.Frame()); shape != window::kPointerDefault)
        return shape;
    for (const window::Control* control : m_program.Window().Controls()) {
        if (control->Kind() != window::ControlKind::Picture || !Find(*control).isVisible())
            continue;
        if (const int shape = shape_of(Find(*control)); shape != window::kPointerDefault)
            return shape;
    }
    return window::kPointerDefault;
}

ClipboardContent RealWindow::OnClipboard() {
    const QImage image = QApplication::clipboard()->image();
    if (image.isNull())
        return {ToUtf8(QApplication::clipboard()->text()), 0, 0};
    const QSizeF size = QSizeF(image.size()) / qt::kExportScale;
    return {{}, qRound(size.width()), qRound(size.height())};
}

TreeFindings RealWindow::WalkTree() {
    QCoreApplication::processEvents();
    TreeWalk walk;
    walk.Visit(m_window.Frame());
    walk.Visit(m_window.WidgetOf(*m_program.Window().Find("Form2")));
    return walk.Findings();
}

}  // namespace tavrelo::transcript
