#include "window_driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <algorithm>
#include <cstdlib>

#include "box_watcher.h"
#include "model_driver.h"
#include "numeric/utf8.h"
#include "qt/boxes.h"
#include "qt/clipboard.h"
#include "qt/grid_view.h"
#include "qt/look.h"
#include "qt/main_window.h"
#include "qt/pointers.h"
#include "qt/rich_document.h"
#include "qt/rich_text_view.h"
#include "qt/text.h"

namespace tavrelo::transcript {
namespace {

using qt::ToQString;
using qt::ToUtf8;
using shell::Key;

constexpr const char* kPlatformVariable = "QT_QPA_PLATFORM";

/// Keeps quiet about what the offscreen platform cannot do.
void FilterMessages(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support")) &&
        !message.startsWith(QLatin1String("QStandardPaths:")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

struct KeyCode {
    Key key;
    Qt::Key code;
};
constexpr KeyCode kKeyCodes[] = {
    {Key::Enter, Qt::Key_Return},  {Key::Backspace, Qt::Key_Backspace},
    {Key::Delete, Qt::Key_Delete}, {Key::Insert, Qt::Key_Insert},
    {Key::Left, Qt::Key_Left},     {Key::Right, Qt::Key_Right},
    {Key::Up, Qt::Key_Up},         {Key::Down, Qt::Key_Down},
    {Key::Home, Qt::Key_Home},     {Key::End, Qt::Key_End},
    {Key::Tab, Qt::Key_Tab},       {Key::Escape, Qt::Key_Escape},
    {Key::F10, Qt::Key_F10},       {Key::F11, Qt::Key_F11},
    {Key::F12, Qt::Key_F12},
};

/// The code of the key that types a character: its capital, as far as keyboards number them.
Qt::Key CodeOf(char32_t character) {
    constexpr char32_t kLastNumbered = 0xff;
    const char32_t capital = QChar::toUpper(character);
    return capital <= kLastNumbered ? static_cast<Qt::Key>(capital) : Qt::Key_unknown;
}

Qt::KeyboardModifiers ModifiersOf(bool shift, bool ctrl, bool alt) {
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, shift);
    modifiers.setFlag(Qt::ControlModifier, ctrl);
    modifiers.setFlag(Qt::AltModifier, alt);
    return modifiers;
}

/// The text that a key event carries: none for a command, a control character for the keys that have one.
QString TextOf(const shell::KeyStroke& stroke) {
    if (stroke.ctrl || stroke.alt)
        return {};
    switch (stroke.key) {
        case Key::Character:
            return QString::fromUcs4(&stroke.character, 1);
        case Key::Enter:
            return QStringLiteral("\r");
        case Key::Backspace:
            return QStringLiteral("\b");
        default:
            return {};
    }
}

/// What happens to a mouse button, where and with which keys held. Places may be parts of a pixel.
struct MouseAct {
    QEvent::Type type;
    QPointF place;
    Qt::MouseButton button = Qt::LeftButton;
    Qt::KeyboardModifiers modifiers = {};
};

void SendMouse(QWidget& widget, const MouseAct& act) {
    const bool is_move = act.type == QEvent::MouseMove;
    const bool is_up = act.type == QEvent::MouseButtonRelease;
    QMouseEvent event(act.type, act.place, widget.mapToGlobal(act.place), is_move ? Qt::NoButton : act.button,
                      is_up ? Qt::NoButton : act.button, act.modifiers);
    QCoreApplication::sendEvent(&widget, &event);
}

class WindowDriver : public Driver {
  public:
    explicit WindowDriver(const DriverOptions& options);
    ~WindowDriver() override;

    app::Program& Program() override { return m_program; }
    RecordedHost& World() override { return m_world; }
    bool IsReachable(const shell::Control& control) override;

    void Press(shell::Control& control) override;
    void Drag(shell::Picture& picture, const shell::MouseStroke& from, const shell::MouseStroke& to) override;
    void Hover(shell::Picture& picture, shell::Point place) override;
    void GiveFocus(shell::Control& control) override;
    void Stroke(shell::Control& control, const shell::KeyStroke& stroke) override;
    void ReplaceText(shell::TextControl& box, const std::string& text) override;
    void PressCell(shell::Grid& grid, CellPlace cell) override;
    void DragCells(shell::Grid& grid, const shell::CellBlock& block) override;
    void DoubleClickCell(shell::Grid& grid, CellPlace cell) override;
    void Pick(shell::ComboBox& combo, int row) override;
    void Pick(shell::TabStrip& tabs, int tab) override;
    void Pick(shell::ListBox& list, const std::vector<int>& rows) override;
    void Spin(shell::UpDown& control, int value) override;
    void PutOnClipboard(const std::string& text) override;

    Appearance Look(const shell::Control& control) override;
    std::string Text(const shell::TextBox& box) override;
    std::vector<shell::Run> Runs(const shell::RichTextBox& box) override;
    shell::TextSelection Selection(const shell::TextControl& box) override;
    std::vector<std::vector<std::string>> Cells(const shell::Grid& grid) override;
    shell::CellBlock Selection(const shell::Grid& grid) override;
    std::vector<ListRow> Rows(const shell::ComboBox& combo) override;
    std::vector<ListRow> Rows(const shell::ListBox& list) override;
    bool IsChecked(const shell::OptionButton& option) override;
    bool IsChecked(const shell::CheckBox& check) override;
    int FrontTab(const shell::TabStrip& tabs) override;
    int Value(const shell::UpDown& control) override;
    std::vector<shell::DrawOp> Drawing(const shell::Picture& picture) override;
    std::vector<std::string> DrawnTexts(const shell::Picture& picture) override;
    const shell::Control* Focus() override;
    int Pointer() override;
    ClipboardContent OnClipboard() override;
    void SavePicture(const std::string& path) override;

  private:
    /// The widget of a control; of a window, its frame.
    QWidget& Find(const shell::Control& control);
    template <class WidgetType>
    WidgetType& FindAs(const shell::Control& control) {
        return dynamic_cast<WidgetType&>(Find(control));
    }
    /// As Find, in the active window.
    QWidget& Activate(const shell::Control& control);
    QPointF PlaceOn(const shell::Picture& picture, shell::Point own) const;
    bool IsVisible(const shell::Control& control);
    /// Presses the mouse button on a heading: it only gives the focus.
    void PressHeading(qt::GridView& view, const shell::Grid& grid, CellPlace cell);

    RecordedHost m_world;
    qt::Artwork m_artwork{m_world.files};
    qt::WindowBoxes m_boxes;
    qt::SystemClipboard m_clipboard{m_artwork};
    BoxWatcher m_watcher{m_world.box_log};
    app::Program m_program{{m_boxes, m_clipboard, m_world.printer, m_world.files}};
    qt::MainWindow m_window{m_program.Window(), m_artwork};
};

WindowDriver::WindowDriver(const DriverOptions& options) {
    constexpr double kPercent = 100;
    QApplication::clipboard()->clear();
    m_window.SetZoom(options.zoom_percent / kPercent);
    m_window.Show();
    QApplication::setActiveWindow(&m_window.Frame());
    QCoreApplication::processEvents();
}

WindowDriver::~WindowDriver() {
    // What the transcript left behind is painted once, as a student would see it.
    QCoreApplication::processEvents();
}

QWidget& WindowDriver::Find(const shell::Control& control) {
    return m_window.WidgetOf(*m_program.Window().Find(control.Name()));
}

QWidget& WindowDriver::Activate(const shell::Control& control) {
    QWidget& widget = Find(control);
    if (QApplication::activeWindow() != widget.window())
        QApplication::setActiveWindow(widget.window());
    return widget;
}

bool WindowDriver::IsReachable(const shell::Control& control) {
    const QWidget& widget = Find(control);
    return widget.isVisible() && widget.isEnabled();
}

void WindowDriver::Press(shell::Control& control) {
    QWidget& widget = Activate(control);
    QTest::mouseClick(&widget, Qt::LeftButton);
}

QPointF WindowDriver::PlaceOn(const shell::Picture& picture, shell::Point own) const {
    const shell::Point pixels = picture.ToPixels(own);
    return QPointF(pixels.x, pixels.y) * m_window.Zoom();
}

void WindowDriver::Drag(shell::Picture& picture, const shell::MouseStroke& from,
                        const shell::MouseStroke& to) {
    QWidget& widget = Activate(picture);
    MouseAct act{QEvent::MouseButtonPress, PlaceOn(picture, {from.x, from.y})};
    if (from.button == shell::MouseButton::Right)
        act.button = Qt::RightButton;
    act.modifiers = ModifiersOf(from.shift, from.ctrl, from.alt);
    SendMouse(widget, act);
    const QPointF end = PlaceOn(picture, {to.x, to.y});
    if (end != act.place)
        SendMouse(widget, {QEvent::MouseMove, end, act.button, act.modifiers});
    SendMouse(widget, {QEvent::MouseButtonRelease, end, act.button, act.modifiers});
}

void WindowDriver::Hover(shell::Picture& picture, shell::Point place) {
    SendMouse(Activate(picture), {QEvent::MouseMove, PlaceOn(picture, place), Qt::NoButton});
}

void WindowDriver::GiveFocus(shell::Control& control) {
    QWidget& widget = Activate(control);
    if (!widget.hasFocus())
        widget.setFocus(Qt::OtherFocusReason);
}

void WindowDriver::Stroke(shell::Control& control, const shell::KeyStroke& stroke) {
    const auto* named = std::ranges::find(kKeyCodes, stroke.key, &KeyCode::key);
    const Qt::Key code = named != std::end(kKeyCodes) ? named->code : CodeOf(stroke.character);
    const auto modifiers = ModifiersOf(stroke.shift, stroke.ctrl, stroke.alt);
    QTest::sendKeyEvent(QTest::Click, &Activate(control), code, TextOf(stroke), modifiers);
}

void WindowDriver::ReplaceText(shell::TextControl& box, const std::string& text) {
    auto& field = FindAs<QLineEdit>(box);
    if (field.isReadOnly())
        return;
    field.selectAll();
    field.insert(ToQString(text));
}

void WindowDriver::PressHeading(qt::GridView& view, const shell::Grid& grid, CellPlace cell) {
    const bool is_top = cell.row < grid.FixedRows();
    QHeaderView& heading = is_top ? *view.horizontalHeader() : *view.verticalHeader();
    const int section = is_top ? cell.col - grid.FixedCols() : cell.row - grid.FixedRows();
    const int start = heading.sectionViewportPosition(std::max(section, 0)) + 1;
    QTest::mouseClick(heading.viewport(), Qt::LeftButton, {}, is_top ? QPoint(start, 1) : QPoint(1, start));
}

void WindowDriver::PressCell(shell::Grid& grid, CellPlace cell) {
    Activate(grid);
    auto& view = FindAs<qt::GridView>(grid);
    if (cell.row < grid.FixedRows() || cell.col < grid.FixedCols())
        PressHeading(view, grid, cell);
    else
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.BringIntoView(cell.row, cell.col));
}

void WindowDriver::DragCells(shell::Grid& grid, const shell::CellBlock& block) {
    Activate(grid);
    auto& view = FindAs<qt::GridView>(grid);
    QTest::mousePress(view.viewport(), Qt::LeftButton, {},
                      view.BringIntoView(block.first_row, block.first_col));
    const QPoint last = view.BringIntoView(block.last_row, block.last_col);
    SendMouse(*view.viewport(), {QEvent::MouseMove, last});
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, last);
}

void WindowDriver::DoubleClickCell(shell::Grid& grid, CellPlace cell) {
    PressCell(grid, cell);
    auto& view = FindAs<qt::GridView>(grid);
    const QPoint place = view.BringIntoView(cell.row, cell.col);
    SendMouse(*view.viewport(), {QEvent::MouseButtonDblClick, place});
    SendMouse(*view.viewport(), {QEvent::MouseButtonRelease, place});
}

void WindowDriver::Pick(shell::ComboBox& combo, int row) {
    Activate(combo);
    auto& widget = FindAs<QComboBox>(combo);
    widget.setFocus(Qt::MouseFocusReason);
    widget.showPopup();
    widget.view()->setCurrentIndex(widget.model()->index(row, 0));
    QTest::keyClick(widget.view(), Qt::Key_Return);
}

void WindowDriver::Pick(shell::TabStrip& tabs, int tab) {
    auto& bar = *Activate(tabs).findChild<QTabBar*>();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
}

void WindowDriver::Pick(shell::ListBox& list, const std::vector<int>& rows) {
    Activate(list);
    auto& widget = FindAs<QListWidget>(list);
    const auto click = [&widget](int row, Qt::KeyboardModifiers modifiers) {
        widget.scrollToItem(widget.item(row));
        const QPoint place = widget.visualItemRect(widget.item(row)).center();
        QTest::mouseClick(widget.viewport(), Qt::LeftButton, modifiers, place);
    };
    if (rows.empty())
        for (const QListWidgetItem* item : widget.selectedItems())
            click(widget.row(item), Qt::ControlModifier);
    for (const int row : rows)
        click(row, row == rows.front() ? Qt::NoModifier : Qt::ControlModifier);
}

void WindowDriver::Spin(shell::UpDown& control, int value) {
    QWidget& widget = Activate(control);
    const int step = value > Value(control) ? 1 : -1;
    for (int before = Value(control); before != value; before = Value(control)) {
        if (auto* box = qobject_cast<QSpinBox*>(&widget))
            box->stepBy(step);
        else
            widget.findChildren<QToolButton*>().at(step > 0 ? 0 : 1)->click();
        if (Value(control) == before)
            return;
    }
}

void WindowDriver::PutOnClipboard(const std::string& text) {
    QApplication::clipboard()->setText(ToQString(text));
}

bool WindowDriver::IsVisible(const shell::Control& control) {
    if (!control.Parent())
        return Find(control).isVisible();
    // Behind another page the widget is hidden, whatever the control itself says.
    const auto* strip = dynamic_cast<const shell::TabStrip*>(control.Parent());
    const bool is_behind =
        strip && control.Page() != shell::Control::kAllPages && control.Page() != strip->Current();
    const QWidget& widget = Find(control);
    const bool is_visible = is_behind ? control.Visible() : widget.isVisibleTo(widget.parentWidget());
    return is_visible && IsVisible(*control.Parent());
}

Appearance WindowDriver::Look(const shell::Control& control) {
    Appearance look = LookOf(control);
    const QWidget& widget = Find(control);
    look.visible = IsVisible(control);
    look.enabled = widget.isEnabledTo(widget.parentWidget());
    look.underlined = widget.font().underline();
    look.tooltip = ToUtf8(widget.toolTip());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        look.caption = ToUtf8(qt::FromCaption(button->text()));
    else if (const auto* label = qobject_cast<const QLabel*>(&widget))
        look.caption = ToUtf8(label->text());
    else if (widget.isWindow())
        look.caption = ToUtf8(widget.windowTitle());
    return look;
}

std::string WindowDriver::Text(const shell::TextBox& box) { return ToUtf8(FindAs<QLineEdit>(box).text()); }

std::vector<shell::Run> WindowDriver::Runs(const shell::RichTextBox& box) {
    if (const auto* view = dynamic_cast<const qt::RichTextView*>(&Find(box)))
        return qt::ReadRuns(*view->document()).Runs();
    // A line that can be typed into has one look, that of the model.
    std::vector<shell::Run> runs = box.Content().Runs();
    runs.resize(1);
    runs.front().text = ToUtf8(FindAs<QLineEdit>(box).text());
    return runs;
}

shell::TextSelection WindowDriver::Selection(const shell::TextControl& box) {
    if (const auto* view = dynamic_cast<const qt::RichTextView*>(&Find(box)))
        return view->Selected();
    const auto& field = FindAs<QLineEdit>(box);
    const QString text = field.text();
    const int start = field.hasSelectedText() ? field.selectionStart() : field.cursorPosition();
    const int end = field.hasSelectedText() ? field.selectionEnd() : start;
    const std::size_t first = qt::CharactersBefore(text, start);
    return {first, qt::CharactersBefore(text, end) - first};
}

std::vector<std::vector<std::string>> WindowDriver::Cells(const shell::Grid& grid) {
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

shell::CellBlock WindowDriver::Selection(const shell::Grid& grid) {
    const QItemSelection chosen = FindAs<qt::GridView>(grid).selectionModel()->selection();
    if (chosen.isEmpty())
        return {-1, -1, -1, -1};
    const QItemSelectionRange& block = chosen.front();
    return {block.top() + grid.FixedRows(), block.left() + grid.FixedCols(),
            block.bottom() + grid.FixedRows(), block.right() + grid.FixedCols()};
}

std::vector<ListRow> WindowDriver::Rows(const shell::ComboBox& combo) {
    const auto& widget = FindAs<QComboBox>(combo);
    std::vector<ListRow> rows;
    for (int row = 0; row < widget.count(); ++row)
        rows.push_back({ToUtf8(widget.itemText(row)), row == widget.currentIndex()});
    return rows;
}

std::vector<ListRow> WindowDriver::Rows(const shell::ListBox& list) {
    const auto& widget = FindAs<QListWidget>(list);
    std::vector<ListRow> rows;
    for (int row = 0; row < widget.count(); ++row)
        rows.push_back({ToUtf8(widget.item(row)->text()), widget.item(row)->isSelected()});
    return rows;
}

bool WindowDriver::IsChecked(const shell::OptionButton& option) {
    return FindAs<QAbstractButton>(option).isChecked();
}

bool WindowDriver::IsChecked(const shell::CheckBox& check) {
    return FindAs<QAbstractButton>(check).isChecked();
}

int WindowDriver::FrontTab(const shell::TabStrip& tabs) {
    return Find(tabs).findChild<QTabBar*>()->currentIndex();
}

int WindowDriver::Value(const shell::UpDown& control) {
    if (const auto* box = qobject_cast<QSpinBox*>(&Find(control)))
        return box->value();
    return FindAs<QLineEdit>(*control.buddy).text().toInt();
}

std::vector<shell::DrawOp> WindowDriver::Drawing(const shell::Picture& picture) {
    return picture.Canvas().Operations();
}

std::vector<std::string> WindowDriver::DrawnTexts(const shell::Picture& picture) {
    return picture.Canvas().VisibleTexts();
}

const shell::Control* WindowDriver::Focus() { return m_window.FocusedControl(); }

int WindowDriver::Pointer() {
    constexpr int kShapes[] = {shell::kPointerCross, shell::kPointerMove, shell::kPointerArrowHourglass,
                               shell::kPointerUpArrow, shell::kPointerBusy};
    const auto shape_of = [&kShapes](const QWidget& widget) {
        const auto* shape = std::ranges::find(kShapes, widget.cursor().shape(),
                                              [](int number) { return qt::ToCursor(number).shape(); });
        return shape == std::end(kShapes) ? static_cast<int>(shell::kPointerDefault) : *shape;
    };
    if (const int shape = shape_of(m_window.Frame()); shape != shell::kPointerDefault)
        return shape;
    for (const shell::Control* control : m_program.Window().Controls()) {
        if (control->Kind() != shell::ControlKind::Picture || !Find(*control).isVisible())
            continue;
        if (const int shape = shape_of(Find(*control)); shape != shell::kPointerDefault)
            return shape;
    }
    return shell::kPointerDefault;
}

ClipboardContent WindowDriver::OnClipboard() {
    const QImage image = QApplication::clipboard()->image();
    if (image.isNull())
        return {ToUtf8(QApplication::clipboard()->text()), 0, 0};
    const QSizeF size = QSizeF(image.size()) / qt::kExportScale;
    return {{}, qRound(size.width()), qRound(size.height())};
}

void WindowDriver::SavePicture(const std::string& path) {
    QCoreApplication::processEvents();
    m_window.Frame().grab().save(ToQString(path));
}

}  // namespace

struct WindowSystem::Toolkit {
    Toolkit() {
        qInstallMessageHandler(FilterMessages);
        if (!qEnvironmentVariableIsSet(kPlatformVariable))
            qputenv(kPlatformVariable, "offscreen");
        QStandardPaths::setTestModeEnabled(true);
        application = std::make_unique<QApplication>(argument_count, arguments);
        QApplication::setQuitOnLastWindowClosed(false);
        qt::SetUpApplication(*application);
    }

    int argument_count = 1;
    char name[11] = "transcript";
    char* arguments[2] = {name, nullptr};
    std::unique_ptr<QApplication> application;
};

WindowSystem::WindowSystem() : m_toolkit(std::make_unique<Toolkit>()) {}

WindowSystem::~WindowSystem() = default;

std::unique_ptr<Driver> MakeWindowDriver(const DriverOptions& options) {
    return std::make_unique<WindowDriver>(options);
}

}  // namespace tavrelo::transcript
